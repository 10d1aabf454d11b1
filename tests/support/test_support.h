#pragma once

// Helpers shared by the bonus window tests.

// Standard library
#include <string>
#include <vector>

// Qt
#include <QDir>
#include <QString>
#include <QWidget>

// Marivale
#include "tests/support/scripted_random_source.h"

namespace marivale::testing {

// Plays back scripted values and logs every draw and reseed, so a test can check the order.
class RecordingRandomSource final : public RandomSource {
public:
    double next() override {
        log.emplace_back("next");
        return scripted.next();
    }
    void reseedFromClock() override { log.emplace_back("reseed"); }

    ScriptedRandomSource scripted{};
    std::vector<std::string> log{};
};

// With MARIVALE_SHOTS set to a directory, saves a picture of the window there for a look.
inline void saveShot(QWidget& window, const QString& fileName) {
    const QString dir = qEnvironmentVariable("MARIVALE_SHOTS");
    if (!dir.isEmpty()) {
        window.grab().save(QDir(dir).absoluteFilePath(fileName));
    }
}

} // namespace marivale::testing
