// A screen without edges, for drags.
#include "platform/x11/endless_screen.h"

#include <cmath>
#include <utility>

namespace r7 {

namespace {

double distance(X11EndlessScreen::Place a, X11EndlessScreen::Place b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

} // namespace

void X11EndlessScreen::begin(const PixelRect& edges)
{
    *this = {};
    edges_ = edges;
}

X11Pointer X11EndlessScreen::follow(const X11Pointer& reported)
{
    const Place at{reported.root_x, reported.root_y};
    // Reports of before are still on their way, and a display may put it elsewhere or not move it at all:
    // what tells is that it is suddenly nearer to the middle than to where it was.
    if (is_asked_ && distance(at, middle()) < distance(at, last_)) {
        beyond_ = {beyond_.x + last_.x - at.x, beyond_.y + last_.y - at.y};
        last_ = at;
        is_asked_ = false;
    }
    motion_ = {at.x - last_.x, at.y - last_.y};
    last_ = at;
    X11Pointer followed = reported;
    followed.x += beyond_.x;
    followed.y += beyond_.y;
    followed.root_x += beyond_.x;
    followed.root_y += beyond_.y;
    return followed;
}

std::optional<X11EndlessScreen::Place> X11EndlessScreen::bring_back()
{
    const auto nears_edge = [](int place, int motion, int low, int high) {
        return motion < 0 ? place < low + kNearEdge : motion > 0 && place >= high - kNearEdge;
    };
    if (is_asked_ || !(nears_edge(last_.x, motion_.x, edges_.x, edges_.right()) ||
                       nears_edge(last_.y, motion_.y, edges_.y, edges_.bottom())))
        return std::nullopt;
    is_asked_ = is_away_ = true;
    return middle();
}

std::optional<X11EndlessScreen::Place> X11EndlessScreen::end()
{
    const X11EndlessScreen drag = std::exchange(*this, {});
    if (!drag.is_away_) return std::nullopt;
    return Place{drag.last_.x + drag.beyond_.x, drag.last_.y + drag.beyond_.y};
}

} // namespace r7
