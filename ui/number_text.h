#pragma once

// The one convention of the numbers the companion windows read and write, whatever the
// desktop's locale: "." marks decimals and "," thousands, as in the money texts.

// Standard library
#include <optional>

// Qt
#include <QLocale>
#include <QString>

namespace marivale {

// The locale of that convention, with its thousands separator.
QLocale numberLocale();

// A count with its thousands: "1,600".
QString countText(long long count);
// A number with so many decimals and its thousands, when asked with a "+" in front of a positive
// value: "83.7875", "1,234.50", "+0.25".
QString decimalText(double value, int decimals, bool plusSign = false);
// A fraction as a percentage with so many decimals: 0.837875 at 4 is "83.7875%".
QString percentText(double fraction, int decimals);

// Reads a number as a player types it, in either convention, never multiplying it: "." is the
// decimal mark; "," separates thousands where it stands between groups of three digits
// ("1,600", "10,000.5"), and otherwise, alone, is the decimal mark ("8,5", "40,50"). Nothing for
// anything else ("8.5.1", "1.600,5", "abc").
std::optional<double> readTypedNumber(const QString& text);

} // namespace marivale
