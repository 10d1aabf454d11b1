#include "tests/program/look_support.h"

// Qt
#include <QApplication>
#include <QDir>
#include <QTimer>

// Marivale
#include "engine/game.h"
#include "play/game_variant.h"
#include "tests/support/hand_text.h"
#include "tests/support/legibility.h"
#include "tests/support/text_fit.h"
#include "ui/design_look.h"

namespace marivale::testing {

Visit::Visit(GameId g, float playUnit) : game(g) {
    state.PlayUnit = playUnit;
    state.NetWinLoss = 0.0f;
    state.DoubleUpEnabled = kTrue;
    menu.setObjectName(QStringLiteral("frmMain"));
    menu.resize(300, 200);
    menu.show();
    board = new GameBoard(variantFor(game), state, random, programBoardWindows(), &menu);
    board->show();
}

void Visit::click(const QString& name) const {
    if (auto* button = find<QAbstractButton>(name); button != nullptr && button->isEnabled()) {
        button->click();
    }
    QCoreApplication::processEvents();
}

void Visit::deal(const char* cards) {
    for (const int code : cardsFromText(cards)) {
        random.pushIndex(code, deckSize(game));
    }
    click(QStringLiteral("DrawDeal"));
}

QRect Visit::placeOf(const QString& name) const {
    QWidget* widget = find(name);
    return QRect(widget->mapTo(board, QPoint(0, 0)), widget->size());
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

void clickIn(QWidget& window, const QString& name) {
    if (auto* button = window.findChild<QAbstractButton*>(name)) {
        button->click();
    }
}

void saveShot(QWidget& window, const QString& name) {
    const QString dir = qEnvironmentVariable("MARIVALE_SHOTS");
    if (!dir.isEmpty()) {
        window.grab().save(QDir(dir).absoluteFilePath(name + QStringLiteral(".png")));
    }
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
