#pragma once

// Sets of one to five cards up to a renaming of the four suits. The hand analysis only ever
// compares suits for equality, so every set of a class plays alike; the joker is a suit of its
// own that no renaming moves. A class is represented by its set whose suits' rank patterns never
// increase from suit 0 to suit 3.

// Standard library
#include <array>
#include <cstdint>
#include <span>
#include <stop_token>
#include <vector>

// Marivale
#include "engine/card.h"
#include "engine/odds/combinatorics.h"

namespace marivale::odds {

struct SuitClass {
    std::array<CardCode, kHandSize> cards{}; // the representative, ascending; `size` in use
    std::uint8_t size{0};
    std::uint8_t weight{0}; // how many sets the class holds (1..24)

    std::span<const CardCode> set() const { return {cards.data(), size}; }
};

// Every class of sets of `size` cards (0..5) of a 52- or 53-card deck; throws BuildStopped once
// `stop` is requested.
std::vector<SuitClass> buildSuitClasses(int deckSize, int size, std::stop_token stop = {});

// The classes of the sets of one to four cards of a deck, and for every such set (by its colex
// number) the index of its class. Built once per deck size.
struct SubsetClassTables {
    std::array<std::vector<SuitClass>, kHandSize> classes{};        // by set size 0..4
    std::array<std::vector<std::uint16_t>, kHandSize> classOfSet{}; // by size, then colex number
    std::size_t memoryBytes() const;
};

const SubsetClassTables& subsetClassTables(int deckSize);
// The same, but gives up (nullptr) once `stop` is requested, whether building or waiting.
const SubsetClassTables* subsetClassTablesUnlessStopped(int deckSize, std::stop_token stop);

} // namespace marivale::odds
