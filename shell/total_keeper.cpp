#include "shell/total_keeper.h"

// Standard library
#include <system_error>
#include <utility>

// Marivale
#include "engine/money_format.h"
#include "shell/data_file.h"
#include "shell/data_file_save.h"

namespace marivale {

namespace {

constexpr std::string_view kPlayOnAtZero =
    "\n\nYou can play on; the total starts at $0.00 and will not be kept.";

} // namespace

std::string TotalKeeper::tell(std::string message) {
    told_ = true;
    return message;
}

TotalKeeper::Loaded TotalKeeper::load() {
    std::error_code error;
    folder_ = std::filesystem::current_path(error);
    folderGone_ = static_cast<bool>(error);
    if (folderGone_) {
        folder_.clear();
    }
    const ReadOutcome read = readDataFile(folder_);
    const std::string file = dataFilePath(folder_).string();
    Loaded loaded;
    switch (read.status) {
    case ReadStatus::Read:
        loaded.total = read.total;
        if (!read.writable) {
            mayWrite_ = false;
            loaded.warning =
                tell("The file that keeps your total,\n" + file +
                     "\ncan be read but not written, so it is left as it is.\n\nYou can play on "
                     "from " +
                     FormatMoney(read.total, pattern::kTotal) +
                     "; what you win or lose from now on will not be kept.");
        }
        return loaded;
    case ReadStatus::Unreadable:
        // Even a file that could be written is left alone: its total is not known.
        mayWrite_ = false;
        loaded.warning = tell(
            "The file that keeps your total,\n" + file +
            (read.writable ? "\ncan be written but not read (" : "\ncannot be read or written (") +
            read.reason + "), so it is left as it is." + std::string(kPlayOnAtZero));
        return loaded;
    case ReadStatus::Missing:
    case ReadStatus::NotANumber:
        break;
    }
    // The recovery: the file is written holding 0, and play starts from 0.
    const SaveOutcome recovered = writeRecoveryRecord(folder_);
    if (recovered.saved) {
        return loaded;
    }
    if (folderGone_) {
        loaded.warning = tell("Your total cannot be kept: the folder this game was started from "
                              "no longer exists." +
                              std::string(kPlayOnAtZero));
    } else {
        loaded.warning =
            tell("Your total cannot be kept in this folder: the file\n" + file +
                 "\ncannot be written (" + recovered.reason + ")." + std::string(kPlayOnAtZero));
    }
    return loaded;
}

std::string TotalKeeper::save(float total) {
    std::string problem = write(total);
    return problem.empty() ? problem : tell(std::move(problem));
}

std::string TotalKeeper::saveCheckpoint(float total) {
    return write(total);
}

// Writes the total unless the file is left as it was found; the message when it could not be
// written and nobody was told yet.
std::string TotalKeeper::write(float total) const {
    if (!mayWrite_) {
        return {};
    }
    const SaveOutcome saved = saveTotal(folder_, total);
    if (saved.saved || told_) {
        return {};
    }
    return "Your total of " + FormatMoney(total, pattern::kTotal) +
           " could not be saved.\n\nThe file\n" + saved.file.string() + "\ncould not be written (" +
           saved.reason + ").";
}

} // namespace marivale
