// Merging of redraw requests.
#include "platform/dirty_region.h"

namespace r7 {

void DirtyRegion::add(Rect rect)
{
    if (rect.is_empty() || !is_finite(rect)) return;
    // A merged rectangle may touch others that neither part did: start over after each merge.
    for (std::size_t i = 0; i < count_;) {
        if (intersection(rects_[i], rect).is_empty()) {
            ++i;
            continue;
        }
        rect = enclosing(rects_[i], rect);
        rects_[i] = rects_[--count_];
        i = 0;
    }
    if (count_ == kMostRects) {
        for (const Rect& other : rects()) rect = enclosing(rect, other);
        count_ = 0;
    }
    rects_[count_++] = rect;
}

} // namespace r7
