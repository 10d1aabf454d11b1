#include "board/advisor/game_figures.h"

// Qt
#include <QHeaderView>
#include <QLabel>
#include <QTableWidget>
#include <QVBoxLayout>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"

namespace marivale {
namespace {

constexpr int kColumns = 4;
// Column widths in pixels: hand, pays, frequency, one in.
constexpr std::array<int, kColumns> kColumnWidth{176, 84, 84, 84};
constexpr int kRowHeight = 18;

// The name of a paying code as the figures list it.
QString handLabel(GameId game, int code) {
    if (game == GameId::JacksOrBetter && code == 1) {
        return QObject::tr("Jacks or Better");
    }
    if (game == GameId::JokerWild && code == 1) {
        return QObject::tr("Two Pair or Aces");
    }
    return QString::fromUtf8(
        CodeName(game, static_cast<std::uint8_t>(code)).data(),
        static_cast<qsizetype>(CodeName(game, static_cast<std::uint8_t>(code)).size()));
}

QTableWidgetItem* makeItem(const QString& text, Qt::Alignment alignment) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}

void setRow(QTableWidget& table, int row, const QString& hand, const QString& pays,
            double probability) {
    table.setItem(row, 0, makeItem(hand, Qt::AlignLeft));
    table.setItem(row, 1, makeItem(pays, Qt::AlignRight));
    table.setItem(row, 2,
                  makeItem(QString::number(100.0 * probability, 'f', 4) + '%', Qt::AlignRight));
    table.setItem(row, 3,
                  makeItem(probability > 0.0 ? QString::number(1.0 / probability, 'f', 1)
                                             : QStringLiteral("-"),
                           Qt::AlignRight));
}

} // namespace

GameFigures::GameFigures(GameId game, QWidget* parent) : QWidget(parent), game_(game) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    returnLabel_ = new QLabel(this);
    returnLabel_->setObjectName(QStringLiteral("GameReturn"));
    layout->addWidget(returnLabel_);

    const bool bonus = game == GameId::TreasureTrips;
    const int rows = topCode(game) + (bonus ? 1 : 0);
    hits_ = new QTableWidget(rows, kColumns, this);
    hits_->setObjectName(QStringLiteral("HitFrequencies"));
    hits_->setHorizontalHeaderLabels({tr("Hand"), tr("Pays"), tr("Frequency"), tr("1 in")});
    hits_->verticalHeader()->hide();
    hits_->verticalHeader()->setDefaultSectionSize(kRowHeight);
    hits_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    hits_->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < kColumns; ++column) {
        hits_->setColumnWidth(column, kColumnWidth[static_cast<std::size_t>(column)]);
    }
    hits_->setSelectionMode(QAbstractItemView::NoSelection);
    hits_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    hits_->setFocusPolicy(Qt::NoFocus);
    hits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hits_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hits_->setFixedHeight(hits_->horizontalHeader()->sizeHint().height() + rows * kRowHeight +
                          2 * hits_->frameWidth());
    layout->addWidget(hits_);
    showComputing();
}

void GameFigures::showComputing() {
    returnLabel_->setText(tr("Return with the best play: computing\u2026"));
    hits_->clearContents();
}

void GameFigures::showOdds(const odds::GameOdds& result, const odds::PayScale& scale) {
    returnLabel_->setText(tr("Return with the best play: <b>%1%</b>")
                              .arg(QString::number(100.0 * result.expectedReturn, 'f', 4)));
    int row = 0;
    for (int code = topCode(game_); code >= 1; --code, ++row) {
        setRow(*hits_, row, handLabel(game_, code),
               QStringLiteral("\u00d7") +
                   QString::number(scale.multiplier[static_cast<std::size_t>(code)]),
               result.codeProbability[static_cast<std::size_t>(code)]);
    }
    if (game_ == GameId::TreasureTrips) {
        setRow(*hits_, row, tr("Treasure Hunt, one chest"),
               QStringLiteral("+") + QString::number(scale.bonus) + QStringLiteral(" avg"),
               result.bonusProbability);
    }
}

} // namespace marivale
