// Once created, the waveshaper's views take values and rebuild without allocating.
#include "tests/waveshaper/rig.h"
#include "waveshaper/bezier_wave_shaper_response_view.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

} // namespace

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace r7 {

TEST(WaveShaperViews, AllocateNothingAfterTheirCreation)
{
    EditorRig rig;
    QM_BezierWaveShaperResponseView display({0, 0, 120, 90});
    _QM_R7_Bezier_Sequence record{};
    const std::size_t before = allocations;
    for (int round = 0; round < 50; ++round) {
        rig.view.mouseDown(rig.at(rig.place(CurvePoint::positive_mid_c1_point)));
        rig.view.mouseDragged(rig.motion(round, 3 * round - 75));
        rig.view.make_db_scale();
        rig.view.set_sine_pregain(static_cast<float>(round));
        rig.view.export_sequence_data(record);
        display.set_from_sequence_data(record);
        display.update_input_level(round);
        rig.view.set_from_sequence_data(record);
        rig.view.update_geometry();
        display.update_geometry();
    }
    EXPECT_EQ(allocations, before);
    display.set_mode_string("B"); // a new label is a new image, so the counter must count
    EXPECT_GT(allocations, before);
}

} // namespace r7
