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
// Saving lives in data_file_save.h, which uses QtCore; this reader stays free of any toolkit.

#include <filesystem>
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

// The data file's path in a directory.
std::filesystem::path dataFilePath(const std::filesystem::path& directory);

// What reading the data file found.
enum class ReadStatus {
    Read,       // the file starts with a number
    Missing,    // there is no file (or a link to nothing): the recovery creates it
    NotANumber, // the file is empty or does not start with a number: the recovery rewrites it
    Unreadable, // the file is there but cannot be read (permissions, a folder): it is left alone
};

struct ReadOutcome {
    ReadStatus status{ReadStatus::Missing};
    float total{0.0f};
    bool writable{true};  // the file, read or not, may be written by this process
    std::string reason{}; // why an Unreadable file could not be read
};

// Reads the data file in the directory (the current one when empty).
ReadOutcome readDataFile(const std::filesystem::path& directory);

} // namespace marivale
