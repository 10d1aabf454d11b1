#include "shell/placement.h"

// Standard library
#include <cmath>

// Qt
#include <QGuiApplication>
#include <QLocale>
#include <QScreen>
#include <QSettings>
#include <QWidget>

namespace marivale {

namespace {

// Stored lengths beyond this many twips are taken as damage, not as a placement.
constexpr double kLargestTwips = 1.0e7;

// The part of the title bar that must be on a screen for the window to count as reachable.
constexpr int kReachableWidth = 40;
constexpr int kReachableHeight = 20;

constexpr const char* kApplication = "Vandrine";
constexpr const char* kSection = "Settings";

QString keyName(const PlacementKey& key) {
    return QString::fromLatin1(key.name.data(), static_cast<qsizetype>(key.name.size()));
}

// The key's value as a whole number of twips, or its default when absent or not a number.
int readKey(const QSettings& store, const PlacementKey& key) {
    const QVariant stored = store.value(keyName(key));
    if (!stored.isValid()) {
        return key.fallback;
    }
    const QString text = stored.toString().trimmed();
    bool ok = false;
    double value = QLocale::system().toDouble(text, &ok);
    if (!ok) {
        value = QLocale::c().toDouble(text, &ok);
    }
    if (!ok || !std::isfinite(value) || std::abs(value) > kLargestTwips) {
        return key.fallback;
    }
    return static_cast<int>(std::lround(value));
}

int toPixels(int twips) {
    return static_cast<int>(std::lround(static_cast<double>(twips) / kTwipsPerPixel));
}

} // namespace

Placement loadPlacement() {
    QSettings store(kApplication, kApplication);
    store.beginGroup(kSection);
    Placement placement;
    placement.left = readKey(store, kPlacementKeys[0]);
    placement.top = readKey(store, kPlacementKeys[1]);
    placement.width = readKey(store, kPlacementKeys[2]);
    placement.height = readKey(store, kPlacementKeys[3]);
    // A window needs some size: a width or height of zero or less is damage too.
    if (placement.width <= 0) {
        placement.width = kPlacementKeys[2].fallback;
    }
    if (placement.height <= 0) {
        placement.height = kPlacementKeys[3].fallback;
    }
    return placement;
}

void savePlacement(const Placement& placement) {
    QSettings store(kApplication, kApplication);
    store.beginGroup(kSection);
    const std::array<int, 4> values{placement.left, placement.top, placement.width,
                                    placement.height};
    for (std::size_t i = 0; i < kPlacementKeys.size(); ++i) {
        store.setValue(keyName(kPlacementKeys[i]), QString::number(values[i]));
    }
    store.endGroup();
    store.sync();
}

QRect pixelRect(const Placement& placement) {
    return {toPixels(placement.left), toPixels(placement.top), toPixels(placement.width),
            toPixels(placement.height)};
}

Placement placementOf(const QRect& outerPixels) {
    return {outerPixels.x() * kTwipsPerPixel, outerPixels.y() * kTwipsPerPixel,
            outerPixels.width() * kTwipsPerPixel, outerPixels.height() * kTwipsPerPixel};
}

QRect ontoScreens(const QRect& outerPixels) {
    const QRect titleStrip(outerPixels.x(), outerPixels.y(), outerPixels.width(),
                           qMin(outerPixels.height(), kReachableHeight));
    const int needWidth = qMin(kReachableWidth, titleStrip.width());
    for (const QScreen* screen : QGuiApplication::screens()) {
        const QRect shown = screen->geometry() & titleStrip;
        if (shown.width() >= needWidth && shown.height() >= titleStrip.height()) {
            return outerPixels;
        }
    }
    const QScreen* primary = QGuiApplication::primaryScreen();
    if (primary == nullptr) {
        return outerPixels;
    }
    const QRect area = primary->availableGeometry();
    const Placement defaults;
    QPoint position = area.topLeft() + QPoint(toPixels(defaults.left), toPixels(defaults.top));
    // Pull it back further where the window would otherwise run off the bottom or right.
    position.setX(qMax(area.left(), qMin(position.x(), area.right() + 1 - outerPixels.width())));
    position.setY(qMax(area.top(), qMin(position.y(), area.bottom() + 1 - outerPixels.height())));
    return {position, outerPixels.size()};
}

void applyPlacement(QWidget& window, const QRect& outerPixels, const QMargins& frame) {
    window.resize(qMax(1, outerPixels.width() - frame.left() - frame.right()),
                  qMax(1, outerPixels.height() - frame.top() - frame.bottom()));
    // A window's position is that of its frame.
    window.move(outerPixels.topLeft());
}

QMargins frameMarginsOf(const QWidget& window) {
    const QRect outer = window.frameGeometry();
    const QRect inner = window.geometry();
    return {inner.left() - outer.left(), inner.top() - outer.top(), outer.right() - inner.right(),
            outer.bottom() - inner.bottom()};
}

} // namespace marivale
