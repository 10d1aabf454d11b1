// What the controller tells its observer: every step of a hand and every move of money, in
// order, with the amounts after the controller has made them.

#include <gtest/gtest.h>

// Standard library
#include <string>
#include <vector>

// Marivale
#include "play/hand_observer.h"
#include "tests/support/fake_view.h"

namespace marivale {
namespace {

using testing::Table;

constexpr GameId JB = GameId::JacksOrBetter;

std::string money(float value) {
    return std::to_string(static_cast<int>(value * 100.0f + 0.5f));
}

std::string text(const HandCards& cards) {
    std::string out;
    for (const CardCode card : cards) {
        out += (out.empty() ? "" : " ") + std::to_string(card);
    }
    return out;
}

// Writes each event as one line; money in cents, cards as codes.
class EventLog final : public HandObserver {
public:
    void visitStarted(GameId game, float credits) override {
        add("visit " + std::to_string(static_cast<int>(game)) + " " + money(credits));
    }
    void dealt(const HandCards& cards, float bet, float credits) override {
        add("dealt " + text(cards) + " bet " + money(bet) + " credits " + money(credits));
    }
    void held(const HandHolds& holds) override {
        std::string mask;
        for (const bool h : holds) {
            mask += h ? 'H' : '.';
        }
        add("held " + mask);
    }
    void drawn(const HandCards& cards, std::uint8_t code, std::string_view name) override {
        add("drawn " + text(cards) + " code " + std::to_string(code) + " " + std::string(name));
    }
    void doubleUpOffered() override { add("offered"); }
    void doubled(int factor) override { add("doubled " + std::to_string(factor)); }
    void bonus(float amount) override { add("bonus " + money(amount)); }
    void settled(float paid, float credits) override {
        add("settled " + money(paid) + " credits " + money(credits));
    }
    void purchased(float amount, float credits) override {
        add("purchased " + money(amount) + " credits " + money(credits));
    }
    void cashedOut(float amount) override { add("cashed out " + money(amount)); }
    void visitEnded(float cashedOut) override { add("ended " + money(cashedOut)); }

    std::vector<std::string> lines{};

private:
    void add(std::string line) { lines.push_back(std::move(line)); }
};

using Lines = std::vector<std::string>;

// Card codes: 2h=27 5h=30 9h=34 Jh=36 Kd=25 3h=28 2c=1 5d=17 Js=49.
TEST(Observer, AWholeVisitInOrder) {
    EventLog log;
    Table t(JB, 3.0f, 1.0f, &log);
    t.buy(4);
    t.hand("2h 5h 9h Jh Kd", 0b01111, "Ks Ks Ks Ks 3h");
    t.hand("2c 5d 9h Js Kd", 0x1f);
    t.controller.standClicked(); // cash-out of the credits left
    t.controller.unload();
    EXPECT_EQ(log.lines, (Lines{
                             "visit 3 300",
                             "purchased 2000 credits 2300",
                             "dealt 27 30 34 36 25 bet 100 credits 2200",
                             "held HHHH.",
                             "drawn 27 30 34 36 28 code 5 Flush",
                             "settled 500 credits 2700",
                             "dealt 1 17 34 49 25 bet 100 credits 2600",
                             "held HHHHH",
                             "drawn 1 17 34 49 25 code 0 ",
                             "settled 0 credits 2600",
                             "cashed out 2600",
                             "ended 0",
                         }));
}

// The final cards are the cards, not the mark the analysis leaves in Hand position 0: the Queen
// of Diamonds (24) stays, where a pair of Queens leaves 11.
TEST(Observer, DoubleUpPathsAndTheFinalCards) {
    struct Case {
        const char* what;
        bool takeScore;
        int factor;
        Lines tail;
    };
    const Case cases[] = {
        {"take score", true, 0, {"settled 100 credits 2000"}},
        {"won twice", false, 4, {"doubled 4", "settled 400 credits 2300"}},
        {"lost", false, 0, {"doubled 0", "settled 0 credits 1900"}},
    };
    for (const Case& c : cases) {
        EventLog log;
        Table t(JB, 0.0f, 1.0f, &log);
        t.state.DoubleUpEnabled = kTrue;
        t.buy(4);
        t.hand("Qd Qc 9h 4s 2d", 0x1f);
        t.view.doubleUpPlay = [f = c.factor](GameState& s) {
            s.DoubleUpFactor = static_cast<std::int16_t>(f);
        };
        if (c.takeScore) {
            t.controller.drawDealClicked();
        } else {
            t.controller.standClicked();
        }
        Lines expected{"visit 3 0",
                       "purchased 2000 credits 2000",
                       "dealt 24 11 34 42 14 bet 100 credits 1900",
                       "held HHHHH",
                       "drawn 24 11 34 42 14 code 1 Pair of Queens",
                       "offered"};
        expected.insert(expected.end(), c.tail.begin(), c.tail.end());
        EXPECT_EQ(log.lines, expected) << c.what;
    }
}

} // namespace
} // namespace marivale
