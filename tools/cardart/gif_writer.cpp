#include "gif_writer.h"

// Standard library
#include <memory>
#include <unordered_map>
#include <vector>

// Qt
#include <QFile>

// giflib
#include <gif_lib.h>

// Marivale
#include "palette.h"

namespace marivale::cardart {

namespace {

// Index 0 is the transparent colour; its RGB is a neutral grey for viewers that ignore it.
constexpr int kTransparentIndex = 0;
constexpr int kPaletteSize = 256;
constexpr GifColorType kNeutral{192, 192, 192};

bool isOpaque(QRgb pixel) {
    return qAlpha(pixel) >= 128;
}

} // namespace

bool writeGif(const QImage& image, const QString& path) {
    const QImage source = image.convertToFormat(QImage::Format_ARGB32);
    const int width = source.width();
    const int height = source.height();
    std::vector<QRgb> opaque;
    for (int y = 0; y < height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            if (isOpaque(line[x])) {
                opaque.push_back(line[x]);
            }
        }
    }
    const std::vector<QRgb> palette = buildPalette(opaque, kPaletteSize - 1);

    std::vector<GifColorType> colors(kPaletteSize, kNeutral);
    for (std::size_t i = 0; i < palette.size(); ++i) {
        colors[i + 1] = GifColorType{static_cast<GifByteType>(qRed(palette[i])),
                                     static_cast<GifByteType>(qGreen(palette[i])),
                                     static_cast<GifByteType>(qBlue(palette[i]))};
    }
    std::vector<GifByteType> indices(static_cast<std::size_t>(width) * height);
    std::unordered_map<QRgb, int> cache;
    for (int y = 0; y < height; ++y) {
        const auto* line = reinterpret_cast<const QRgb*>(source.constScanLine(y));
        for (int x = 0; x < width; ++x) {
            int index = kTransparentIndex;
            if (isOpaque(line[x])) {
                const QRgb color = line[x] | 0xff000000u;
                auto found = cache.find(color);
                if (found == cache.end()) {
                    found = cache.emplace(color, nearestColor(palette, color) + 1).first;
                }
                index = found->second;
            }
            indices[static_cast<std::size_t>(y) * width + x] = static_cast<GifByteType>(index);
        }
    }

    int error = 0;
    GifFileType* gif = EGifOpenFileName(path.toLocal8Bit().constData(), false, &error);
    if (gif == nullptr) {
        return false;
    }
    EGifSetGifVersion(gif, true);
    std::unique_ptr<ColorMapObject, decltype(&GifFreeMapObject)> map(
        GifMakeMapObject(kPaletteSize, colors.data()), &GifFreeMapObject);
    GraphicsControlBlock control{};
    control.DisposalMode = DISPOSAL_UNSPECIFIED;
    control.UserInputFlag = false;
    control.DelayTime = 0;
    control.TransparentColor = kTransparentIndex;
    GifByteType extension[4] = {};
    const size_t extensionLength = EGifGCBToExtension(&control, extension);
    bool ok = EGifPutScreenDesc(gif, width, height, 8, kTransparentIndex, map.get()) == GIF_OK &&
              EGifPutExtension(gif, GRAPHICS_EXT_FUNC_CODE, static_cast<int>(extensionLength),
                               extension) == GIF_OK &&
              EGifPutImageDesc(gif, 0, 0, width, height, false, nullptr) == GIF_OK;
    for (int y = 0; ok && y < height; ++y) {
        ok = EGifPutLine(gif, &indices[static_cast<std::size_t>(y) * width], width) == GIF_OK;
    }
    ok = EGifCloseFile(gif, &error) == GIF_OK && ok;
    // giflib creates the file readable by its owner only; pictures are for everyone to read.
    return ok && QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner |
                                                 QFile::ReadGroup | QFile::ReadOther);
}

} // namespace marivale::cardart
