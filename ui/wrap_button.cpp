#include "ui/wrap_button.h"

// Qt
#include <QFontMetrics>
#include <QStyleOptionButton>
#include <QStylePainter>

namespace marivale {

namespace {

// The narrowest rectangle, centred in the area, that holds the text in as few rows as the whole
// area does, so the rows come out balanced ("Low Card" over "2 - 7 Wins").
QRect balancedRect(const QFontMetrics& metrics, const QRect& area, int flags, const QString& text) {
    const int rows = metrics.boundingRect(area, flags, text).height();
    int narrow = 1;
    int wide = area.width();
    while (narrow < wide) {
        const int middle = (narrow + wide) / 2;
        const QRect trial(area.topLeft(), QSize(middle, area.height()));
        if (metrics.boundingRect(trial, flags, text).height() <= rows) {
            wide = middle;
        } else {
            narrow = middle + 1;
        }
    }
    QRect result(0, 0, wide, area.height());
    result.moveCenter(area.center());
    return result;
}

} // namespace

// Draws the button's frame without text, then the caption wrapped and centred inside it.
void WrapButton::paintEvent(QPaintEvent* /*event*/) {
    QStylePainter painter(this);
    QStyleOptionButton option;
    initStyleOption(&option);
    const QString caption = option.text;
    option.text.clear();
    painter.drawControl(QStyle::CE_PushButtonBevel, option);

    const QRect area = style()
                           ->subElementRect(QStyle::SE_PushButtonContents, &option, this)
                           .adjusted(4, 2, -4, -2);
    int flags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;
    if (!style()->styleHint(QStyle::SH_UnderlineShortcut, &option, this)) {
        flags |= Qt::TextHideMnemonic;
    }
    painter.drawItemText(balancedRect(fontMetrics(), area, flags, caption), flags, option.palette,
                         isEnabled(), caption, QPalette::ButtonText);
    if (option.state & QStyle::State_HasFocus) {
        QStyleOptionFocusRect focus;
        focus.QStyleOption::operator=(option);
        focus.rect = style()->subElementRect(QStyle::SE_PushButtonFocusRect, &option, this);
        painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
    }
}

} // namespace marivale
