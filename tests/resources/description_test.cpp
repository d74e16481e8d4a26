// The panel's interface description: whole, within the panel, nothing over anything else.
#include "tests/resources/committed.h"

#include <cmath>

namespace r7::art {
namespace {

// What an open editor leaves in sight: the displays and the waveshapers' controls.
bool stays_in_sight(const ViewDescription& view)
{
    return view.outlet.ends_with("_display") || view.outlet.starts_with("wave_shaper_");
}

TEST(Description, FramesLieInThePanelOnTheGridAndOverNoOther)
{
    const InterfaceDescription description = described_panel();
    const Rect bounds{0.0, 0.0, description.panel_size.width, description.panel_size.height};
    for (const ViewDescription& view : description.views) {
        EXPECT_EQ(intersection(view.frame, bounds), view.frame) << view.outlet;
        for (const double edge : {view.frame.x, view.frame.y, view.frame.width, view.frame.height})
            EXPECT_EQ(std::fmod(edge, 8.0), 0.0) << view.outlet;
        // Editors start hidden, and open in the panel's upper left corner.
        const Rect shown =
            view.starts_hidden ? moved_by(view.frame, {0.0, bounds.height - view.frame.height}) : view.frame;
        for (const ViewDescription& other : description.views) {
            if (&other == &view || other.starts_hidden || (view.starts_hidden && !stays_in_sight(other)))
                continue;
            EXPECT_TRUE(intersection(shown, other.frame).is_empty()) << view.outlet << ' ' << other.outlet;
        }
    }
}

} // namespace
} // namespace r7::art
