#include "board/strategy/chart_print.h"

// Qt
#include <QAbstractTextDocumentLayout>
#include <QFile>
#include <QImage>
#include <QObject>
#include <QPagedPaintDevice>
#include <QPainter>
#include <QPdfWriter>
#include <QStringList>
#include <QTextDocument>

// Marivale
#include "engine/hand_names.h"
#include "play/game_variant.h"
#include "ui/card_text.h"
#include "ui/number_text.h"

namespace marivale {
namespace {

constexpr double kLargestPoint = 10.0;
constexpr double kSmallestPoint = 4.0;
constexpr double kPointStep = 0.5;
constexpr int kPdfResolution = 300;
constexpr double kLayoutDpi = 96.0;
constexpr double kPointsPerInch = 72.0;
constexpr double kMetresPerInch = 0.0254;

QString escaped(const std::string& text) {
    return QString::fromStdString(text).toHtmlEscaped();
}

QString payTableHtml(GameId game, const odds::PayScale& scale) {
    QString rows;
    for (int code = topCode(game); code >= 1; --code) {
        rows += QStringLiteral("<tr><td>%1</td><td align=right>%2</td></tr>")
                    .arg(QString::fromUtf8(RowName(game, static_cast<std::uint8_t>(code)).data())
                             .toHtmlEscaped(),
                         decimalText(scale.multiplier[code], 0));
    }
    return QStringLiteral("<table cellspacing=0 cellpadding=1>%1</table>").arg(rows);
}

} // namespace

QString chartExampleHtml(const HandCards& cards, unsigned held) {
    QStringList faces;
    for (int p = 0; p < kHandSize; ++p) {
        faces << (((held >> p) & 1u) != 0
                      ? QStringLiteral("<b>%1</b>").arg(cardHtml(cards[p]))
                      : QStringLiteral("<span style=\"color:#a0a0a0\">%1</span>")
                            .arg(cardFaceText(cards[p]).toHtmlEscaped()));
    }
    return faces.join(QLatin1Char(' '));
}

QString chartPageHtml(const odds::DerivedChart& chart, const odds::PayScale& scale,
                      const QString& tableName) {
    const GameVariant& variant = variantFor(chart.game);
    QString lines;
    int number = 0;
    for (const odds::ChartRow& row : chart.rows) {
        lines += QStringLiteral("<tr><td align=right>%1</td><td>%2</td><td>%3</td>"
                                "<td align=right>%4</td><td align=right>%5</td></tr>")
                     .arg(++number)
                     .arg(escaped(row.name), chartExampleHtml(row.example, row.exampleHold),
                          percentText(row.share, 3), decimalText(row.meanReturn, 4));
    }
    const QString title =
        QString::fromUtf8(variant.title.data(), static_cast<qsizetype>(variant.title.size()));
    return QStringLiteral(
               "<h2>%1: %2</h2><p>%3</p>%4"
               "<p><b>%5</b></p>"
               "<table width=100% cellspacing=0 cellpadding=2 border=1><tr><th width=4%>#</th><th "
               "width=46%>%6</th>"
               "<th width=26%>%7</th><th width=12%>%8</th><th width=12%>%9</th></tr>%10</table>")
        .arg(title.toHtmlEscaped(),
             chart.kind == odds::ChartKind::Simple ? QObject::tr("simple strategy chart")
                                                   : QObject::tr("complete strategy chart"),
             tableName.toHtmlEscaped(), payTableHtml(chart.game, scale),
             QObject::tr("Chart return %1 &nbsp; Best play %2 &nbsp; Cost %3")
                 .arg(percentText(chart.expectedReturn, 4), percentText(chart.bestReturn, 4),
                      percentText(chart.cost, 4)),
             QObject::tr("Hold the first line the deal has"), QObject::tr("Example"),
             QObject::tr("Played"), QObject::tr("Return"), lines);
}

void printChartPage(const QString& html, QPagedPaintDevice& device) {
    // The page is laid out at a known resolution, then drawn scaled to the device's.
    QImage layoutDevice(1, 1, QImage::Format_RGB32);
    layoutDevice.setDotsPerMeterX(qRound(kLayoutDpi / kMetresPerInch));
    layoutDevice.setDotsPerMeterY(qRound(kLayoutDpi / kMetresPerInch));
    QTextDocument document;
    document.documentLayout()->setPaintDevice(&layoutDevice);
    const QSizeF page =
        device.pageLayout().paintRect(QPageLayout::Point).size() * (kLayoutDpi / kPointsPerInch);
    document.setPageSize(page);
    for (double points = kLargestPoint;; points -= kPointStep) {
        QFont font = document.defaultFont();
        font.setPointSizeF(points);
        document.setDefaultFont(font);
        document.setHtml(html);
        if (document.pageCount() <= 1 || points <= kSmallestPoint) {
            break;
        }
    }
    QPainter painter(&device);
    const double scale = device.logicalDpiX() / kLayoutDpi;
    painter.scale(scale, scale);
    document.drawContents(&painter, QRectF(QPointF(0, 0), page));
}

bool saveChartPdf(const QString& html, const QString& path) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly)) {
        return false;
    }
    QPdfWriter writer(&file);
    writer.setResolution(kPdfResolution);
    writer.setTitle(QObject::tr("Strategy chart"));
    printChartPage(html, writer);
    return file.error() == QFileDevice::NoError;
}

} // namespace marivale
