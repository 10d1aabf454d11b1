// Feeds arbitrary bytes to the data file reader: it must never crash, and any total it reads
// must be written in a form that reads back to itself.

// Standard library
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

// Marivale
#include "shell/data_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const auto total = marivale::parseTotal(text);
    if (!total) {
        return 0;
    }
    if (!std::isfinite(*total)) {
        std::abort();
    }
    const auto written = marivale::formatTotal(*total);
    const auto again = marivale::parseTotal(written);
    if (!again || marivale::formatTotal(*again) != written) {
        std::abort();
    }
    return 0;
}
