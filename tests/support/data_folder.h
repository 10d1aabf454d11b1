#pragma once

// What the whole-program window tests share: a data folder of the test's own, holding links to
// the program's pictures and bell as the launcher makes one, and finding and clicking the
// windows the main menu opens.

// Standard library
#include <functional>

// Qt
#include <QAbstractButton>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>
#include <QTimer>
#include <QtTest>

namespace marivale::testing {

// Links the pictures and the bell of the program directory into the folder and makes it the
// working directory; false when that fails.
inline bool enterDataFolder(const QTemporaryDir& folder, const QString& programDirectory) {
    if (!folder.isValid()) {
        return false;
    }
    const QDir program(programDirectory);
    for (const QString& name : program.entryList({"*.gif", "*.wav"}, QDir::Files)) {
        QFile::link(program.absoluteFilePath(name), QDir(folder.path()).filePath(name));
    }
    return QDir::setCurrent(folder.path());
}

// The shown top-level window of that name, or null.
inline QWidget* visibleTopLevel(const QString& name) {
    for (QWidget* candidate : QApplication::topLevelWidgets()) {
        if (candidate->objectName() == name && candidate->isVisible()) {
            return candidate;
        }
    }
    return nullptr;
}

// Runs the action once the named top-level window is up.
inline void once(const QString& name, std::function<void(QWidget&)> then) {
    QWidget* window = visibleTopLevel(name);
    if (window == nullptr) {
        QTimer::singleShot(10, [name, then] { once(name, then); });
        return;
    }
    then(*window);
}

// Clicks an enabled button of the window; a button missing or disabled fails the test.
inline void click(QWidget& window, const QString& name) {
    auto* button = window.findChild<QAbstractButton*>(name);
    QVERIFY2(button != nullptr && button->isEnabled(), qPrintable(name + " is not there to click"));
    button->click();
}

} // namespace marivale::testing
