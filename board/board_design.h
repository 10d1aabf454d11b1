#pragma once

// The board's fixed design: every control in its place, in twips, with its colour scheme. The
// window never rearranges itself; sizes scale with the screen through Qt's device pixel ratio.

// Standard library
#include <array>

// Qt
#include <QString>

// Marivale
#include "play/board_captions.h"
#include "play/game_variant.h"

class QDialog;
class QFrame;
class QGroupBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QRadioButton;

namespace marivale {

// The window inside its border: 9480 by 6795 twips.
inline constexpr int kBoardWidthTwips = 9480;
inline constexpr int kBoardHeightTwips = 6795;

// Every widget the board's logic or its tests reach, found again by objectName.
struct BoardWidgets {
    QLabel* title{nullptr};
    QLabel* note{nullptr};
    std::array<QLabel*, 9> payCaptions{};
    std::array<QLineEdit*, 9> payBoxes{};
    std::array<QRadioButton*, kPurchaseOptionCount> purchaseOptions{};
    QPushButton* purchase{nullptr};
    QPushButton* help{nullptr};
    QPushButton* exit{nullptr};
    QPushButton* betUp{nullptr};
    QPushButton* betDn{nullptr};
    QLineEdit* credit{nullptr};
    QLineEdit* bet{nullptr};
    QLineEdit* win{nullptr};
    QLineEdit* last{nullptr};
    std::array<QLabel*, kHandSize> holdMarks{};
    std::array<QPushButton*, kHandSize> cards{};
    QPushButton* stand{nullptr};
    QPushButton* drawDeal{nullptr};
    QLabel* output{nullptr};
    QLineEdit* totPurchased{nullptr};
    QLineEdit* totWinGame{nullptr};
    QLabel* plTitle{nullptr};
    QLineEdit* profLoss{nullptr};
};

// Builds the variant's design on the window, with phase 0's captions and enabled buttons.
BoardWidgets buildBoard(QDialog& window, const GameVariant& variant);

} // namespace marivale
