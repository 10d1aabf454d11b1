#pragma once

// A strategy chart on paper: one page with the game, the pay table, the chart's return and cost
// against the best play, and every line with its example deal, share of deals and return.

// Qt
#include <QString>

// Marivale
#include "engine/odds/derived_chart.h"
#include "engine/odds/pay_scale.h"

class QPagedPaintDevice;

namespace marivale {

// A deal as rich text: the cards held in their inks, the discards grey.
QString chartExampleHtml(const HandCards& cards, unsigned held);

// The page as rich text; `tableName` says whose pay table it is.
QString chartPageHtml(const odds::DerivedChart& chart, const odds::PayScale& scale,
                      const QString& tableName);

// Lays the page out on the device, its type made smaller until it fits one page.
void printChartPage(const QString& html, QPagedPaintDevice& device);

// Writes the page to a PDF file; false when the file can't be written.
bool saveChartPdf(const QString& html, const QString& path);

} // namespace marivale
