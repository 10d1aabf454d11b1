#pragma once

// What the play controller tells whoever watches a visit: each step of a hand and each move of
// money, reported after the controller has made it. An observer only listens; it changes
// nothing on the board. Every event has an empty default, so an observer takes only what it
// needs.

// Standard library
#include <cstdint>
#include <string_view>

// Marivale
#include "engine/card.h"
#include "engine/game.h"

namespace marivale {

class HandObserver {
public:
    virtual ~HandObserver() = default;

    // A board opened on this game with these credits (a positive running total brought in).
    virtual void visitStarted(GameId /*game*/, float /*credits*/) {}
    // Five cards were dealt at this bet; the credits are counted after the bet was taken.
    virtual void dealt(const HandCards& /*cards*/, float /*bet*/, float /*credits*/) {}
    // The player drew with these holds; a stand holds all five.
    virtual void held(const HandHolds& /*holds*/) {}
    // The final five cards, their code and the name the board gives them (empty when nothing
    // pays).
    virtual void drawn(const HandCards& /*cards*/, std::uint8_t /*code*/,
                       std::string_view /*name*/) {}
    // A paying hand waits for the choice between the score and Double Up.
    virtual void doubleUpOffered() {}
    // The Double Up window closed with this factor: 0 lost, 1 no guess, 2 and up won.
    virtual void doubled(int /*factor*/) {}
    // The Treasure Hunt paid this many dollars on top of the hand.
    virtual void bonus(float /*amount*/) {}
    // The hand ended having paid this much (0 for nothing), leaving these credits.
    virtual void settled(float /*paid*/, float /*credits*/) {}
    // Credits were bought.
    virtual void purchased(float /*amount*/, float /*credits*/) {}
    // The player cashed out this many dollars.
    virtual void cashedOut(float /*amount*/) {}
    // The board closed, cashing out what was left; a hand in play is abandoned.
    virtual void visitEnded(float /*cashedOut*/) {}
};

} // namespace marivale
