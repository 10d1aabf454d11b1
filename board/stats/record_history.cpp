#include "board/stats/record_history.h"

// Qt
#include <QCheckBox>
#include <QComboBox>
#include <QDateEdit>
#include <QFileDialog>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QTableView>
#include <QVBoxLayout>

// Marivale
#include "board/stats/record_model.h"
#include "play/game_variant.h"
#include "record/record_store.h"

namespace marivale {

RecordHistory::RecordHistory(RecordStore& store, QWidget* parent) : QWidget(parent), store_(store) {
    setObjectName(QStringLiteral("RecordHistory"));
    auto* layout = new QVBoxLayout(this);
    auto* filters = new QHBoxLayout;
    game_ = new QComboBox(this);
    game_->setObjectName(QStringLiteral("RecordGame"));
    game_->addItem(tr("All games"));
    for (const GameId game : kAllGames) {
        const std::string_view title = variantFor(game).title;
        game_->addItem(QString::fromUtf8(title.data(), static_cast<qsizetype>(title.size())),
                       static_cast<int>(game));
    }
    dated_ = new QCheckBox(tr("From"), this);
    from_ = new QDateEdit(QDate::currentDate().addMonths(-1), this);
    to_ = new QDateEdit(QDate::currentDate(), this);
    for (QDateEdit* edit : {from_, to_}) {
        edit->setCalendarPopup(true);
        edit->setDisplayFormat(QStringLiteral("yyyy-MM-dd"));
        edit->setEnabled(false);
    }
    mistakes_ = new QCheckBox(tr("&Mistakes only"), this);
    mistakes_->setObjectName(QStringLiteral("RecordMistakes"));
    filters->addWidget(game_);
    filters->addWidget(dated_);
    filters->addWidget(from_);
    filters->addWidget(new QLabel(tr("to"), this));
    filters->addWidget(to_);
    filters->addWidget(mistakes_);
    filters->addStretch(1);
    auto* exportButton = new QPushButton(tr("Export &Filter\u2026"), this);
    exportButton->setObjectName(QStringLiteral("ExportRecord"));
    exportButton->setToolTip(tr("Write the hands of this filter to a CSV file"));
    filters->addWidget(exportButton);
    layout->addLayout(filters);

    model_ = new RecordModel(this);
    view_ = new QTableView(this);
    view_->setObjectName(QStringLiteral("RecordedHands"));
    view_->setModel(model_);
    view_->verticalHeader()->hide();
    view_->setWordWrap(false);
    view_->verticalHeader()->setDefaultSectionSize(view_->fontMetrics().height() + 6);
    view_->setSelectionBehavior(QAbstractItemView::SelectRows);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->horizontalHeader()->setStretchLastSection(true);
    layout->addWidget(view_, 1);

    connect(game_, &QComboBox::currentIndexChanged, this, [this] { refresh(); });
    connect(mistakes_, &QCheckBox::toggled, this, [this] { refresh(); });
    connect(dated_, &QCheckBox::toggled, this, [this](bool on) {
        from_->setEnabled(on);
        to_->setEnabled(on);
        refresh();
    });
    connect(from_, &QDateEdit::dateChanged, this, [this] { refresh(); });
    connect(to_, &QDateEdit::dateChanged, this, [this] { refresh(); });
    connect(exportButton, &QPushButton::clicked, this, &RecordHistory::exportClicked);
}

HistoryFilter RecordHistory::filter() const {
    HistoryFilter filter;
    if (game_->currentIndex() > 0) {
        filter.game = static_cast<GameId>(game_->currentData().toInt());
    }
    if (dated_->isChecked()) {
        filter.from = from_->date().startOfDay().toMSecsSinceEpoch();
        filter.to = to_->date().addDays(1).startOfDay().toMSecsSinceEpoch();
    }
    filter.mistakesOnly = mistakes_->isChecked();
    return filter;
}

void RecordHistory::refresh() {
    if (store_.recording()) {
        model_->show(store_.database(), filter());
    }
}

bool RecordHistory::exportTo(const QString& path) {
    return store_.recording() && exportRecord(store_.database(), filter(), path);
}

void RecordHistory::exportClicked() {
    const QString path =
        QFileDialog::getSaveFileName(this, tr("Export Recorded Hands"),
                                     QStringLiteral("recorded-hands.csv"), tr("CSV files (*.csv)"));
    if (!path.isEmpty() && !exportTo(path)) {
        QMessageBox::warning(this, tr("Export Recorded Hands"),
                             tr("The recorded hands could not be written to %1.").arg(path));
    }
}

} // namespace marivale
