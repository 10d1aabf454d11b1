// Renders each board before and after a deal into OUTDIR, for the README.
// Usage (from the program directory, where the pictures are): marivale-screenshots OUTDIR

// Standard library
#include <array>
#include <cstdio>

// Qt
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QPixmap>

// Marivale
#include "board/game_board.h"

using namespace marivale;

namespace {

// A pleasing hand per board, as card codes, and the positions the player holds.
struct Scene {
    GameId game;
    std::array<int, 5> deal;
    std::array<int, 5> draw;
    unsigned holds;
};

constexpr std::array<Scene, kGameCount> kScenes{{
    {GameId::TreasureTrips, {12, 25, 52, 3, 44}, {0, 0, 0, 7, 33}, 0b00111},
    {GameId::DeucesWild, {1, 40, 9, 36, 47}, {0, 0, 0, 0, 37}, 0b01111},
    {GameId::JokerWild, {0, 26, 52, 30, 45}, {0, 0, 0, 13, 7}, 0b00111},
    {GameId::JacksOrBetter, {11, 24, 50, 3, 19}, {0, 0, 0, 37, 15}, 0b00111},
}};

void click(GameBoard& board, const char* name) {
    if (auto* button = board.findChild<QAbstractButton*>(QString::fromLatin1(name))) {
        button->click();
    }
}

void shoot(QWidget& window, const QString& file) {
    QApplication::processEvents();
    window.grab().save(file);
    std::printf("%s\n", qPrintable(file));
}

} // namespace

int main(int argc, char** argv) {
    QApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: marivale-screenshots OUTDIR\n");
        return 2;
    }
    const QDir out(QString::fromLocal8Bit(argv[1]));
    for (const Scene& scene : kScenes) {
        GameState state;
        state.PlayUnit = 1.0f;
        state.NetWinLoss = 100.0f;
        ScriptedRandomSource random;
        for (const int code : scene.deal) {
            random.pushIndex(code, deckSize(scene.game));
        }
        for (const int code : scene.draw) {
            random.pushIndex(code, deckSize(scene.game));
        }
        GameBoard board(variantFor(scene.game), state, random);
        board.show();
        const QString name = QString::fromLatin1(shortName(scene.game).data(), 2).toLower();
        shoot(board, out.filePath(QStringLiteral("board-%1-start.png").arg(name)));
        click(board, "DrawDeal");
        for (int p = 0; p < 5; ++p) {
            if (scene.holds & (1u << p)) {
                click(board, qPrintable(QStringLiteral("Card%1").arg(p)));
            }
        }
        shoot(board, out.filePath(QStringLiteral("board-%1-dealt.png").arg(name)));
        click(board, "DrawDeal");
        shoot(board, out.filePath(QStringLiteral("board-%1-paid.png").arg(name)));
        board.close();
    }
    return 0;
}
