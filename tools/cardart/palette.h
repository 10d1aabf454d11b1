// Reduction of an image's colours to a small palette, for the 256-colour GIF pictures.
#pragma once

// Standard library
#include <cstdint>
#include <vector>

// Qt
#include <QRgb>

namespace marivale::cardart {

// At most `maxColors` colours that stand for `pixels` (median cut over the colour histogram;
// a box that one colour dominates keeps that exact colour, so pure inks stay pure).
std::vector<QRgb> buildPalette(const std::vector<QRgb>& pixels, int maxColors);

// Index of the palette colour nearest to `color`.
int nearestColor(const std::vector<QRgb>& palette, QRgb color);

} // namespace marivale::cardart
