// The hand history as CSV: the header, one row per hand in the order played, cards and holds
// as text, "." decimals, empty fields for what a hand never reached, and quoting.

#include <gtest/gtest.h>

// Standard library
#include <sstream>
#include <string>
#include <tuple>
#include <vector>

// Marivale
#include "play/stats/history_csv.h"

namespace marivale {
namespace {

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> out;
    std::istringstream in(text);
    for (std::string line; std::getline(in, line);) {
        out.push_back(line);
    }
    return out;
}

TEST(HistoryCsv, OneRowPerHandAfterTheHeader) {
    HandRecord flush;
    flush.number = 1;
    flush.visit = 1;
    flush.game = GameId::JacksOrBetter;
    flush.bet = 1.25f;
    flush.dealt = {27, 30, 34, 36, 25}; // 2h 5h 9h Jh Kd
    flush.holds = 0b01111;
    flush.played = true;
    flush.finalCards = {27, 30, 34, 36, 28};
    flush.code = 5;
    flush.name = "Flush";
    flush.paid = 25.0f;
    flush.doubleUp = DoubleUpResult::Won;
    flush.doubleFactor = 4;
    flush.finished = true;
    flush.judgement = HoldJudgement{0b01111, 1.0, 0.5, 0.0123456f, true};

    HandRecord bonus = flush;
    bonus.number = 2;
    bonus.game = GameId::TreasureTrips;
    bonus.dealt = {41, 15, 28, 3, 52}; // 3s 3d 3h 4c Jk
    bonus.holds = 0;
    bonus.finalCards = bonus.dealt;
    bonus.name = "Three, of a Kind"; // a comma is quoted
    bonus.paid = 1234.5f;
    bonus.bonus = 6.0f;
    bonus.doubleUp = DoubleUpResult::NotOffered;
    bonus.judgement = HoldJudgement{0b00111, 2.0, 2.0, 0.0f, false};

    HandRecord abandoned;
    abandoned.number = 3;
    abandoned.visit = 2;
    abandoned.game = GameId::DeucesWild;
    abandoned.bet = 0.25f;
    abandoned.dealt = {1, 17, 34, 49, 25};
    abandoned.abandoned = true;

    const std::vector<std::string> rows = lines(historyCsv({flush, bonus, abandoned}));
    ASSERT_EQ(rows.size(), 4u);
    EXPECT_EQ(rows[0],
              "Hand,Visit,Game,Bet,Dealt,Held,Final,Result,Paid,Double Up,Bonus,Best Hold,Cost");
    EXPECT_EQ(rows[1], "1,1,Jacks or Better,1.25,2h 5h 9h Jh Kd,2h 5h 9h Jh,2h 5h 9h Jh 3h,Flush,"
                       "25.00,won x4,0.00,2h 5h 9h Jh,0.0123");
    EXPECT_EQ(rows[2], "2,1,Treasure Trips,1.25,3s 3d 3h 4c Jk,none,3s 3d 3h 4c Jk,"
                       "\"Three, of a Kind\",1234.50,,6.00,3s 3d 3h,0.0000");
    EXPECT_EQ(rows[3], "3,2,Deuces Wild,0.25,2c 5d 9h Js Kd,,,abandoned,0.00,,0.00,,");
}

TEST(HistoryCsv, TextHelpers) {
    HandRecord hand;
    const std::pair<DoubleUpResult, const char*> outcomes[] = {
        {DoubleUpResult::NotOffered, ""},
        {DoubleUpResult::TookScore, "took score"},
        {DoubleUpResult::NoGuess, "no guess"},
        {DoubleUpResult::Won, "won x8"},
        {DoubleUpResult::Lost, "lost"}};
    hand.doubleFactor = 8;
    for (const auto& [result, text] : outcomes) {
        hand.doubleUp = result;
        EXPECT_EQ(doubleUpText(hand), text);
    }
}

} // namespace
} // namespace marivale
