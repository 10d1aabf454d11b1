#pragma once

// The main window's saved placement: left, top, outer width and outer height in twips, kept in
// the per-user settings store under application "Vandrine", section "Settings".
//
// The store is Qt's native per-user store for organisation and application "Vandrine": on Linux
// the INI file $XDG_CONFIG_HOME/Vandrine/Vandrine.conf (group [Settings]), on Windows the
// registry key HKEY_CURRENT_USER\Software\Vandrine\Vandrine\Settings.
// Lengths are converted at a fixed 15 twips per pixel. Qt's pixels are already scaled to the
// screen's density, so the window keeps its designed size on a dense screen as well.

// Standard library
#include <array>
#include <string_view>

// Qt
#include <QMargins>
#include <QRect>

// Marivale
#include "ui/twips.h"

class QWidget;

namespace marivale {

struct Placement {
    int left{1000};
    int top{1000};
    int width{4650};
    int height{3850};
};

// The four keys, in the order they are read and written, with their defaults.
struct PlacementKey {
    std::string_view name;
    int fallback;
};
inline constexpr std::array<PlacementKey, 4> kPlacementKeys{{
    {"MainLeft", 1000},
    {"MainTop", 1000},
    {"MainWidth", 4650},
    {"MainHeight", 3850},
}};

// Reads the four keys; an absent key, or one whose text is not a number, gives its default.
Placement loadPlacement();

// Writes the four keys as whole numbers.
void savePlacement(const Placement& placement);

// The outer rectangle, in pixels, that a placement describes.
QRect pixelRect(const Placement& placement);

// The placement of an outer rectangle given in pixels.
Placement placementOf(const QRect& outerPixels);

// The rectangle moved back onto the primary screen, at the default position, when no screen
// shows a usable part of it (at least 40 by 20 pixels of its top edge, where the title bar is).
QRect ontoScreens(const QRect& outerPixels);

// Places the window's outer rectangle; frame is the window's current frame margins, zero when
// the window manager has not framed it yet.
void applyPlacement(QWidget& window, const QRect& outerPixels, const QMargins& frame);

// The window frame's margins around the client area; zero before the window is framed.
QMargins frameMarginsOf(const QWidget& window);

} // namespace marivale
