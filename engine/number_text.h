#pragma once

// Numbers as the program writes them, whatever the desktop's locale: a "." point and, where a
// window shows them, "," between thousands, as in the money texts.

// Standard library
#include <string>

namespace marivale {

// A number with a fixed count of decimals and a "." point: "1234567.89".
std::string fixedText(double value, int decimals);

// A number with "," between thousands, a "." point, a "-" in front of a negative value and, when
// asked, a "+" in front of a positive one; nothing in front of a value that rounds to zero
// ("-1,234.50", "+0.25", "0.00").
std::string groupedText(double value, int decimals, bool plusSign = false);

} // namespace marivale
