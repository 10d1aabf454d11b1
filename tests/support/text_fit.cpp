#include "tests/support/text_fit.h"

// Standard library
#include <algorithm>
#include <cmath>

// Qt
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QFontMetrics>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOption>
#include <QTextDocument>

namespace marivale::testing {

namespace {

// Room a line edit keeps between its frame and its text on each side.
constexpr int kLineEditMarginX = 2;
constexpr int kLineEditMarginY = 1;
// Room the wrapping guess buttons keep inside their contents rectangle.
constexpr int kWrapInsetX = 4;
constexpr int kWrapInsetY = 2;

// The text as drawn: an access-key '&' is not shown, "&&" shows one '&'.
QString shownText(const QString& text) {
    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('&') && i + 1 < text.size()) {
            ++i;
        }
        shown += text[i];
    }
    return shown;
}

QString nameOf(const QWidget& widget) {
    const QString name = widget.objectName();
    return name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name;
}

// The space a one-line text needs in a font.
QSize lineSize(const QFontMetrics& metrics, const QString& text) {
    int width = 0;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString& line : lines) {
        width = std::max(width, metrics.horizontalAdvance(line));
    }
    return {width, metrics.height() * static_cast<int>(lines.size())};
}

// The space a label's text needs, wrapped at the room's width when the label wraps.
QSize labelNeed(const QLabel& label, const QRect& room) {
    const QString text = label.text();
    const bool rich = label.textFormat() == Qt::RichText ||
                      (label.textFormat() == Qt::AutoText && Qt::mightBeRichText(text));
    if (rich) {
        QTextDocument document;
        document.setDefaultFont(label.font());
        document.setDocumentMargin(0);
        document.setHtml(text);
        if (label.wordWrap()) {
            document.setTextWidth(room.width());
        }
        return {static_cast<int>(std::ceil(document.idealWidth())),
                static_cast<int>(std::ceil(document.size().height()))};
    }
    const QFontMetrics metrics(label.font());
    if (!label.wordWrap()) {
        return lineSize(metrics, text);
    }
    // A wrapped label still needs room for its longest word.
    int longestWord = 0;
    for (const QString& word : text.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        longestWord = std::max(longestWord, metrics.horizontalAdvance(word));
    }
    const QRect wrapped = metrics.boundingRect(QRect(0, 0, room.width(), 100000),
                                               Qt::TextWordWrap | label.alignment(), text);
    return {std::max(longestWord, std::min(wrapped.width(), room.width())), wrapped.height()};
}

// The room each kind of control gives its text, and the space the text needs; false when the
// control shows no text.
bool roomAndNeed(const QWidget& widget, QRect& room, QSize& need) {
    const QFontMetrics metrics(widget.font());
    QStyle* style = widget.style();
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty()) {
            return false;
        }
        const int margin = label->margin();
        room = label->contentsRect().adjusted(margin, margin, -margin, -margin);
        need = labelNeed(*label, room);
        return true;
    }
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
        if (button->text().isEmpty()) {
            return false;
        }
        QStyleOptionButton option;
        option.initFrom(button);
        option.text = button->text();
        option.icon = button->icon();
        option.iconSize = button->iconSize();
        const QString text = shownText(button->text());
        if (qobject_cast<const QRadioButton*>(button) != nullptr) {
            room = style->subElementRect(QStyle::SE_RadioButtonContents, &option, button);
        } else {
            room = style->subElementRect(QStyle::SE_PushButtonContents, &option, button);
        }
        if (button->inherits("marivale::WrapButton")) {
            room = room.adjusted(kWrapInsetX, kWrapInsetY, -kWrapInsetX, -kWrapInsetY);
            need = metrics.boundingRect(room, Qt::AlignCenter | Qt::TextWordWrap, text).size();
            return true;
        }
        need = lineSize(metrics, text);
        if (!button->icon().isNull()) {
            need.rwidth() += button->iconSize().width() + 4;
        }
        return true;
    }
    if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
        if (edit->text().isEmpty()) {
            return false;
        }
        QStyleOptionFrame option;
        option.initFrom(edit);
        option.lineWidth =
            edit->hasFrame() ? style->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, edit) : 0;
        room =
            style->subElementRect(QStyle::SE_LineEditContents, &option, edit)
                .marginsRemoved(edit->textMargins())
                .adjusted(kLineEditMarginX, kLineEditMarginY, -kLineEditMarginX, -kLineEditMarginY);
        need = lineSize(metrics, edit->text());
        return true;
    }
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) {
        if (box->title().isEmpty()) {
            return false;
        }
        QStyleOptionGroupBox option;
        option.initFrom(box);
        option.text = box->title();
        option.lineWidth = 1;
        option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
        option.textAlignment = box->alignment();
        room = style->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, box)
                   .intersected(box->rect());
        need = lineSize(metrics, shownText(box->title()));
        return true;
    }
    return false;
}

} // namespace

QList<QWidget*> shownControls(const QWidget& window) {
    QList<QWidget*> shown;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        bool own = true;
        for (const QWidget* up = widget; up != &window && own; up = up->parentWidget()) {
            own = !up->isWindow();
        }
        if (own && widget->isVisibleTo(&window)) {
            shown << widget;
        }
    }
    return shown;
}

namespace {

// A parent that does not hold the whole control cuts off what lies outside it; what scrolls
// inside a scroll area is left out.
QString cutByParent(const QWidget& widget, const QWidget& window) {
    QRect area = widget.rect();
    for (const QWidget* w = &widget; w != &window; w = w->parentWidget()) {
        area.translate(w->pos());
        const QWidget* parent = w->parentWidget();
        if (qobject_cast<const QAbstractScrollArea*>(parent->parentWidget()) != nullptr) {
            return {};
        }
        if (!parent->rect().contains(area)) {
            return QStringLiteral("%1 runs outside %2").arg(nameOf(widget), nameOf(*parent));
        }
    }
    return {};
}

} // namespace

QStringList cutTexts(const QWidget& window) {
    QStringList faults;
    const QList<QWidget*> controls = shownControls(window);
    QList<QWidget*> texts;
    for (QWidget* widget : controls) {
        QRect room;
        QSize need;
        if (!roomAndNeed(*widget, room, need)) {
            continue;
        }
        texts << widget;
        if (need.width() > room.width() || need.height() > room.height()) {
            faults << QStringLiteral("%1 \"%2\" needs %3x%4 px, has %5x%6")
                          .arg(nameOf(*widget), widget->property("text").toString())
                          .arg(need.width())
                          .arg(need.height())
                          .arg(room.width())
                          .arg(room.height());
        }
        const QString outside = cutByParent(*widget, window);
        if (!outside.isEmpty()) {
            faults << outside;
        }
    }
    // Two texts side by side in one parent must not cover each other.
    for (int i = 0; i < texts.size(); ++i) {
        for (int j = i + 1; j < texts.size(); ++j) {
            const QWidget* a = texts[i];
            const QWidget* b = texts[j];
            if (a->parentWidget() == b->parentWidget() && a->geometry().intersects(b->geometry())) {
                faults << QStringLiteral("%1 and %2 overlap").arg(nameOf(*a), nameOf(*b));
            }
        }
    }
    return faults;
}

} // namespace marivale::testing
