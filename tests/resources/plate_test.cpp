// The printed plate: a readable label at every knob, and images that are what the program draws.
#include "resources/art/images.h"
#include "tests/resources/committed.h"
#include "tests/resources/eyes.h"

namespace r7::art {
namespace {

// The luminances of a rectangle of the background, in points, from the darkest on.
std::vector<double> luminances(const r7::Canvas& background, const Rect& area)
{
    std::vector<double> values;
    for (int y = static_cast<int>(area.y); y < static_cast<int>(area.top()); ++y)
        for (int x = static_cast<int>(area.x); x < static_cast<int>(area.right()); ++x)
            values.push_back(luminance(background.at(x, y)));
    std::ranges::sort(values);
    return values;
}

TEST(Plate, EveryKnobHasAReadableLabelThatTouchesNoNeighbour)
{
    const r7::Canvas background = image_named("r7-bg");
    for (const ViewDescription& view : described_panel().views) {
        if (view.class_name != "QmKnobView") continue;
        const Rect room{view.frame.x, view.frame.y - 15.0, view.frame.width, 13.0};
        const std::vector<double> label = luminances(background, room);
        const double median = label[label.size() / 2];
        EXPECT_GE(contrast(label.back(), median), 4.5) << view.outlet;
        for (const double edge : {room.x, room.right() - 2.0}) {
            const double brightest = luminances(background, {edge, room.y, 2.0, room.height}).back();
            EXPECT_LT(contrast(brightest, median), 1.3) << view.outlet;
        }
    }
}

// A changed frame or drawing whose images were not drawn anew is found here. Another machine's arithmetic may
// round a component the other way.
void expect_up_to_date(const ImageRow& row, int density)
{
    const Canvas art = drawn(row, density);
    const r7::Canvas fresh(make_surface(cairo_surface_reference(cairo_get_target(art.context()))));
    const r7::Canvas committed = image_named(density == 1 ? row.name : row.name + "@2x");
    ASSERT_TRUE(fresh.width() == committed.width() && fresh.height() == committed.height()) << row.name;
    int different = 0;
    for (int y = 0; y < fresh.height(); ++y)
        for (int x = 0; x < fresh.width(); ++x)
            different += step_between(fresh.at(x, y), committed.at(x, y)) > 2;
    EXPECT_LE(different, fresh.width() * fresh.height() / 1000) << row.name;
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
