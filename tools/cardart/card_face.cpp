#include "card_face.h"

// Standard library
#include <algorithm>
#include <array>

// Qt
#include <QFont>
#include <QTransform>

// Marivale
#include "card_painters.h"
#include "engine/card_text.h"
#include "paint_helpers.h"
#include "suit_shapes.h"

namespace marivale::cardart {

namespace {

// Where a pip sits: column -1 left, 0 middle, 1 right; row 0 = top row .. 1 = bottom row.
struct Pip {
    int column{0};
    qreal row{0.0};
};

// The classic pip layouts of the Two (index 0) to the Ten (index 8); a card of n pips uses the
// first n entries of its row.
constexpr qreal kThird = 1.0 / 3;
constexpr qreal kSixth = 1.0 / 6;
constexpr std::array<std::array<Pip, 10>, 9> kPipLayouts{{
    {{{0, 0.0}, {0, 1.0}}},
    {{{0, 0.0}, {0, 0.5}, {0, 1.0}}},
    {{{-1, 0.0}, {1, 0.0}, {-1, 1.0}, {1, 1.0}}},
    {{{-1, 0.0}, {1, 0.0}, {0, 0.5}, {-1, 1.0}, {1, 1.0}}},
    {{{-1, 0.0}, {1, 0.0}, {-1, 0.5}, {1, 0.5}, {-1, 1.0}, {1, 1.0}}},
    {{{-1, 0.0}, {1, 0.0}, {0, 0.25}, {-1, 0.5}, {1, 0.5}, {-1, 1.0}, {1, 1.0}}},
    {{{-1, 0.0}, {1, 0.0}, {0, 0.25}, {-1, 0.5}, {1, 0.5}, {0, 0.75}, {-1, 1.0}, {1, 1.0}}},
    {{{-1, 0.0},
      {1, 0.0},
      {-1, kThird},
      {1, kThird},
      {0, 0.5},
      {-1, 2 * kThird},
      {1, 2 * kThird},
      {-1, 1.0},
      {1, 1.0}}},
    {{{-1, 0.0},
      {1, 0.0},
      {0, kSixth},
      {-1, kThird},
      {1, kThird},
      {-1, 2 * kThird},
      {1, 2 * kThird},
      {0, 5 * kSixth},
      {-1, 1.0},
      {1, 1.0}}},
}};

// Pip size and the distance of the side columns from the middle.
constexpr qreal kPipWidth = 27.0;
constexpr qreal kPipHeight = 29.0;
constexpr qreal kColumnStep = 31.0;

// Corner index: centre line, top of the rank, rank height, suit box below it.
constexpr qreal kIndexCentreX = 16.0;
constexpr qreal kIndexTop = 9.0;
constexpr qreal kRankHeight = 25.0;
constexpr qreal kRankMaxWidth = 23.0;
constexpr QRectF kIndexSuit{6.5, 40.0, 19.0, 21.0};

// Centre of the card, about which everything upside down is turned.
constexpr QPointF kCentre{kCardWidth / 2.0, kCardHeight / 2.0};

void paintAce(QPainter& painter, Suit suit) {
    const qreal width = suit == Suit::Spades ? 84.0 : 70.0;
    const qreal height = width * 1.08;
    const QRectF box(kCentre.x() - width / 2, kCentre.y() - height / 2, width, height);
    painter.fillPath(suitPath(suit, box), suitColor(suit));
    if (suit == Suit::Spades) {
        // The Ace of Spades carries the deck's mark: a gold inner spade.
        const QRectF inner = box.adjusted(width * 0.3, height * 0.3, -width * 0.3, -height * 0.24);
        painter.fillPath(suitPath(suit, inner), QColor(kGold));
    }
}

} // namespace

QImage newCardCanvas() {
    QImage image(kCardWidth, kCardHeight, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

void prepare(QPainter& painter) {
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setRenderHint(QPainter::TextAntialiasing, true);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, true);
}

void paintBlankCard(QPainter& painter, QRgb paper) {
    QPainterPath outer;
    outer.addRoundedRect(QRectF(0.5, 0.5, kCardWidth - 1.0, kCardHeight - 1.0), kCornerRadius,
                         kCornerRadius);
    painter.fillPath(outer, QColor(kEdge));
    QPainterPath inner;
    inner.addRoundedRect(QRectF(2.0, 2.0, kCardWidth - 4.0, kCardHeight - 4.0), kCornerRadius - 1.5,
                         kCornerRadius - 1.5);
    painter.fillPath(inner, QColor(paper));
}

QPainterPath textInBox(const QString& text, const QRectF& box, bool condensed) {
    QFont font(condensed ? QStringLiteral("DejaVu Sans Condensed") : QStringLiteral("DejaVu Sans"));
    font.setPixelSize(100);
    font.setBold(true);
    QPainterPath capital;
    capital.addText(0, 0, font, QStringLiteral("H"));
    const qreal capHeight = -capital.boundingRect().top();
    QPainterPath path;
    path.addText(0, 0, font, text);
    const QRectF bounds = path.boundingRect();
    // A letter reaching below the line (J, Q) may overhang the box by a tenth, no more.
    const qreal scaleY =
        std::min(box.height() / capHeight, box.height() * 1.1 / (bounds.bottom() - bounds.top()));
    const qreal scaleX = std::min(scaleY, box.width() / bounds.width());
    QTransform fit;
    fit.translate(box.center().x(), box.top());
    fit.scale(scaleX, scaleY);
    fit.translate(-bounds.center().x(), -bounds.top());
    return fit.map(path);
}

void paintIndices(QPainter& painter, const QString& rank, Suit suit) {
    const QRectF rankBox(kIndexCentreX - kRankMaxWidth / 2, kIndexTop, kRankMaxWidth, kRankHeight);
    QPainterPath index = textInBox(rank, rankBox, rank.size() > 1);
    index.addPath(suitPath(suit, kIndexSuit));
    index.setFillRule(Qt::WindingFill);
    painter.save();
    for (int corner = 0; corner < 2; ++corner) {
        painter.fillPath(index, suitColor(suit));
        turnHalf(painter);
    }
    painter.restore();
}

void paintPips(QPainter& painter, Suit suit, int count, qreal top, qreal bottom) {
    const auto& layout = kPipLayouts.at(static_cast<std::size_t>(count - 2));
    for (auto pip = layout.begin(); pip != layout.begin() + count; ++pip) {
        const QPointF centre(kCentre.x() + pip->column * kColumnStep,
                             top + pip->row * (bottom - top));
        const QRectF box(centre.x() - kPipWidth / 2, centre.y() - kPipHeight / 2, kPipWidth,
                         kPipHeight);
        painter.save();
        if (pip->row > 0.5) {
            // Pips below the middle are printed upside down, as on a real card.
            painter.translate(centre);
            painter.rotate(180.0);
            painter.translate(-centre);
        }
        painter.fillPath(suitPath(suit, box), suitColor(suit));
        painter.restore();
    }
}

QString rankLabel(int rank) {
    const std::string_view face = rankFace(static_cast<Rank>(rank));
    return QString::fromLatin1(face.data(), static_cast<qsizetype>(face.size()));
}

namespace {

// Paints card `code` with its mark onto a fresh canvas.
void paintCard(QPainter& painter, int code, Mark mark) {
    if (code == kJoker) {
        paintBlankCard(painter, kPaper);
        paintJoker(painter);
        return;
    }
    const Suit suit = suitOf(code);
    const int rank = rankIndex(code);
    paintBlankCard(painter, mark == Mark::Treasure ? kCream : kPaper);
    qreal top = 34.0;
    qreal bottom = kCardHeight - 34.0;
    if (mark == Mark::Treasure) {
        paintTreasureFrame(painter);
        paintTreasurePlaques(painter);
        // Room for the plaques above and below the pips.
        top = 62.0;
        bottom = kCardHeight - 62.0;
    }
    paintIndices(painter, rankLabel(rank), suit);
    if (rank == 0) {
        paintAce(painter, suit);
    } else if (rank >= 10) {
        paintCourt(painter, suit, rank);
    } else {
        paintPips(painter, suit, rank + 1, top, bottom);
    }
    if (mark == Mark::Wild) {
        paintWildBanner(painter);
    }
}

} // namespace

QImage drawCard(int code, Mark mark) {
    QImage image = newCardCanvas();
    QPainter painter(&image);
    prepare(painter);
    paintCard(painter, code, mark);
    painter.end();
    return image;
}

} // namespace marivale::cardart
