// The printed plate: a readable label at every knob, and images that are what the program draws.
#include "resources/art/images.h"
#include "tests/resources/described_panel.h"
#include "tests/resources/picture.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace r7::art {
namespace {

// The luminances of a rectangle of the background, in points.
class Patch final {
public:
    Patch(const Picture& background, const Rect& area)
    {
        for (int y = static_cast<int>(area.y); y < static_cast<int>(area.top()); ++y)
            for (int x = static_cast<int>(area.x); x < static_cast<int>(area.right()); ++x)
                values_.push_back(luminance(background.at(x, background.height - 1 - y)));
        std::ranges::sort(values_);
    }

    double median() const { return values_[values_.size() / 2]; }
    double brightest() const { return values_.back(); }

private:
    std::vector<double> values_;
};

TEST(Plate, EveryKnobHasAReadableLabelThatTouchesNoNeighbour)
{
    const Picture background = image_named("r7-bg");
    for (const ViewDescription& view : described_panel().views) {
        if (view.class_name != "QmKnobView") continue;
        const Rect room{view.frame.x, view.frame.y - 15.0, view.frame.width, 13.0};
        const Patch patch(background, room);
        EXPECT_GE(contrast(patch.brightest(), patch.median()), 4.5) << view.outlet;
        for (const double edge : {room.x, room.right() - 2.0})
            EXPECT_LT(
                contrast(Patch(background, {edge, room.y, 2.0, room.height}).brightest(), patch.median()),
                1.3)
                << view.outlet;
    }
}

// A changed frame or drawing whose images were not drawn anew is found here. Another machine's arithmetic may
// round a component the other way.
void expect_up_to_date(const ImageRow& row, int density)
{
    const Canvas canvas = drawn(row, density);
    const Picture fresh = picture_of(cairo_get_target(canvas.context()));
    const Picture committed = image_named(density == 1 ? row.name : row.name + "@2x");
    ASSERT_EQ(fresh.width, committed.width) << row.name;
    ASSERT_EQ(fresh.pixels.size(), committed.pixels.size()) << row.name;
    std::size_t different = 0;
    for (std::size_t i = 0; i < fresh.pixels.size(); ++i)
        for (std::size_t k = 0; k < 4; ++k) {
            const double step = std::abs(fresh.pixels[i][k] - committed.pixels[i][k]);
            if (step * fresh.pixels[i][3] > 2.5 / 255.0) ++different;
        }
    EXPECT_LE(different, fresh.pixels.size() / 1000) << row.name;
}

TEST(Plate, CommittedImagesAreUpToDate)
{
    const InterfaceDescription panel = described_panel();
    for (const ImageRow& row : all_images(panel))
        for (const int density : {1, 2}) expect_up_to_date(row, density);
    for (const ImageRow& row : all_icons()) expect_up_to_date(row, 1);
}

} // namespace
} // namespace r7::art
