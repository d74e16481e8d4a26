// What is to be redrawn: a few rectangles that never overlap by more than they must.
#pragma once

#include "platform/geometry.h"

#include <array>
#include <cstddef>
#include <span>

namespace r7 {

/// Collects redraw requests without allocating.
///
/// Requests that touch each other merge into the rectangle around both; when there are more than fit, all
/// merge into one. The union of the requests is always covered.
class DirtyRegion final {
public:
    static constexpr std::size_t kMostRects = 16;

    bool is_empty() const { return count_ == 0; }
    std::span<const Rect> rects() const { return {rects_.data(), count_}; }
    void clear() { count_ = 0; }
    /// Adds a request; an empty or non-finite one adds nothing.
    void add(Rect rect);

private:
    std::array<Rect, kMostRects> rects_{};
    std::size_t count_ = 0;
};

} // namespace r7
