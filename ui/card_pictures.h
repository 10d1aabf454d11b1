#pragma once

// Card pictures loaded by bare file name from the working directory ("17.gif", "41T.gif",
// "bb.gif"), kept in memory once read and fitted to a button on request. A picture that is missing
// or unreadable is replaced by a drawn stand-in so a card button is never blank; its name is kept
// so the board can tell the player once.

// Qt
#include <QHash>
#include <QImage>
#include <QPixmap>
#include <QSize>
#include <QString>
#include <QStringList>

class QAbstractButton;

namespace marivale {

class CardPictures {
public:
    // The picture fitted (aspect kept, smooth) inside a button of `size` logical pixels, rendered
    // at size * devicePixelRatio so dense screens stay sharp.
    QPixmap picture(const QString& fileName, QSize size, qreal devicePixelRatio = 1.0);

    // Fits the named picture to the button and sets it as the button's icon. The button also
    // carries the name in its "pictureFile" property, so tests can tell which card it shows.
    void showOn(QAbstractButton& button, const QString& fileName);

    // Names that could not be loaded so far, each once, in the order they were first asked for.
    const QStringList& missingFiles() const { return missing_; }

    // The name of the property showOn() writes.
    static constexpr const char* kPictureProperty = "pictureFile";

private:
    // The image as read from disk; a null image when the file is missing or unreadable.
    const QImage& source(const QString& fileName);

    QHash<QString, QImage> sources_{};
    QHash<QString, QPixmap> fitted_{}; // keyed by name, size and ratio
    QStringList missing_{};
};

// Sets the pixmap as the button's icon with an icon size equal to the button's size.
void setButtonPicture(QAbstractButton& button, const QPixmap& picture);

// A stand-in card drawn in code: a face with rank and suit ("Q♥", "JOKER") for a card's name, a
// patterned back for "bb.gif", a blank face with the name for anything else.
QPixmap drawStandInCard(const QString& fileName, QSize size, qreal devicePixelRatio);

} // namespace marivale
