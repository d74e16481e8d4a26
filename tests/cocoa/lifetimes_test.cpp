// Who may go first: the view, its unit, or nobody for a while.
#include "tests/cocoa/cocoa_rig.h"

namespace r7 {
namespace {

struct CocoaLifetimes : CocoaTest {
    /// What the view does of a session that is performed on the display only.
    std::string printed_by(std::string_view session)
    {
        const Script script = std::get<Script>(read_script(session));
        for (const ScriptStep& step : script) std::visit(hand, step.command);
        return host.take_printed();
    }

    /// A view that is still there would be told of every value, too, when the next one asks for them.
    void expect_that_the_next_view_is_the_only_one()
    {
        ASSERT_EQ(host.tell("events"), "done");
        ASSERT_EQ(host.tell("open"), "done");
        const std::string printed = host.take_printed();
        EXPECT_NE(printed.find("event 0 53 0\n"), std::string::npos);
        EXPECT_EQ(printed.find("event 0 53 "), printed.rfind("event 0 53 ")) << printed;
    }
};

TEST_F(CocoaLifetimes, FiftyViewsComeAndGoWithTheirEditorsOpen)
{
    const std::string displays[] = {"pre_tone_control_display", "post_tone_control_display",
                                    "wave_shaper_one_display", "wave_shaper_two_display"};
    for (std::size_t round = 0; round < 50; ++round) {
        ASSERT_EQ(round == 0 ? "done" : host.tell("open"), "done");
        // From end to end, so that each view must have heard where the one before has left the knob.
        const bool is_even = round % 2 == 0;
        const std::string turn = std::string("press delay_depth_knob\ndrag ") + (is_even ? "100" : "-100"),
                          click = "\nclick " + displays[round % 4];
        const std::string printed = printed_by(turn + " 0\nrelease" + click + click + " clicks 2");
        ASSERT_TRUE(printed.starts_with(is_even ? "set 30 1\noverlay open " : "set 30 0\noverlay open "))
            << printed;
        ASSERT_EQ(host.tell("release view"), "done");
        ASSERT_EQ(host.take_printed(), "overlay close\n");
    }
    expect_that_the_next_view_is_the_only_one();
}

TEST_F(CocoaLifetimes, AViewOutlivesItsUnitInMidDrag)
{
    EXPECT_EQ(printed_by("press delay_depth_knob\ndrag 10 0"), "set 30 0.1\n");
    ASSERT_EQ(host.tell("release unit"), "done");
    hand(session::Drag{.delta_x = 10.0});
    hand(session::Release{});
    EXPECT_EQ(printed_by("click wave_shaper_two_display\nclick wave_shaper_two_display clicks 2"),
              "overlay open editor 100 300 560 400\n");
    ASSERT_EQ(host.tell("release view"), "done");
    ASSERT_EQ(host.tell("open"), "done");
    EXPECT_EQ(printed_by("press delay_depth_knob\ndrag 20 0\nrelease"), "overlay close\nset 30 0.2\n");
}

TEST_F(CocoaLifetimes, AUnitOutlivesItsViewInMidDragInAnEditor)
{
    play("click wave_shaper_one_display\nclick wave_shaper_one_display clicks 2");
    EXPECT_EQ(printed_by("press zoomed_wave_shaper_display at 367 297\ndrag -10 0"), "write 80110 304\n");
    ASSERT_EQ(host.tell("release view"), "done");
    hand(session::Drag{.delta_x = 10.0});
    hand(session::Release{});
    EXPECT_EQ(host.take_printed(), "overlay close\n");
    expect_that_the_next_view_is_the_only_one();
}

TEST(CocoaBundle, ADescriptionThatIsMissingIsLoggedAndThereIsNoView)
{
    const std::filesystem::path incomplete =
        std::filesystem::path(testing::TempDir()) / ("incomplete" + std::to_string(::getpid()) + ".bundle");
    std::filesystem::copy(R7_BUNDLE, incomplete, std::filesystem::copy_options::recursive);
    ASSERT_TRUE(std::filesystem::remove(incomplete / "Resources/QmR7View.xml"));
    HostProcess host(incomplete);
    EXPECT_EQ(host.tell("open"), "failed there is no view");
    EXPECT_EQ(host.take_printed(), "log R7: Unable to load nib for view.\n");
    EXPECT_EQ(host.quit(), 0);
    std::filesystem::remove_all(incomplete);
}

} // namespace
} // namespace r7
