#pragma once

// For every set of up to five cards of a game's deck, how many 5-card hands of each outcome
// contain it. Hands are classified by the game's own AnalyzeHand once per suit class (a renaming
// of the suits never changes an outcome), and the counts are kept per suit class of the set. A
// deal's draws are then counted by inclusion and exclusion over its 32 subsets.

// Standard library
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

// Marivale
#include "engine/card.h"
#include "engine/game.h"
#include "engine/odds/combinatorics.h"
#include "engine/odds/outcome.h"
#include "engine/odds/stoppable_once.h"

namespace marivale::odds {

struct SubsetClassTables;

// One count vector per subset of a 5-card deal, indexed by a bit mask of sorted positions.
using SubsetCounts = std::array<OutcomeCounts, 32>;
// The suit class of each subset of one to four cards of a deal, by mask over sorted positions.
using SubsetClasses = std::array<std::uint16_t, 32>;

class DrawTables {
public:
    // The game's tables, built on first use; other callers wait for that build.
    static const DrawTables& forGame(GameId game);
    // The same, but gives up (nullptr) once `stop` is requested, whether building or waiting.
    static const DrawTables* forGameUnlessStopped(GameId game, std::stop_token stop);
    // The game's tables if they are built already, else nullptr. Never blocks.
    static const DrawTables* ifBuilt(GameId game);

    // Builds a game's tables from scratch on the given number of threads; throws BuildStopped
    // when `stop` is requested before the end.
    DrawTables(GameId game, int threads, std::stop_token stop = {});

    GameId game() const { return game_; }
    int deckSize() const { return deckSize_; }
    // Slots 0..outcomeCount()-1 are in use.
    int outcomeCount() const { return outcomeCount_; }
    Outcome outcome(int slot) const { return outcomes_[slot]; }

    // The outcome slot of the hand of five ascending cards.
    int handOutcome(std::span<const CardCode, kHandSize> ascending) const;

    // For every subset A of the ascending deal: how many hands of the deck contain A, by outcome.
    void supersetCounts(std::span<const CardCode, kHandSize> ascending, SubsetCounts& out) const;

    // The outcome slot of each deal class, in the order of dealClasses(deckSize()).
    std::span<const std::uint8_t> dealOutcomes() const { return dealOutcomes_; }
    // The suit class of every subset of one to four cards of the ascending deal.
    void subsetClasses(std::span<const CardCode, kHandSize> ascending, SubsetClasses& out) const;
    // How many suit classes the sets of `size` cards (0..4) fall into.
    int classCount(int size) const;
    // Adds sign x the hands of each outcome that contain a set of `size` cards (0..4) of the
    // given class.
    void addClassCounts(int size, int id, int sign, OutcomeCounts& into) const;

    std::size_t memoryBytes() const;

private:
    void classifyDeals(int threads, std::stop_token stop);
    void countFours();
    void sumSmallerSets();

    GameId game_;
    int deckSize_{52};
    std::array<Outcome, kMaxOutcomes> outcomes_{};
    std::array<std::uint8_t, 32> slotOfRaw_{};
    int outcomeCount_{kCodeSlots};
    const SubsetClassTables* classes_{nullptr};
    std::vector<std::uint8_t> dealOutcomes_{};
    // By suit class: a set of four cards is in at most 49 hands, of three at most 1,225, of two
    // at most 20,825.
    std::vector<std::array<std::uint8_t, kMaxOutcomes>> fours_{};
    std::vector<std::array<std::uint16_t, kMaxOutcomes>> threes_{};
    std::vector<std::array<std::uint16_t, kMaxOutcomes>> twos_{};
    std::vector<OutcomeCounts> ones_{};
    OutcomeCounts all_{};
};

} // namespace marivale::odds
