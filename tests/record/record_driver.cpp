// Plays Jacks or Better flat out through the play controller, the run's statistics and the
// player's record at the path given, and prints "settled N" once hand N is settled and written.
// The record tests kill it at random points and read what it left.

// Standard library
#include <cstdio>
#include <cstdlib>

// Qt
#include <QCoreApplication>

// Marivale
#include "play/stats/session_stats.h"
#include "record/record_store.h"
#include "tests/support/fake_view.h"

int main(int argc, char* argv[]) {
    QCoreApplication app(argc, argv);
    if (argc < 3) {
        std::fprintf(stderr, "usage: record_driver DATABASE HANDS\n");
        return 2;
    }
    using namespace marivale;
    RecordStore record(QString::fromLocal8Bit(argv[1]),
                       [](const QString& text) { std::fprintf(stderr, "%s\n", qPrintable(text)); });
    if (!record.recording()) {
        return 3;
    }
    SessionStats stats;
    stats.setSink(&record);
    std::size_t reported = 0;
    stats.setListener([&stats, &reported] {
        const auto& history = stats.history();
        if (!history.empty() && history.back().finished && reported < history.size()) {
            reported = history.size();
            std::printf("settled %zu\n", reported);
            std::fflush(stdout);
        }
    });
    testing::FakeView view;
    GameState state{};
    ClockRandomSource random;
    PlayController controller(variantFor(GameId::JacksOrBetter), state, random, view);
    view.bind(state);
    state.PlayUnit = 0.25f;
    controller.setObserver(&stats);
    controller.load();
    const long hands = std::atol(argv[2]);
    for (long hand = 0; hand < hands; ++hand) {
        if (state.Credits < 5.0f) {
            controller.purchaseClicked();
        }
        controller.drawDealClicked();
        controller.cardClicked(static_cast<int>(hand % 5));
        controller.drawDealClicked();
        // A paying hand waits for Take Score, the same button.
        if (reported < stats.history().size()) {
            controller.drawDealClicked();
        }
    }
    controller.unload();
    return 0;
}
