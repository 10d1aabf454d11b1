#pragma once

// The hint's own mark on the board: a coloured frame drawn around the picture of each card the
// best hold keeps. It never covers the hold marks, and it lets every click through to the card.

// Standard library
#include <array>

// Marivale
#include "engine/card.h"

class QFrame;
class QPushButton;

namespace marivale {

class HintMarks {
public:
    explicit HintMarks(const std::array<QPushButton*, kHandSize>& cards);
    HintMarks(const HintMarks&) = delete;
    HintMarks& operator=(const HintMarks&) = delete;

    // Frames the cards of the hold (a mask over board positions), and no others.
    void show(unsigned held);
    void clear();
    // The cards framed now, as a mask.
    unsigned shown() const;

private:
    std::array<QPushButton*, kHandSize> cards_{};
    std::array<QFrame*, kHandSize> frames_{};
};

} // namespace marivale
