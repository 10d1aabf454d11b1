#include "ui/card_pictures.h"

// Standard library
#include <algorithm>
#include <cmath>

// Qt
#include <QAbstractButton>
#include <QDir>
#include <QFont>
#include <QImageReader>
#include <QPainter>
#include <QPainterPath>
#include <QRegularExpression>

// Marivale
#include "ui/card_text.h"

namespace marivale {

namespace {

QRectF cardRect(QSize size) {
    return QRectF(0.5, 0.5, size.width() - 1.0, size.height() - 1.0);
}

qreal cornerRadius(QSize size) {
    return std::max(2.0, std::min(size.width(), size.height()) * 0.08);
}

QFont cardFont(qreal pixelSize, bool bold) {
    QFont font(QStringLiteral("Sans Serif"));
    font.setStyleHint(QFont::SansSerif);
    font.setPixelSize(std::max(1, static_cast<int>(std::lround(pixelSize))));
    font.setBold(bold);
    return font;
}

void drawBack(QPainter& painter, QSize size) {
    const QRectF outer = cardRect(size);
    const qreal radius = cornerRadius(size);
    painter.setPen(QPen(QColor(40, 40, 40), 1.0));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(outer, radius, radius);

    const qreal inset = std::max(2.0, size.width() * 0.07);
    const QRectF inner = outer.adjusted(inset, inset, -inset, -inset);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(25, 45, 140));
    painter.drawRoundedRect(inner, radius / 2, radius / 2);
    painter.setBrush(QBrush(QColor(120, 150, 230), Qt::DiagCrossPattern));
    painter.drawRoundedRect(inner, radius / 2, radius / 2);
}

// Draws a face: the rank and suit in the corner and large in the middle, an optional note below.
void drawFace(QPainter& painter, QSize size, const QString& centre, const QString& corner,
              const QColor& ink, const QString& note) {
    const QRectF outer = cardRect(size);
    const qreal radius = cornerRadius(size);
    painter.setPen(QPen(QColor(40, 40, 40), 1.0));
    painter.setBrush(Qt::white);
    painter.drawRoundedRect(outer, radius, radius);

    const qreal unit = std::min<qreal>(size.width(), size.height() * 0.75);
    painter.setPen(ink);
    if (!corner.isEmpty()) {
        painter.setFont(cardFont(unit * 0.2, true));
        const qreal pad = unit * 0.07;
        painter.drawText(outer.adjusted(pad, pad, -pad, -pad), Qt::AlignLeft | Qt::AlignTop,
                         corner);
    }
    painter.setFont(cardFont(unit * (centre.size() > 3 ? 0.22 : 0.34), true));
    painter.drawText(outer, Qt::AlignCenter, centre);
    if (!note.isEmpty()) {
        painter.setFont(cardFont(unit * 0.14, true));
        const QRectF bottom = outer.adjusted(0, outer.height() * 0.68, 0, -unit * 0.06);
        painter.drawText(bottom, Qt::AlignHCenter | Qt::AlignBottom, note);
    }
}

} // namespace

QPixmap drawStandInCard(const QString& fileName, QSize size, qreal devicePixelRatio) {
    const QSize logical = size.expandedTo(QSize(8, 8));
    QPixmap pixmap(logical * devicePixelRatio);
    pixmap.setDevicePixelRatio(devicePixelRatio);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::TextAntialiasing);

    static const QRegularExpression kCardName(QStringLiteral("^(\\d{1,2})([TW]?)\\.gif$"),
                                              QRegularExpression::CaseInsensitiveOption);
    if (fileName.compare(QStringLiteral("bb.gif"), Qt::CaseInsensitive) == 0) {
        drawBack(painter, logical);
        return pixmap;
    }
    const QRegularExpressionMatch match = kCardName.match(fileName);
    const CardCode code = match.hasMatch() ? match.captured(1).toInt() : -1;
    if (code == kJoker) {
        drawFace(painter, logical, cardFaceText(code).toUpper(), QString(), cardInk(code),
                 QString());
    } else if (isCard(code)) {
        const QString text = cardFaceText(code);
        const QString suffix = match.captured(2).toUpper();
        const QString note = suffix == QStringLiteral("W")   ? QStringLiteral("WILD")
                             : suffix == QStringLiteral("T") ? QStringLiteral("BONUS")
                                                             : QString();
        drawFace(painter, logical, text, text, cardInk(code), note);
    } else {
        drawFace(painter, logical, QStringLiteral("?"), QString(), Qt::darkGray, fileName);
    }
    return pixmap;
}

const QImage& CardPictures::source(const QString& fileName) {
    auto found = sources_.constFind(fileName);
    if (found != sources_.constEnd()) {
        return *found;
    }
    QImageReader reader(QDir::current().absoluteFilePath(fileName));
    QImage image = reader.read();
    if (image.isNull() && !missing_.contains(fileName)) {
        missing_.append(fileName);
    }
    return *sources_.insert(fileName, image);
}

QPixmap CardPictures::picture(const QString& fileName, QSize size, qreal devicePixelRatio) {
    const qreal ratio = devicePixelRatio > 0 ? devicePixelRatio : 1.0;
    const QSize logical = size.expandedTo(QSize(1, 1));
    const QString key = QStringLiteral("%1|%2x%3|%4")
                            .arg(fileName)
                            .arg(logical.width())
                            .arg(logical.height())
                            .arg(ratio);
    auto found = fitted_.constFind(key);
    if (found != fitted_.constEnd()) {
        return *found;
    }

    const QImage& image = source(fileName);
    QPixmap result;
    if (image.isNull()) {
        result = drawStandInCard(fileName, logical, ratio);
    } else {
        const QSize target(static_cast<int>(std::lround(logical.width() * ratio)),
                           static_cast<int>(std::lround(logical.height() * ratio)));
        result =
            QPixmap::fromImage(image.scaled(target, Qt::KeepAspectRatio, Qt::SmoothTransformation));
        result.setDevicePixelRatio(ratio);
    }
    fitted_.insert(key, result);
    return result;
}

void CardPictures::showOn(QAbstractButton& button, const QString& fileName) {
    setButtonPicture(button, picture(fileName, button.size(), button.devicePixelRatioF()));
    button.setProperty(kPictureProperty, fileName);
}

void setButtonPicture(QAbstractButton& button, const QPixmap& picture) {
    button.setIcon(QIcon(picture));
    button.setIconSize(button.size());
}

} // namespace marivale
