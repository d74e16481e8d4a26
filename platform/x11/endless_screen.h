// A screen without edges, for drags.
#pragma once

#include "platform/x11/pointer_tracker.h"

#include <optional>

namespace r7 {

/// Lets a drag go on past the screen's edges.
///
/// A pointer that nears an edge is brought back to the middle, and all that the display reports of it
/// afterwards is moved to where the hand has taken it: neither places nor the distances between them tell
/// that it was. This class is the reckoning; whoever owns it moves the pointer.
class X11EndlessScreen final {
public:
    /// In pixels: more than a quick hand goes while the display is being asked to bring the pointer back, or
    /// what it goes beyond the edge is lost.
    static constexpr int kNearEdge = 48;

    /// A place on the screen, in pixels from its top left corner.
    struct Place {
        int x = 0;
        int y = 0;
        bool operator==(const Place&) const = default;
    };

    X11EndlessScreen(int width, int height) : width_(width), height_(height) {}

    /// The pointer as it would be on a screen without edges. To be told of every report, in order.
    X11Pointer follow(const X11Pointer& reported);
    /// Where the dragged pointer that was told of last is to be brought now, or nothing.
    std::optional<Place> bring_back();
    /// Ends a drag. Where the pointer is to be put then, if it was ever brought back: where the hand has
    /// taken it, or the nearest place of the screen.
    std::optional<Place> end();

private:
    Place middle() const { return {width_ / 2, height_ / 2}; }

    int width_;
    int height_;
    Place last_;            // as reported
    Place motion_;          // that led there
    Place beyond_;          // from where it is reported to where the hand has taken it
    bool is_away_ = false;  // brought back in this drag
    bool is_asked_ = false; // to be brought back, and not yet reported there
};

} // namespace r7
