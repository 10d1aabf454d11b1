#include "shell/data_file.h"

// Standard library
#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <limits>
#include <system_error>

// POSIX
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace marivale {

namespace {

constexpr bool isBlank(char c) {
    return c == ' ' || c == '\t';
}
constexpr bool isLineEnd(char c) {
    return c == '\r' || c == '\n';
}
constexpr bool endsField(char c) {
    return c == ',' || isBlank(c) || isLineEnd(c);
}
constexpr bool isDigit(char c) {
    return c >= '0' && c <= '9';
}

// Exponents are clamped here while being read: far beyond any float, short of overflowing.
constexpr long kExponentClamp = 100000;

// Reading stops after this many bytes; the first field lies far before.
constexpr std::size_t kReadLimit = 1 << 20;

// Plain digits are written for decimal exponents in [kPlainLowest, kPlainHighest].
constexpr int kPlainLowest = -5;
constexpr int kPlainHighest = 14;

// A field that has the shape of a number, split into its parts.
struct NumberShape {
    std::string_view integer{};  // digits before the point
    std::string_view fraction{}; // digits after the point
    long exponent{0};            // clamped to +-kExponentClamp
};

// Splits the field into sign, digits and exponent; nothing when it is not a number.
std::optional<NumberShape> shapeOf(std::string_view field) {
    NumberShape shape;
    std::size_t at = 0;
    if (at < field.size() && (field[at] == '+' || field[at] == '-')) {
        ++at;
    }
    const std::size_t integerStart = at;
    while (at < field.size() && isDigit(field[at])) {
        ++at;
    }
    shape.integer = field.substr(integerStart, at - integerStart);
    if (at < field.size() && field[at] == '.') {
        const std::size_t fractionStart = ++at;
        while (at < field.size() && isDigit(field[at])) {
            ++at;
        }
        shape.fraction = field.substr(fractionStart, at - fractionStart);
    }
    if (shape.integer.empty() && shape.fraction.empty()) {
        return std::nullopt;
    }
    if (at < field.size() && (field[at] == 'E' || field[at] == 'e')) {
        ++at;
        bool negativeExponent = false;
        if (at < field.size() && (field[at] == '+' || field[at] == '-')) {
            negativeExponent = field[at] == '-';
            ++at;
        }
        if (at == field.size() || !isDigit(field[at])) {
            return std::nullopt;
        }
        long exponent = 0;
        while (at < field.size() && isDigit(field[at])) {
            exponent = std::min(exponent * 10 + (field[at] - '0'), kExponentClamp);
            ++at;
        }
        shape.exponent = negativeExponent ? -exponent : exponent;
    }
    if (at != field.size()) {
        return std::nullopt;
    }
    return shape;
}

// The decimal exponent of the leading nonzero digit; tells a too-large value from a tiny one.
long orderOf(const NumberShape& shape) {
    const auto firstInteger = shape.integer.find_first_not_of('0');
    if (firstInteger != std::string_view::npos) {
        return static_cast<long>(shape.integer.size() - firstInteger) - 1 + shape.exponent;
    }
    const auto firstFraction = shape.fraction.find_first_not_of('0');
    if (firstFraction == std::string_view::npos) {
        return 0;
    }
    return -static_cast<long>(firstFraction) - 1 + shape.exponent;
}

std::filesystem::path directoryOrCurrent(const std::filesystem::path& directory) {
    return directory.empty() ? std::filesystem::path(".") : directory;
}

} // namespace

std::optional<float> parseTotal(std::string_view text) {
    std::size_t start = 0;
    while (start < text.size() && (isBlank(text[start]) || isLineEnd(text[start]))) {
        ++start;
    }
    std::size_t end = start;
    while (end < text.size() && !endsField(text[end])) {
        ++end;
    }
    std::string_view field = text.substr(start, end - start);
    const auto shape = shapeOf(field);
    if (!shape) {
        return std::nullopt;
    }
    // from_chars takes a minus but no plus.
    if (field.front() == '+') {
        field.remove_prefix(1);
    }
    float value = 0.0f;
    const auto [stop, error] = std::from_chars(field.data(), field.data() + field.size(), value,
                                               std::chars_format::general);
    if (error == std::errc::result_out_of_range) {
        if (orderOf(*shape) >= 0) {
            return std::nullopt; // beyond the largest float
        }
        return 0.0f; // below the smallest float
    }
    if (error != std::errc() || stop != field.data() + field.size() || !std::isfinite(value)) {
        return std::nullopt;
    }
    return value == 0.0f ? 0.0f : value; // no negative zero
}

std::string formatTotal(float total) {
    if (std::isnan(total) || total == 0.0f) {
        return "0";
    }
    if (std::isinf(total)) {
        total = std::copysign(std::numeric_limits<float>::max(), total);
    }
    // Seven significant digits, rounded, as "-d.dddddde+XX".
    std::array<char, 32> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), total,
                                      std::chars_format::scientific, 6);
    const std::string_view scientific(buffer.data(),
                                      static_cast<std::size_t>(result.ptr - buffer.data()));
    const bool negative = scientific.front() == '-';
    const std::size_t ePos = scientific.find('e');
    std::string digits;
    for (const char c : scientific.substr(0, ePos)) {
        if (isDigit(c)) {
            digits += c;
        }
    }
    int exponent = 0;
    std::string_view exponentText = scientific.substr(ePos + 1);
    if (exponentText.front() == '+') {
        exponentText.remove_prefix(1);
    }
    std::from_chars(exponentText.data(), exponentText.data() + exponentText.size(), exponent);
    while (digits.size() > 1 && digits.back() == '0') {
        digits.pop_back();
    }

    std::string text = negative ? "-" : "";
    if (exponent >= kPlainLowest && exponent <= kPlainHighest) {
        if (exponent >= 0) {
            const auto integerDigits = static_cast<std::size_t>(exponent) + 1;
            if (digits.size() <= integerDigits) {
                text += digits + std::string(integerDigits - digits.size(), '0');
            } else {
                text += digits.substr(0, integerDigits) + "." + digits.substr(integerDigits);
            }
        } else {
            text += "0." + std::string(static_cast<std::size_t>(-exponent - 1), '0') + digits;
        }
        return text;
    }
    text += digits.substr(0, 1);
    if (digits.size() > 1) {
        text += "." + digits.substr(1);
    }
    text += exponent < 0 ? "E-" : "E+";
    const int magnitude = std::abs(exponent);
    if (magnitude < 10) {
        text += '0';
    }
    text += std::to_string(magnitude);
    return text;
}

std::string totalRecord(float total) {
    return formatTotal(total) + "\r\n";
}

std::filesystem::path dataFilePath(const std::filesystem::path& directory) {
    std::error_code ignored;
    const auto path = directoryOrCurrent(directory) / kDataFileName;
    const auto absolute = std::filesystem::absolute(path, ignored);
    return absolute.empty() ? path : absolute.lexically_normal();
}

ReadOutcome readDataFile(const std::filesystem::path& directory) {
    ReadOutcome outcome;
    const auto path = directoryOrCurrent(directory) / kDataFileName;
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    if (fd < 0) {
        const int error = errno;
        outcome.status = error == ENOENT ? ReadStatus::Missing : ReadStatus::Unreadable;
        outcome.reason = std::generic_category().message(error);
        outcome.writable = error == ENOENT || ::access(path.c_str(), W_OK) == 0;
        return outcome;
    }
    // Only a plain file counts: a folder, a pipe or a device in its place is left alone.
    struct stat info {};
    std::string text;
    if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
        outcome.status = ReadStatus::Unreadable;
        outcome.reason = S_ISDIR(info.st_mode) ? "it is a folder" : "it is not a plain file";
        outcome.writable = false;
        ::close(fd);
        return outcome;
    }
    std::array<char, 4096> chunk{};
    for (;;) {
        const ssize_t got = ::read(fd, chunk.data(), chunk.size());
        if (got < 0 && errno == EINTR) {
            continue;
        }
        if (got < 0) {
            outcome.status = ReadStatus::Unreadable;
            outcome.reason = std::generic_category().message(errno);
            outcome.writable = false;
            ::close(fd);
            return outcome;
        }
        if (got == 0 || text.size() >= kReadLimit) {
            break;
        }
        text.append(chunk.data(), static_cast<std::size_t>(got));
    }
    ::close(fd);
    outcome.writable = ::access(path.c_str(), W_OK) == 0;
    if (const auto total = parseTotal(text)) {
        outcome.status = ReadStatus::Read;
        outcome.total = *total;
    } else {
        outcome.status = ReadStatus::NotANumber;
    }
    return outcome;
}

} // namespace marivale
