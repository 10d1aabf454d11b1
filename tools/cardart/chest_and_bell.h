// The Treasure Hunt chest picture and the win bell.
#pragma once

// Standard library
#include <cstdint>
#include <vector>

// Qt
#include <QImage>
#include <QString>

namespace marivale::cardart {

// A closed treasure chest in grey tones on white, `size` pixels square (drawn on a 32-unit grid).
QImage drawChest(int size);

// A short bright bell: a sum of decaying partials, 16-bit mono samples.
std::vector<std::int16_t> synthesiseBell(int sampleRate, double seconds);

// A plain PCM RIFF/WAVE file of 16-bit mono samples.
bool writeWav(const QString& path, const std::vector<std::int16_t>& samples, int sampleRate);

} // namespace marivale::cardart
