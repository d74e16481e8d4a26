// The factory and descriptions: what loads, and what a bad one gets.
#include "host/panel_loader.h"
#include "host/view_factory.h"
#include "platform/interface_description.h"
#include "platform/log.h"
#include "tests/support/scratch_folder.h"

#include <gtest/gtest.h>

#include <tuple>

namespace r7 {
namespace {

// A bundle of its own with a description and no images.
struct PanelLoader : testing::Test, ScratchFolder {
    const std::string good_description = bytes_of(R7_RESOURCES "/QmR7View.xml");
    const std::shared_ptr<const Bundle> bundle = std::make_shared<Bundle>(folder);

    void write(const std::string& text) const { ScratchFolder::write("QmR7View.xml", text); }

    // Why the description is refused; empty where it is not.
    std::string problem() const
    {
        const auto loaded = load_panel(bundle);
        const auto* problem = std::get_if<DescriptionProblem>(&loaded);
        return problem ? problem->text : "";
    }
};

TEST_F(PanelLoader, ThePanelNeedsNoImages)
{
    write(good_description);
    QmR7ViewFactory factory(bundle);
    EXPECT_EQ(factory.interfaceVersion(), 0u);
    EXPECT_EQ(factory.description(), "Quillmere: R7");
    const auto panel = factory.uiViewForAudioUnit_withSize(nullptr, {12, 34});
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->frame(), (Rect{0, 0, 960, 600})) << "the preferred size is not looked at";
}

TEST_F(PanelLoader, ABadDescriptionGivesTheMessageAndNoView)
{
    // What is replaced, by what (by nothing: the whole line goes), and why the panel is refused then.
    const std::tuple<std::string_view, std::string_view, const char*> rows[] = {
        {"\"output_level\"", "", "outlet output_level is missing"},
        {"\"output_level\"", "\"delay_depth_knob\"", "stands twice"},
        {"\"output_level\"", "\"loudness\"", "outlet loudness is unknown"},
        {"\"QmIndicatorLightView\"", "\"QmLamp\"", "class QmLamp is unknown"},
        {"\"QmIndicatorLightView\"", "\"QmKnobView\"", "delay_on_indicator_light takes no QmKnobView"},
        {"\"output_level\" x=", "\"output_level\" x=\"nan\" old=", "x is not a finite number"},
        {"\"output_level\" x=", "\"output_level\" x=\"12pt\" old=", "x is not a finite number"},
        {"\"output_level\" x=", "\"output_level\" old=", "no x"},
        {"width=\"960\"", "width=\"1e9\"", "width is out of range"},
        {"height=\"600\"", "height=\"0\"", "height is out of range"},
        {"\"QmR7View\"", "\"QmR8View\"", "not a QmR7View"},
        {"<view class=\"QmIndicatorLightView\"", "<room class=\"QmIndicatorLightView\"", "element <room>"},
        {"\"output_level\" x=", "\"output_level\" colour=\"red\" x=", "unknown"},
        {"</panel>", "", "line "},
    };
    for (const auto& [from, to, expected] : rows) {
        SCOPED_TRACE(expected);
        std::string bad = good_description;
        std::size_t at = bad.find(from), length = from.size();
        ASSERT_NE(at, std::string::npos);
        if (to.empty()) {
            length = bad.find('\n', at) - bad.rfind('\n', at);
            at = bad.rfind('\n', at);
        }
        bad.replace(at, length, to);
        write(bad);
        EXPECT_NE(problem().find(expected), std::string::npos) << problem();

        std::vector<std::string> heard;
        const LogCapture capture([&](std::string_view text) { heard.emplace_back(text); });
        EXPECT_FALSE(QmR7ViewFactory(bundle).uiViewForAudioUnit_withSize(nullptr, {}));
        EXPECT_EQ(heard, (std::vector<std::string>{"R7: Unable to load nib for view."}));
    }
}

TEST_F(PanelLoader, AMissingEmptyOrTornFileIsRefused)
{
    EXPECT_EQ(problem(), "it is missing");
    write("");
    EXPECT_EQ(problem(), "it cannot be read, or is empty");
    write(std::string(2 << 20, ' '));
    EXPECT_EQ(problem(), "it is too large");
    for (std::size_t length = 1; length < good_description.size() - 2; length += 97) {
        write(good_description.substr(0, length));
        EXPECT_NE(problem(), "") << length;
    }
    // Entities that grow without end are stopped, not unfolded.
    std::string bomb = "<!DOCTYPE panel [<!ENTITY a \"aaaaaaaaaaaaaaaaaaaaaaaaaaaaaaaa\">";
    for (char name = 'b'; name < 'p'; ++name) {
        bomb += std::string("<!ENTITY ") + name + " \"";
        for (int i = 0; i < 10; ++i) bomb += std::string("&") + static_cast<char>(name - 1) + ";";
        bomb += "\">";
    }
    write(bomb + "]><panel class=\"QmR7View\" width=\"&o;\" height=\"600\"/>");
    EXPECT_NE(problem(), "");
}

} // namespace
} // namespace r7
