#include "chest_and_bell.h"

// Standard library
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

// Qt
#include <QFile>
#include <QPainter>
#include <QPainterPath>

namespace marivale::cardart {

namespace {

constexpr QRgb kChestLine = qRgb(56, 56, 56);
constexpr QRgb kChestWood = qRgb(140, 140, 140);
constexpr QRgb kChestLid = qRgb(172, 172, 172);
constexpr QRgb kChestBand = qRgb(92, 92, 92);
constexpr QRgb kChestPlate = qRgb(216, 216, 216);
constexpr QRgb kChestShadow = qRgb(228, 228, 228);

// One partial of the bell: frequency ratio to the strike note, loudness, decay time in seconds.
struct Partial {
    double ratio{1.0};
    double amplitude{0.0};
    double decay{0.1};
};

// The bell's partials, from the low hum to the click of the strike, over a strike note of 880 Hz.
constexpr double kStrikeHz = 880.0;
constexpr std::array<Partial, 9> kPartials{{
    {0.5, 0.22, 0.55},
    {1.0, 0.60, 0.42},
    {1.19, 0.32, 0.32},
    {1.5, 0.18, 0.28},
    {2.0, 0.50, 0.26},
    {2.52, 0.22, 0.16},
    {3.01, 0.14, 0.12},
    {4.17, 0.10, 0.07},
    {5.43, 0.12, 0.02},
}};

void putLittleEndian(QByteArray& bytes, std::uint32_t value, int size) {
    for (int i = 0; i < size; ++i) {
        bytes.append(static_cast<char>((value >> (8 * i)) & 0xffu));
    }
}

} // namespace

QImage drawChest(int size) {
    QImage image(size, size, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.scale(size / 32.0, size / 32.0);
    const QPen line(QColor(kChestLine), 1.0, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin);

    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kChestShadow));
    painter.drawEllipse(QRectF(3, 26.5, 26, 4));
    // Body with two planks and two iron bands.
    painter.setPen(line);
    painter.setBrush(QColor(kChestWood));
    painter.drawRect(QRectF(3.5, 15.5, 25, 12));
    painter.drawLine(QPointF(4, 21.5), QPointF(28, 21.5));
    // Lid: a shallow dome over a rim.
    QPainterPath lid;
    lid.moveTo(3.5, 15.5);
    lid.lineTo(3.5, 10.5);
    lid.cubicTo(3.5, 4.5, 28.5, 4.5, 28.5, 10.5);
    lid.lineTo(28.5, 15.5);
    lid.closeSubpath();
    painter.setBrush(QColor(kChestLid));
    painter.drawPath(lid);
    painter.drawLine(QPointF(4, 12.5), QPointF(28, 12.5));
    painter.setBrush(QColor(kChestBand));
    for (const qreal x : {7.5, 22.5}) {
        painter.drawRect(QRectF(x, 15.5, 2, 12));
        QPainterPath strap;
        strap.moveTo(x, 15.5);
        strap.lineTo(x, 7.2);
        strap.lineTo(x + 2, 6.8);
        strap.lineTo(x + 2, 15.5);
        strap.closeSubpath();
        painter.drawPath(strap);
    }
    // Lock plate and keyhole.
    painter.setBrush(QColor(kChestPlate));
    painter.drawRect(QRectF(13.5, 12.5, 5, 6));
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(kChestLine));
    painter.drawEllipse(QPointF(16, 15), 0.9, 0.9);
    painter.drawRect(QRectF(15.6, 15, 0.8, 2.2));
    painter.end();
    return image;
}

std::vector<std::int16_t> synthesiseBell(int sampleRate, double seconds) {
    const auto count = static_cast<std::size_t>(sampleRate * seconds);
    std::vector<double> wave(count, 0.0);
    const double attack = 0.003 * sampleRate;
    const double fade = 0.06 * sampleRate;
    for (std::size_t i = 0; i < count; ++i) {
        const double t = static_cast<double>(i) / sampleRate;
        double value = 0.0;
        for (const Partial& partial : kPartials) {
            value += partial.amplitude * std::exp(-t / partial.decay) *
                     std::sin(2.0 * std::numbers::pi * kStrikeHz * partial.ratio * t);
        }
        // A soft start and a short fade to silence avoid clicks at either end.
        const double position = static_cast<double>(i);
        value *= std::min(1.0, position / attack) *
                 std::min(1.0, (static_cast<double>(count) - position) / fade);
        wave[i] = value;
    }
    double peak = 0.0;
    for (const double value : wave) {
        peak = std::max(peak, std::abs(value));
    }
    const double gain = peak > 0.0 ? 0.8 * 32767.0 / peak : 0.0;
    std::vector<std::int16_t> samples(count);
    std::transform(wave.begin(), wave.end(), samples.begin(), [gain](double value) {
        return static_cast<std::int16_t>(std::lround(value * gain));
    });
    return samples;
}

bool writeWav(const QString& path, const std::vector<std::int16_t>& samples, int sampleRate) {
    const auto dataBytes = static_cast<std::uint32_t>(samples.size() * sizeof(std::int16_t));
    QByteArray bytes("RIFF");
    putLittleEndian(bytes, 36 + dataBytes, 4);
    bytes.append("WAVEfmt ");
    putLittleEndian(bytes, 16, 4); // fmt chunk size
    putLittleEndian(bytes, 1, 2);  // PCM
    putLittleEndian(bytes, 1, 2);  // mono
    putLittleEndian(bytes, static_cast<std::uint32_t>(sampleRate), 4);
    putLittleEndian(bytes, static_cast<std::uint32_t>(sampleRate) * 2, 4); // bytes per second
    putLittleEndian(bytes, 2, 2);                                          // bytes per frame
    putLittleEndian(bytes, 16, 2);                                         // bits per sample
    bytes.append("data");
    putLittleEndian(bytes, dataBytes, 4);
    for (const std::int16_t sample : samples) {
        putLittleEndian(bytes, static_cast<std::uint16_t>(sample), 2);
    }
    QFile file(path);
    return file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
}

} // namespace marivale::cardart
