#pragma once

// Every 5-card hand of a game's deck classified once by the game's own AnalyzeHand, and for
// every smaller set of cards the number of hands of each outcome that contain it. A deal's draws
// are then counted by inclusion and exclusion over its 32 subsets instead of one by one.

// Standard library
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/odds/combinatorics.h"
#include "engine/odds/outcome.h"

namespace marivale::odds {

// One count vector per subset of a 5-card deal, indexed by a bit mask of sorted positions.
using SubsetCounts = std::array<OutcomeCounts, 32>;

class DrawTables {
public:
    // The game's tables, built on first use; other callers wait for that build.
    static const DrawTables& forGame(GameId game);
    // The game's tables if they are built already, else nullptr. Never blocks.
    static const DrawTables* ifBuilt(GameId game);

    // Builds a game's tables from scratch on the given number of threads.
    DrawTables(GameId game, int threads);

    GameId game() const { return game_; }
    int deckSize() const { return deckSize_; }
    // Slots 0..outcomeCount()-1 are in use.
    int outcomeCount() const { return outcomeCount_; }
    Outcome outcome(int slot) const { return outcomes_[static_cast<std::size_t>(slot)]; }

    // The outcome slot of the hand of five ascending cards.
    int handOutcome(std::span<const CardCode, kHandSize> ascending) const;

    // For every subset A of the ascending deal: how many hands of the deck contain A, by outcome.
    void supersetCounts(std::span<const CardCode, kHandSize> ascending, SubsetCounts& out) const;

    std::size_t memoryBytes() const;
    double buildSeconds() const { return buildSeconds_; }

private:
    void classifyHands(int threads);
    void countFours(int threads);
    void sumSmallerSets();

    GameId game_;
    int deckSize_{52};
    std::array<Outcome, kMaxOutcomes> outcomes_{};
    int outcomeCount_{kCodeSlots};
    std::vector<std::uint8_t> hands_{};                           // slot of every 5-card hand
    std::vector<std::array<std::uint8_t, kMaxOutcomes>> fours_{}; // at most 49 hands each
    std::vector<OutcomeCounts> threes_{};
    std::vector<OutcomeCounts> twos_{};
    std::vector<OutcomeCounts> ones_{};
    OutcomeCounts all_{};
    double buildSeconds_{0.0};
};

} // namespace marivale::odds
