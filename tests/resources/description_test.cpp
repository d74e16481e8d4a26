// The panel's interface description: whole, within the panel, nothing over anything else.
#include "tests/resources/described_panel.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace r7::art {
namespace {

bool is_editor(const ViewDescription& view)
{
    return view.starts_hidden;
}

TEST(Description, FramesLieInThePanelOnTheGridAndOverNoOther)
{
    const InterfaceDescription description = described_panel();
    const Rect bounds{0.0, 0.0, description.panel_size.width, description.panel_size.height};
    for (const ViewDescription& view : description.views) {
        EXPECT_EQ(intersection(view.frame, bounds), view.frame) << view.outlet;
        for (const double edge : {view.frame.x, view.frame.y, view.frame.width, view.frame.height})
            EXPECT_EQ(std::fmod(edge, 8.0), 0.0) << view.outlet;
        for (const ViewDescription& other : description.views) {
            if (&other == &view || is_editor(view) || is_editor(other)) continue;
            EXPECT_TRUE(intersection(view.frame, other.frame).is_empty())
                << view.outlet << ' ' << other.outlet;
        }
    }
}

TEST(Description, AnEditorCoversNeitherTheDisplaysNorTheWaveshapersControls)
{
    const InterfaceDescription description = described_panel();
    for (const ViewDescription& editor : description.views) {
        if (!is_editor(editor)) continue;
        const Rect opened =
            moved_by(editor.frame, {0.0, description.panel_size.height - editor.frame.height});
        for (const ViewDescription& view : description.views) {
            if (is_editor(view) ||
                !(view.outlet.ends_with("_display") || view.outlet.starts_with("wave_shaper_")))
                continue;
            EXPECT_TRUE(intersection(opened, view.frame).is_empty())
                << editor.outlet << " over " << view.outlet;
        }
    }
}

} // namespace
} // namespace r7::art
