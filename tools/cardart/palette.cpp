#include "palette.h"

// Standard library
#include <algorithm>
#include <array>
#include <map>

namespace marivale::cardart {

namespace {

struct Entry {
    QRgb color{0};
    std::int64_t count{0};
};

int channel(QRgb color, int axis) {
    return axis == 0 ? qRed(color) : axis == 1 ? qGreen(color) : qBlue(color);
}

// A run of histogram entries [begin, end) and the colour axis along which it spreads most.
struct Box {
    std::size_t begin{0};
    std::size_t end{0};
    int axis{0};
    int spread{0};
};

Box measure(const std::vector<Entry>& entries, std::size_t begin, std::size_t end) {
    std::array<int, 3> low{255, 255, 255};
    std::array<int, 3> high{0, 0, 0};
    for (std::size_t i = begin; i < end; ++i) {
        for (int axis = 0; axis < 3; ++axis) {
            const int value = channel(entries[i].color, axis);
            low[axis] = std::min(low[axis], value);
            high[axis] = std::max(high[axis], value);
        }
    }
    Box box{begin, end, 0, 0};
    for (int axis = 0; axis < 3; ++axis) {
        if (high[axis] - low[axis] > box.spread) {
            box.axis = axis;
            box.spread = high[axis] - low[axis];
        }
    }
    return box;
}

// The colour that stands for a box: its dominant colour, else the weighted mean.
QRgb representative(const std::vector<Entry>& entries, const Box& box) {
    std::int64_t total = 0;
    std::array<std::int64_t, 3> sum{0, 0, 0};
    const Entry* top = &entries[box.begin];
    for (std::size_t i = box.begin; i < box.end; ++i) {
        total += entries[i].count;
        for (int axis = 0; axis < 3; ++axis) {
            sum[axis] += channel(entries[i].color, axis) * entries[i].count;
        }
        if (entries[i].count > top->count) {
            top = &entries[i];
        }
    }
    if (top->count * 2 >= total) {
        return top->color;
    }
    return qRgb(int(sum[0] / total), int(sum[1] / total), int(sum[2] / total));
}

} // namespace

std::vector<QRgb> buildPalette(const std::vector<QRgb>& pixels, int maxColors) {
    std::map<QRgb, std::int64_t> histogram;
    for (const QRgb pixel : pixels) {
        ++histogram[pixel | 0xff000000u];
    }
    std::vector<Entry> entries;
    entries.reserve(histogram.size());
    for (const auto& [color, count] : histogram) {
        entries.push_back({color, count});
    }
    if (entries.empty()) {
        return {};
    }
    std::vector<Box> boxes{measure(entries, 0, entries.size())};
    while (static_cast<int>(boxes.size()) < maxColors) {
        const auto widest =
            std::max_element(boxes.begin(), boxes.end(),
                             [](const Box& a, const Box& b) { return a.spread < b.spread; });
        if (widest->spread == 0) {
            break;
        }
        const Box box = *widest;
        const auto first = entries.begin() + static_cast<std::ptrdiff_t>(box.begin);
        const auto last = entries.begin() + static_cast<std::ptrdiff_t>(box.end);
        std::sort(first, last, [axis = box.axis](const Entry& a, const Entry& b) {
            return channel(a.color, axis) < channel(b.color, axis);
        });
        // Split where half the box's pixels lie on either side, keeping both halves non-empty.
        std::int64_t total = 0;
        for (auto it = first; it != last; ++it) {
            total += it->count;
        }
        std::int64_t running = 0;
        std::size_t split = box.begin + 1;
        for (std::size_t i = box.begin; i + 1 < box.end; ++i) {
            running += entries[i].count;
            split = i + 1;
            if (running * 2 >= total) {
                break;
            }
        }
        *widest = measure(entries, box.begin, split);
        boxes.push_back(measure(entries, split, box.end));
    }
    std::vector<QRgb> palette;
    palette.reserve(boxes.size());
    for (const Box& box : boxes) {
        palette.push_back(representative(entries, box));
    }
    return palette;
}

int nearestColor(const std::vector<QRgb>& palette, QRgb color) {
    int best = 0;
    int bestDistance = 1 << 30;
    for (std::size_t i = 0; i < palette.size(); ++i) {
        const int dr = qRed(palette[i]) - qRed(color);
        const int dg = qGreen(palette[i]) - qGreen(color);
        const int db = qBlue(palette[i]) - qBlue(color);
        const int distance = 3 * dr * dr + 4 * dg * dg + 2 * db * db;
        if (distance < bestDistance) {
            best = static_cast<int>(i);
            bestDistance = distance;
        }
    }
    return best;
}

} // namespace marivale::cardart
