#include "shell/data_file_save.h"

// Standard library
#include <system_error>

// POSIX
#include <fcntl.h>
#include <unistd.h>

// Qt
#include <QSaveFile>

// Marivale
#include "shell/data_file.h"

namespace marivale {

namespace {

std::filesystem::path directoryOrCurrent(const std::filesystem::path& directory) {
    return directory.empty() ? std::filesystem::path(".") : directory;
}

SaveOutcome failure(SaveOutcome outcome, const QString& reason) {
    outcome.saved = false;
    outcome.reason = reason.toStdString();
    return outcome;
}

// Makes a finished rename durable; a failure here no longer endangers the data.
void syncFolderOf(const std::filesystem::path& file) {
    std::error_code ignored;
    const auto target = std::filesystem::weakly_canonical(file, ignored);
    const auto folder = target.empty() ? file.parent_path() : target.parent_path();
    const int fd = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (fd >= 0) {
        ::fsync(fd);
        ::close(fd);
    }
}

} // namespace

// QSaveFile follows a chain of links to the real file, writes a temporary file beside it with the
// old file's mode, syncs and renames it, and with the direct-write fallback rewrites the file in
// place where the folder refuses new files. It refuses an existing file it may not write.
SaveOutcome saveTotal(const std::filesystem::path& directory, float total,
                      const BeforeReplace& beforeReplace) {
    SaveOutcome outcome;
    outcome.file = dataFilePath(directory);
    const auto path = directoryOrCurrent(directory) / kDataFileName;

    QSaveFile file(QString::fromStdString(path.string()));
    file.setDirectWriteFallback(true);
    if (!file.open(QIODevice::WriteOnly)) {
        return failure(outcome, file.errorString());
    }
    // Whatever mode the old file had, the owner can read the new one back and write it again.
    file.setPermissions(file.permissions() | QFileDevice::ReadOwner | QFileDevice::WriteOwner);
    const QByteArray record = QByteArray::fromStdString(totalRecord(total));
    if (file.write(record) != record.size() || !file.flush()) {
        const QString reason = file.errorString();
        file.cancelWriting();
        return failure(outcome, reason);
    }
    if (beforeReplace && !beforeReplace()) {
        file.cancelWriting();
        return failure(outcome, QStringLiteral("the save was interrupted"));
    }
    if (!file.commit()) {
        return failure(outcome, file.errorString());
    }
    syncFolderOf(path);
    outcome.saved = true;
    return outcome;
}

SaveOutcome writeRecoveryRecord(const std::filesystem::path& directory) {
    return saveTotal(directory, 0.0f);
}

} // namespace marivale
