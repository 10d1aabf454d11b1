#include "tests/program/look_support.h"

// Qt
#include <QApplication>
#include <QTimer>

// Marivale
#include "tests/support/legibility.h"
#include "tests/support/test_support.h"
#include "tests/support/text_fit.h"
#include "ui/design_look.h"

namespace marivale::testing {

MenuStandIn::MenuStandIn() {
    menu.setObjectName(QStringLiteral("frmMain"));
    menu.resize(300, 200);
    menu.show();
}

Visit::Visit(GameId g, float playUnit) : BoardFixture(g, 0.0f, playUnit, true, &menu) {}

void Visit::deal(const char* cards) {
    script(cards);
    click(QStringLiteral("DrawDeal"));
}

QRect Visit::placeOf(const QString& name) const {
    QWidget* widget = find(name);
    return QRect(widget->mapTo(board.get(), QPoint(0, 0)), widget->size());
}

void whenModal(const QString& name, std::function<void(QWidget&)> action) {
    auto* poll = new QTimer;
    poll->setInterval(5);
    QObject::connect(poll, &QTimer::timeout, poll, [poll, name, action = std::move(action)] {
        QWidget* modal = QApplication::activeModalWidget();
        if (modal != nullptr && modal->objectName() == name) {
            poll->stop();
            poll->deleteLater();
            action(*modal);
        } else if (poll->property("ticks").toInt() > 600) {
            poll->stop();
            poll->deleteLater();
            if (modal != nullptr) {
                modal->close();
            }
        }
        poll->setProperty("ticks", poll->property("ticks").toInt() + 1);
    });
    poll->start();
}

void Faults::add(const QString& where, const QStringList& found) {
    for (const QString& fault : found) {
        lines_ << where + QStringLiteral(": ") + fault;
    }
}

void Faults::expect(const QString& where, bool ok, const QString& what) {
    if (!ok) {
        lines_ << where + QStringLiteral(": ") + what;
    }
}

void Faults::whole(const QString& where, QWidget& window) {
    saveShot(window, where + QStringLiteral(".png"));
    add(where, cutTexts(window));
    add(where, illegibleTexts(window));
    QList<QWidget*> controls = shownControls(window);
    controls << &window;
    for (const QWidget* control : controls) {
        const QFont font = control->font();
        expect(where, font.family() == QLatin1String(kDesignFamily) && font.pixelSize() > 0,
               control->objectName() + QStringLiteral(" is not in the design face"));
    }
}

QString Faults::report() const {
    return QStringLiteral("%1 faults:\n").arg(lines_.size()) + lines_.join('\n');
}

} // namespace marivale::testing
