// Writes a picture as a 256-colour GIF through giflib, with one transparent colour.
#pragma once

// Qt
#include <QImage>
#include <QString>

namespace marivale::cardart {

// Pixels less than half opaque become transparent; the rest are quantised to 255 colours.
bool writeGif(const QImage& image, const QString& path);

} // namespace marivale::cardart
