#pragma once

// The data file "mpdata.dat": one line holding the running net win or loss in dollars.
// Plain C++ with no toolkit, so that the reader can be tested and fuzzed on its own.
//
// Reading: leading blanks and line ends are skipped; the field runs to the next comma, blank,
// CR, LF or the end of the file and must be a whole decimal number: optional sign, digits,
// optional "." and fraction (".75" and "5." both count), optional exponent (E or e, optional
// sign, digits). Anything after the field is ignored. Any other field, an empty file, or a value
// too large for a float means there is no readable total.
//
// Writing: "." whatever the locale, no grouping, "-" when negative, at most seven significant
// digits, no trailing zeros, whole numbers without a point, a leading 0 below 1 (0.75). Plain
// digits for magnitudes from 1E-05 up to below 1E+15 (123456789 is written 123456800), the
// exponent form "1.234568E+15" outside that span. The line ends with CR LF.
//
// Saving replaces the file atomically: a temporary file in the same directory is written,
// synced and renamed over the data file, so an interrupted save leaves either the old file or
// the new one, never a torn one.

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace marivale {

inline constexpr std::string_view kDataFileName = "mpdata.dat";

// The total held by the file's text, or nothing when the first field is not a number.
std::optional<float> parseTotal(std::string_view text);

// The number as the file holds it, without the line end.
std::string formatTotal(float total);

// The whole file content for a total: the number, CR and LF.
std::string totalRecord(float total);

// What became of a save: the full path of the data file and, on failure, the reason.
struct SaveOutcome {
    bool saved{false};
    std::filesystem::path file{};
    std::string reason{};
};

// The data file's path in a directory.
std::filesystem::path dataFilePath(const std::filesystem::path& directory);

// Reads the total from the data file in the directory; nothing when the file is missing,
// unreadable or does not start with a number (the caller then runs the recovery).
std::optional<float> loadTotal(const std::filesystem::path& directory);

// Called once the temporary file is written and synced, just before it replaces the data file;
// returning false abandons the save at that point, as a crash there would.
using BeforeReplace = std::function<bool(const std::filesystem::path& temporaryFile)>;

// Writes the total to the data file in the directory, replacing the old file atomically.
SaveOutcome saveTotal(const std::filesystem::path& directory, float total,
                      const BeforeReplace& beforeReplace = {});

// The recovery after an unreadable file: the file is rewritten holding 0.
SaveOutcome writeRecoveryRecord(const std::filesystem::path& directory);

} // namespace marivale
