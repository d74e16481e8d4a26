// How deep each pixel of a mask lies, in two passes for each level:
//   1. rows: the distance to the nearer end of the covered run;
//   2. columns: for each covered run, the lower envelope of the parabolas over its pixels and its two ends.
#include "controls/mask_depth.h"

#include <algorithm>
#include <cmath>

namespace r7 {

namespace {

constexpr int kSteps = 256 / MaskDepth::kLevels;

// Calls `visit(first, last)` for every run of covered pixels, `last` not included.
template <typename Covered, typename Visit>
void each_run(int length, Covered covered, Visit visit)
{
    for (int i = 0; i < length;) {
        if (!covered(i)) {
            ++i;
            continue;
        }
        const int first = i;
        while (i < length && covered(i)) ++i;
        visit(first, i);
    }
}

} // namespace

const Plane<float>& MaskDepth::of(const Mask& mask)
{
    depths_.reset(mask.width(), mask.height());
    envelope_.resize(static_cast<std::size_t>(mask.height()) + 2);
    // The middle of each level, so that edges are neither too high nor too low in the mean.
    for (int level = 0; level < kLevels; ++level)
        add_level(mask, static_cast<std::uint8_t>(level * kSteps + kSteps / 2));
    return depths_;
}

void MaskDepth::add_level(const Mask& mask, std::uint8_t threshold)
{
    across_.reset(mask.width(), mask.height());
    for (int y = 0; y < mask.height(); ++y) {
        const auto covered = [&](int x) { return mask.at(x, y) >= threshold; };
        each_run(mask.width(), covered, [&](int left, int right) {
            for (int x = left; x < right; ++x) across_.at(x, y) = std::min(x - left + 1, right - x);
        });
    }
    for (int x = 0; x < mask.width(); ++x) {
        const auto covered = [&](int y) { return across_.at(x, y) > 0; };
        each_run(mask.height(), covered, [&](int top, int bottom) { add_run(x, top, bottom); });
    }
}

// The two pixels around the run are outside: nothing beyond them is nearer than they are.
void MaskDepth::add_run(int x, int top, int bottom)
{
    Nearest* const first = envelope_.data();
    Nearest* last = first;
    *last = {top - 1, 0, top - 1};
    const auto squared_at = [](const Nearest& nearest, int y) {
        return (y - nearest.y) * (y - nearest.y) + nearest.squared;
    };
    for (int y = top; y <= bottom; ++y) {
        const int across = y < bottom ? across_.at(x, y) : 0;
        const Nearest next{y, across * across, 0};
        while (last > first && squared_at(*last, last->from) > squared_at(next, last->from)) --last;
        // From the first pixel on where `next` is nearer; both numbers are above 0.
        const int from = 1 + (next.y * next.y - last->y * last->y + next.squared - last->squared) /
                                 (2 * (next.y - last->y));
        if (from < bottom) *++last = {next.y, next.squared, from};
    }
    for (int y = bottom - 1; y >= top; --y) {
        while (last->from > y) --last;
        depths_.at(x, y) += std::sqrt(static_cast<float>(squared_at(*last, y))) / kLevels;
    }
}

} // namespace r7
