#pragma once

// The deals of a deck up to a renaming of the four suits. The hand analysis only ever compares
// suits for equality, so every deal of a class plays alike; the joker is a suit of its own that
// no renaming moves. A 52-card deck has 134,459 classes for its 2,598,960 deals.

// Standard library
#include <array>
#include <cstdint>
#include <stop_token>
#include <vector>

// Marivale
#include "engine/card.h"
#include "engine/odds/combinatorics.h"

namespace marivale::odds {

struct DealClass {
    std::array<CardCode, kHandSize> cards{}; // the representative, ascending
    std::uint8_t weight{0};                  // how many deals the class holds (1..24)
};

// Every class of a 52- or 53-card deck, built once per deck size.
const std::vector<DealClass>& dealClasses(int deckSize);
// The same, but gives up (nullptr) once `stop` is requested, whether building or waiting.
const std::vector<DealClass>* dealClassesUnlessStopped(int deckSize, std::stop_token stop);

} // namespace marivale::odds
