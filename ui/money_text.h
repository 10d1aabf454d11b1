#pragma once

// Dollars as a window shows them, in one of the named money patterns.

// Standard library
#include <string_view>

// Qt
#include <QString>

// Marivale
#include "engine/money_format.h"

namespace marivale {

inline QString moneyText(float dollars, std::string_view pattern = pattern::kCompanion) {
    return QString::fromStdString(FormatMoney(dollars, pattern));
}

} // namespace marivale
