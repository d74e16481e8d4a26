// A screen without edges, for drags.
#pragma once

#include "platform/cairo/pixels.h"
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
    /// In pixels: farther than a quick hand goes while the display is asked to bring the pointer back. What
    /// it goes beyond the edge meanwhile is lost.
    static constexpr int kNearEdge = 48;

    /// A place on the screen, in pixels from its top left corner; y grows downward.
    struct Place {
        int x = 0;
        int y = 0;
    };

    /// Starts a drag that meets these edges, the screen's or its monitor's.
    void begin(const PixelRect& edges);
    /// The pointer as it would be on a screen without edges. To be told of every report, in order.
    X11Pointer follow(const X11Pointer& reported);
    /// Where the dragged pointer that was told of last is to be brought now, or nothing.
    std::optional<Place> bring_back();
    /// Ends the drag. Where the pointer is to be put if it was ever brought back: where the hand has taken
    /// it, which may be beyond the screen.
    std::optional<Place> end();

private:
    Place middle() const { return {edges_.x + edges_.width / 2, edges_.y + edges_.height / 2}; }

    PixelRect edges_;
    Place last_;            // as reported
    Place motion_;          // that led there
    Place beyond_;          // from where it is reported to where the hand has taken it
    bool is_away_ = false;  // brought back in this drag
    bool is_asked_ = false; // to be brought back, and not yet reported there
};

} // namespace r7
