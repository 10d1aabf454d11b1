#pragma once

// frmHelp: a fixed page of short explanations of the menu, the boards, Double Up and the
// Treasure Trips bonus. It reads and writes no game data; "&OK", Enter, Alt+O and the close box
// all close it.

// Qt
#include <QDialog>

namespace marivale {

class HelpDialog : public QDialog {
    Q_OBJECT
public:
    explicit HelpDialog(QWidget* parent = nullptr);
};

} // namespace marivale
