// Draws every picture and the bell the game loads, and a contact sheet of the cards.
// Usage: marivale-cardart OUTDIR [CONTACT_SHEET.png]
// Card code = suit index * 13 + rank index (0 = Ace .. 12 = King); suit index 0 = Clubs,
// 1 = Diamonds, 2 = Hearts, 3 = Spades; 52 is the joker.

// Standard library
#include <cstdio>
#include <vector>

// Qt
#include <QDir>
#include <QFont>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>

// Marivale
#include "card_face.h"
#include "card_painters.h"
#include "chest_and_bell.h"
#include "gif_writer.h"

using namespace marivale;
using namespace marivale::cardart;

namespace {

constexpr int kBellRate = 22050;
constexpr double kBellSeconds = 0.8;

// Contact sheet: cell size, columns and the felt behind the cards.
constexpr int kSheetCardWidth = 96;
constexpr int kSheetCardHeight = 128;
constexpr int kSheetColumns = 13;
constexpr int kSheetGap = 8;
constexpr int kSheetCaption = 14;
constexpr QRgb kFelt = qRgb(22, 96, 56);

// The file names of the 62 card pictures, in contact-sheet order.
std::vector<QString> pictureNames() {
    std::vector<QString> names;
    for (int code = 0; code <= kJoker; ++code) {
        names.push_back(QString::number(code) + QStringLiteral(".gif"));
    }
    for (int suit = 0; suit < kSuitCount; ++suit) {
        names.push_back(QString::number(makeCard(Rank::Three, static_cast<Suit>(suit))) +
                        QStringLiteral("T.gif"));
    }
    for (int suit = 0; suit < kSuitCount; ++suit) {
        names.push_back(QString::number(makeCard(Rank::Two, static_cast<Suit>(suit))) +
                        QStringLiteral("W.gif"));
    }
    names.push_back(QStringLiteral("bb.gif"));
    return names;
}

bool writeCards(const QDir& dir) {
    bool ok = true;
    for (int code = 0; code <= kJoker; ++code) {
        ok = writeGif(drawCard(code, Mark::None),
                      dir.filePath(QStringLiteral("%1.gif").arg(code))) &&
             ok;
    }
    for (int suit = 0; suit < kSuitCount; ++suit) {
        const int three = makeCard(Rank::Three, static_cast<Suit>(suit));
        const int two = makeCard(Rank::Two, static_cast<Suit>(suit));
        ok = writeGif(drawCard(three, Mark::Treasure),
                      dir.filePath(QStringLiteral("%1T.gif").arg(three))) &&
             ok;
        ok =
            writeGif(drawCard(two, Mark::Wild), dir.filePath(QStringLiteral("%1W.gif").arg(two))) &&
            ok;
    }
    return writeGif(drawCardBack(), dir.filePath(QStringLiteral("bb.gif"))) && ok;
}

// A grid of the pictures as written, read back through Qt's own GIF reader.
bool writeContactSheet(const QDir& dir, const QString& path) {
    const std::vector<QString> names = pictureNames();
    const int rows = (static_cast<int>(names.size()) + kSheetColumns - 1) / kSheetColumns;
    const int cellWidth = kSheetCardWidth + kSheetGap;
    const int cellHeight = kSheetCardHeight + kSheetGap + kSheetCaption;
    QImage sheet(kSheetColumns * cellWidth + kSheetGap, rows * cellHeight + kSheetGap,
                 QImage::Format_RGB32);
    sheet.fill(QColor(kFelt));
    QPainter painter(&sheet);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(10);
    painter.setFont(font);
    painter.setPen(Qt::white);
    for (std::size_t i = 0; i < names.size(); ++i) {
        const int column = static_cast<int>(i) % kSheetColumns;
        const int row = static_cast<int>(i) / kSheetColumns;
        const QRect cell(kSheetGap + column * cellWidth, kSheetGap + row * cellHeight,
                         kSheetCardWidth, kSheetCardHeight);
        const QImage card(dir.filePath(names[i]));
        if (card.isNull()) {
            return false;
        }
        painter.drawImage(
            cell, card.scaled(cell.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation));
        painter.drawText(QRect(cell.left(), cell.bottom() + 1, cell.width(), kSheetCaption),
                         Qt::AlignCenter, names[i]);
    }
    painter.end();
    return sheet.save(path);
}

} // namespace

int main(int argc, char* argv[]) {
    // Text is drawn through the GUI stack; no screen is needed for that.
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QGuiApplication app(argc, argv);
    if (argc < 2) {
        std::fprintf(stderr, "usage: marivale-cardart OUTDIR [CONTACT_SHEET.png]\n");
        return 2;
    }
    const QDir dir(QString::fromLocal8Bit(argv[1]));
    if (!dir.exists() && !QDir().mkpath(dir.path())) {
        std::fprintf(stderr, "cannot create %s\n", argv[1]);
        return 1;
    }
    bool ok = writeCards(dir);
    ok = drawChest(32).save(dir.filePath(QStringLiteral("chest.png"))) && ok;
    ok = drawChest(64).save(dir.filePath(QStringLiteral("chest@2x.png"))) && ok;
    ok = writeWav(dir.filePath(QStringLiteral("bell.wav")), synthesiseBell(kBellRate, kBellSeconds),
                  kBellRate) &&
         ok;
    if (argc > 2) {
        ok = writeContactSheet(dir, QString::fromLocal8Bit(argv[2])) && ok;
    }
    if (!ok) {
        std::fprintf(stderr, "marivale-cardart: some files could not be written\n");
        return 1;
    }
    return 0;
}
