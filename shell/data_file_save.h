#pragma once

// Saving the data file "mpdata.dat". The save is atomic where it can be: a temporary file beside
// the data file is written, synced and renamed over it, so an interrupted save leaves either the
// old file or the new one. Where no file can be made in the folder (a read-only folder holding a
// writable data file), the file is rewritten in place instead. A symbolic link stays a link: the
// file it points to receives the total. The file written is always readable and writable by its
// owner, and otherwise keeps the mode of the file it replaces.

// Standard library
#include <filesystem>
#include <functional>
#include <string>

namespace marivale {

// What became of a save: the full path of the data file and, on failure, the reason.
struct SaveOutcome {
    bool saved{false};
    std::filesystem::path file{};
    std::string reason{};
};

// Called once the new content is written and synced, just before it replaces the data file;
// returning false abandons the save at that point, as a crash there would.
using BeforeReplace = std::function<bool()>;

// Writes the total to the data file in the directory (the current one when empty).
SaveOutcome saveTotal(const std::filesystem::path& directory, float total,
                      const BeforeReplace& beforeReplace = {});

// The recovery after a missing or empty file: the file is written holding 0.
SaveOutcome writeRecoveryRecord(const std::filesystem::path& directory);

} // namespace marivale
