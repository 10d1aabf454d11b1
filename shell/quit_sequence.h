#pragma once

// Closes the program as the player would, without asking anything: the window on top first, as
// by its close box, then the one beneath it once the first has really gone, down to the main
// window, whose own close sequence then ends the program. A board closed this way folds its
// visit into the total before the main window writes it.

// Standard library
#include <functional>

// Qt
#include <QObject>
#include <QPointer>

class QWidget;

namespace marivale {

class QuitSequence : public QObject {
    Q_OBJECT
public:
    // closeMain runs the main window's close once nothing is left above it.
    QuitSequence(QWidget& mainWindow, std::function<void()> closeMain, QObject* parent = nullptr);

    // Starts the sequence; later calls change nothing.
    void start();

    [[nodiscard]] bool started() const { return started_; }

private:
    void step();
    [[nodiscard]] bool stillUnwinding();

    QWidget& mainWindow_;
    std::function<void()> closeMain_{};
    bool started_{false};
    bool finished_{false};
    int levelAtClose_{0}; // event loops running when the last window was closed; 0: none closed
    int waits_{0};
};

} // namespace marivale
