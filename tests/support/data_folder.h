#pragma once

// A data folder of a test's own, holding links to the program's pictures and bell, as the
// launcher makes one; the test then runs in it.

// Qt
#include <QDir>
#include <QFile>
#include <QString>
#include <QTemporaryDir>

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

} // namespace marivale::testing
