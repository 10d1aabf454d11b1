#include "board/strategy/game_figures.h"

// Qt
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QTableWidget>
#include <QVBoxLayout>

// Marivale
#include "engine/hand_analysis.h"
#include "engine/hand_names.h"
#include "ui/number_box.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr int kColumns = 4;
// Column widths in pixels: hand, pays, frequency, one in.
constexpr std::array<int, kColumns> kColumnWidth{176, 92, 84, 84};
constexpr int kRowHeight = 22;

// The name of a paying code as the figures list it.
QString handLabel(GameId game, int code) {
    const std::string_view name = RowName(game, static_cast<std::uint8_t>(code));
    return QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size()));
}

QTableWidgetItem* makeItem(const QString& text, Qt::Alignment alignment) {
    auto* item = new QTableWidgetItem(text);
    item->setTextAlignment(alignment | Qt::AlignVCenter);
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}

void setFrequency(QTableWidget& table, int row, double probability) {
    table.setItem(row, GameFigures::kFrequencyColumn,
                  makeItem(percentText(probability, 4), Qt::AlignRight));
    table.setItem(
        row, GameFigures::kFrequencyColumn + 1,
        makeItem(probability > 0.0 ? decimalText(1.0 / probability, 1) : QStringLiteral("-"),
                 Qt::AlignRight));
}

} // namespace

GameFigures::GameFigures(GameId game, QWidget* parent)
    : QWidget(parent), game_(game), named_(odds::namedTablesOf(game)) {
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    auto* noteRow = new QHBoxLayout;
    tableNote_ = new QLabel(this);
    tableNote_->setObjectName(QStringLiteral("PayTableNote"));
    tableNote_->setTextFormat(Qt::RichText);
    noteRow->addWidget(tableNote_, 1);
    boardTable_ = new QPushButton(tr("Board's table"), this);
    boardTable_->setObjectName(QStringLiteral("BoardTable"));
    noteRow->addWidget(boardTable_);
    layout->addLayout(noteRow);
    connect(boardTable_, &QPushButton::clicked, this, &GameFigures::boardTableAsked);
    buildTableChoice(*layout);
    // Wrapped, so that a huge figure of an edited table never widens the window for good.
    returnLabel_ = new QLabel(this);
    returnLabel_->setObjectName(QStringLiteral("GameReturn"));
    returnLabel_->setWordWrap(true);
    layout->addWidget(returnLabel_);
    varianceLabel_ = new QLabel(this);
    varianceLabel_->setObjectName(QStringLiteral("GameVariance"));
    varianceLabel_->setWordWrap(true);
    layout->addWidget(varianceLabel_);

    const bool bonus = facts(game).bonus != Bonus::None;
    const int rows = topCode(game) + (bonus ? 1 : 0);
    hits_ = new QTableWidget(rows, kColumns, this);
    hits_->setObjectName(QStringLiteral("HitFrequencies"));
    hits_->setHorizontalHeaderLabels({tr("Hand"), tr("Pays"), tr("Frequency"), tr("1 in")});
    hits_->verticalHeader()->hide();
    hits_->verticalHeader()->setDefaultSectionSize(kRowHeight);
    hits_->horizontalHeader()->setSectionResizeMode(QHeaderView::Fixed);
    hits_->horizontalHeader()->setStretchLastSection(true);
    for (int column = 0; column < kColumns; ++column) {
        hits_->setColumnWidth(column, kColumnWidth[column]);
    }
    hits_->setSelectionMode(QAbstractItemView::NoSelection);
    hits_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    hits_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hits_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    hits_->setFixedHeight(hits_->horizontalHeader()->sizeHint().height() + rows * kRowHeight +
                          2 * hits_->frameWidth());
    int width = 2 * hits_->frameWidth();
    for (const int column : kColumnWidth) {
        width += column;
    }
    hits_->setMinimumWidth(width);
    int row = 0;
    for (int code = topCode(game); code >= 1; --code, ++row) {
        hits_->setItem(row, 0, makeItem(handLabel(game, code), Qt::AlignLeft));
        auto* pay = new NumberBox(hits_);
        pay->setObjectName(QStringLiteral("Pay%1").arg(code));
        pay->setRange(0.0, kMostPay);
        pay->setDecimals(2);
        pay->setPrefix(QStringLiteral("\u00d7"));
        pay->setFrame(false);
        pay->setAlignment(Qt::AlignRight);
        hits_->setCellWidget(row, kPaysColumn, pay);
        pays_.push_back(pay);
        connect(pay, &QDoubleSpinBox::valueChanged, this, [this, code](double value) {
            inputNote_->hide();
            emit multiplierEdited(code, value);
        });
        connect(pay, &NumberBox::refused, this, [this](const QString& typed) {
            inputNote_->setText(tr("\u201c%1\u201d is not a multiplier from 0 to %2.")
                                    .arg(typed, countText(static_cast<long long>(kMostPay))));
            inputNote_->show();
        });
    }
    if (bonus) {
        hits_->setItem(row, 0, makeItem(tr("Treasure Hunt, one chest"), Qt::AlignLeft));
    }
    layout->addWidget(hits_);
    inputNote_ = new QLabel(this);
    inputNote_->setObjectName(QStringLiteral("PayNote"));
    inputNote_->setWordWrap(true);
    inputNote_->hide();
    layout->addWidget(inputNote_);
    showComputing();
}

// A choice of the board's table and the game's well-known ones, for games that have any.
void GameFigures::buildTableChoice(QVBoxLayout& layout) {
    if (named_.empty()) {
        return;
    }
    auto* row = new QHBoxLayout;
    tableChoice_ = new QComboBox(this);
    tableChoice_->setObjectName(QStringLiteral("PayTableChoice"));
    tableChoice_->addItem(tr("The board's table"));
    for (const odds::NamedTable& table : named_) {
        tableChoice_->addItem(
            QString::fromUtf8(table.title.data(), static_cast<qsizetype>(table.title.size())));
    }
    auto* caption = new QLabel(tr("Ta&ble:"), this);
    caption->setBuddy(tableChoice_);
    row->addWidget(caption);
    row->addWidget(tableChoice_, 1);
    layout.addLayout(row);
    connect(tableChoice_, &QComboBox::activated, this, [this](int index) {
        if (index == 0) {
            emit boardTableAsked();
        } else if (index <= static_cast<int>(named_.size())) {
            emit tableChosen(odds::payScaleOf(named_[static_cast<std::size_t>(index - 1)]));
        }
    });
}

// The well-known table a scale is, if any.
// The entry of the choice whose table has exactly these pays.
const odds::NamedTable* GameFigures::namedTableOf(const odds::PayScale& scale) const {
    const odds::NamedTable* found = odds::findNamedTable(game_, scale);
    for (const odds::NamedTable& table : named_) {
        if (found != nullptr && table.name == found->name) {
            return &table;
        }
    }
    return nullptr;
}

// Selects the table on show in the choice; a table edited by hand gets an entry of its own.
void GameFigures::showTableChoice(const odds::NamedTable* named, bool edited) {
    if (tableChoice_ == nullptr) {
        return;
    }
    const QSignalBlocker quiet(tableChoice_);
    const int handEdited = static_cast<int>(named_.size()) + 1;
    if (tableChoice_->count() > handEdited) {
        tableChoice_->removeItem(handEdited);
    }
    if (!edited) {
        tableChoice_->setCurrentIndex(0);
    } else if (named != nullptr) {
        tableChoice_->setCurrentIndex(static_cast<int>(named - named_.data()) + 1);
    } else {
        tableChoice_->addItem(tr("Edited by hand"));
        tableChoice_->setCurrentIndex(handEdited);
    }
}

void GameFigures::showScale(const odds::PayScale& scale, bool edited) {
    const odds::NamedTable* named = edited ? namedTableOf(scale) : nullptr;
    const QString title =
        named != nullptr
            ? QString::fromUtf8(named->title.data(), static_cast<qsizetype>(named->title.size()))
            : tr("Edited pay table");
    tableNote_->setText(edited ? tr("<span style=\"color:#b00000\"><b>%1</b>: not the board's, "
                                    "which pays its own.</span>")
                                     .arg(title)
                               : tr("The board's pay table."));
    boardTable_->setEnabled(edited);
    showTableChoice(named, edited);
    int row = 0;
    for (int code = topCode(game_); code >= 1; --code, ++row) {
        QDoubleSpinBox* pay = pays_[row];
        const QSignalBlocker quiet(pay);
        pay->setValue(scale.multiplier[code]);
    }
    if (facts(game_).bonus != Bonus::None) {
        hits_->setItem(
            row, kPaysColumn,
            makeItem(QStringLiteral("+") + QString::number(scale.bonus) + QStringLiteral(" avg"),
                     Qt::AlignRight));
    }
}

void GameFigures::showComputing() {
    returnLabel_->setText(tr("Return with the best play: computing\u2026"));
    varianceLabel_->clear();
    for (int row = 0; row < hits_->rowCount(); ++row) {
        for (int column = kFrequencyColumn; column < kColumns; ++column) {
            hits_->setItem(row, column, nullptr);
        }
    }
}

void GameFigures::showOdds(const odds::GameOdds& result, const odds::PayScale& scale, bool edited) {
    returnLabel_->setText(
        tr("Return with the best play: <b>%1</b>").arg(percentText(result.expectedReturn, 4)));
    varianceLabel_->setText(
        tr("Variance of a hand: <b>%1</b> bets\u00b2 &nbsp; standard "
           "deviation: <b>%2</b> bets")
            .arg(decimalText(result.variance, 4), decimalText(result.standardDeviation(), 4)));
    showScale(scale, edited);
    int row = 0;
    for (int code = topCode(game_); code >= 1; --code, ++row) {
        setFrequency(*hits_, row, result.codeProbability[code]);
    }
    if (facts(game_).bonus != Bonus::None) {
        setFrequency(*hits_, row, result.bonusProbability);
    }
}

} // namespace marivale
