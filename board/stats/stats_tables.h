#pragma once

// The two tables at the top of the statistics window: the summary of the visit and of the run,
// and how often each paying hand came against how often the best play makes it come.

// Standard library
#include <array>
#include <optional>

// Qt
#include <QString>

// Marivale
#include "engine/odds/game_odds.h"
#include "play/stats/luck.h"
#include "play/stats/session_stats.h"

class QTableWidget;
class QWidget;

namespace marivale {

// Rows of the summary table, top to bottom.
enum class SummaryRow {
    Hands,
    Bet,
    Paid,
    Return,
    ExactReturn,
    ResultBets,
    ExpectedBets,
    Luck,
    SkillCost,
    DoubleUpOffered,
    DoubleUpPlayed,
    DoubleUpWon,
    DoubleUpHighest,
    Bonuses,
    BonusFactor,
    Mistakes,
    MistakeCost,
    Hinted,
    Count
};

// Columns of the summary table.
inline constexpr int kVisitColumn = 0;
inline constexpr int kRunColumn = 1;

QTableWidget* makeSummaryTable(QWidget* parent);
// The exact returns are the visit's game's and the run's, weighted by the bets on each game;
// nothing while they are being worked out. The luck and skill are the visit's and the run's.
void showSummaryTable(QTableWidget& table, const SessionStats& stats,
                      std::optional<double> visitExact, std::optional<double> runExact,
                      const std::array<LuckSummary, 2>& luck);

// Columns of the frequency table: hand, count and expected count in the visit, then the same
// over the run's hands of this game.
inline constexpr int kFrequencyColumns = 5;

QTableWidget* makeFrequencyTable(QWidget* parent);
void showFrequencyTable(QTableWidget& table, const SessionStats& stats,
                        const std::optional<odds::GameOdds>& gameOdds);

} // namespace marivale
