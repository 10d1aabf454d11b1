#pragma once

// A push button whose caption wraps onto several lines, for the tall guess buttons of Double Up.
// text() keeps the caption exactly as given, access key included.

// Qt
#include <QPushButton>

namespace marivale {

class WrapButton : public QPushButton {
    Q_OBJECT
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

} // namespace marivale
