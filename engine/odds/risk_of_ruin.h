#pragma once

// The risk of ruin of a session, exactly, by dynamic programming over what a hand pays under the
// best play. A session starts with a bankroll of B bets; each hand costs one bet and pays its
// multiple (no Double Up; a Treasure Hunt is one chest choice, each chest value equally likely).
// Ruin means the bankroll cannot cover the next bet before the session's hands are all played.

// Standard library
#include <optional>
#include <span>
#include <stop_token>
#include <vector>

// Marivale
#include "engine/odds/game_odds.h"
#include "engine/odds/pay_scale.h"

namespace marivale::odds {

// One thing a hand can pay, in bets, and how likely it is.
struct Payout {
    double bets{0.0};
    double probability{0.0};
};

// What a hand pays under the best play, one entry per distinct pay: a hand that earns the
// Treasure Hunt is split over the chest values.
std::vector<Payout> payoutDistribution(const GameOdds& odds, const PayScale& scale);

// The variance of a distribution of pays, in bets squared.
double payoutVariance(std::span<const Payout> payouts);

// The most hands a risk curve takes: its work grows with the square of the hands.
inline constexpr int kMaxRuinHands = 20'000;
// Pays that are not whole multiples of 1/64 of a bet are rounded down to such a grid.
inline constexpr int kFinestRuinGrid = 64;
// The most steps of the recursion (hands x bankrolls x distinct pays, halved) a curve may take,
// a few seconds' work.
inline constexpr double kMostRuinWork = 4e9;

// The risk of ruin over a session of a fixed number of hands, for every starting bankroll.
// Bankrolls move on a grid of `unit` bets: the largest step that every pay and the bet are
// whole multiples of (one bet for the four boards' own tables).
struct RuinCurve {
    int hands{0};
    double unit{1.0};
    bool exact{true};         // false: pays were rounded down to 1/64 of a bet
    std::vector<double> risk; // by bankroll in units; every larger bankroll has no risk

    // The risk at a bankroll in bets; a part of a unit never covers anything.
    double riskAt(double bankrollBets) const;
    // The smallest bankroll in bets whose risk is at most `target`.
    double bankrollFor(double target) const;
};

// Nothing when the hands are out of 0..kMaxRuinHands, the pays have no probability, the grid
// is so fine that the work would pass kMostRuinWork, or `stop` is requested first.
std::optional<RuinCurve> ruinCurve(std::span<const Payout> payouts, int hands,
                                   std::stop_token stop = {});

} // namespace marivale::odds
