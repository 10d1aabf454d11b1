#include "tests/support/board_fixture.h"

// Qt
#include <QApplication>
#include <QLabel>
#include <QTimer>
#include <QtTest>

// Marivale
#include "tests/support/hand_text.h"
#include "ui/card_pictures.h"

namespace marivale::testing {

BoardFixture::BoardFixture(GameId g, float netWinLoss, float playUnit, bool doubleUp,
                           QWidget* parent, SessionStats* stats)
    : game(g) {
    state.PlayUnit = playUnit;
    state.NetWinLoss = netWinLoss;
    state.DoubleUpEnabled = doubleUp ? kTrue : kFalse;
    board = std::make_unique<GameBoard>(variantFor(game), state, random, programBoardWindows(),
                                        parent, stats);
    board->show();
}

BoardFixture::~BoardFixture() = default;

QString BoardFixture::text(const QString& name) const {
    QWidget* widget = find(name);
    if (auto* edit = qobject_cast<QLineEdit*>(widget))
        return edit->text();
    if (auto* label = qobject_cast<QLabel*>(widget))
        return label->text();
    if (auto* button = qobject_cast<QAbstractButton*>(widget))
        return button->text();
    return QStringLiteral("<no %1>").arg(name);
}

void BoardFixture::click(const QString& name) {
    auto* button = find<QAbstractButton>(name);
    QVERIFY2(button != nullptr, qPrintable(name));
    button->click();
    QCoreApplication::processEvents();
}

void BoardFixture::script(const char* cards) {
    for (const int code : cardsFromText(cards)) {
        random.pushIndex(code, deckSize(game));
    }
}

void BoardFixture::buy(int option) {
    find<QAbstractButton>(QStringLiteral("POption%1").arg(option))->click();
    click(QStringLiteral("Purchase"));
}

QString BoardFixture::picture(int position) const {
    return find(QStringLiteral("Card%1").arg(position))
        ->property(CardPictures::kPictureProperty)
        .toString();
}

void answerModal(std::function<void(QWidget&)> action) {
    QTimer::singleShot(0, [action = std::move(action)] {
        if (QWidget* modal = QApplication::activeModalWidget()) {
            action(*modal);
        }
    });
}

void clickIn(QWidget& window, const QString& name) {
    auto* button = window.findChild<QAbstractButton*>(name);
    if (button != nullptr) {
        button->click();
    }
}

} // namespace marivale::testing
