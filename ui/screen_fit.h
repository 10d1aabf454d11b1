#pragma once

// Keeps a window whole on its screen.

class QWidget;

namespace marivale {

// Moves a shown window up and left as little as needed to stand whole on its screen's free area.
void keepOnScreen(QWidget& window);

} // namespace marivale
