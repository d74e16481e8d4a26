// The factory and descriptions: what loads, and what a bad one gets.
#include "host/panel_loader.h"
#include "host/view_factory.h"
#include "platform/interface_description.h"
#include "platform/log.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>
#include <string_view>

namespace r7 {
namespace {

// A bundle of its own with a description and no images.
class PanelLoader : public testing::Test {
protected:
    std::filesystem::path directory_ = std::filesystem::path(testing::TempDir()) /
                                       testing::UnitTest::GetInstance()->current_test_info()->name();
    std::shared_ptr<const Bundle> bundle_ = std::make_shared<Bundle>(directory_);

    void SetUp() override { std::filesystem::create_directories(directory_); }
    void TearDown() override { std::filesystem::remove_all(directory_); }

    void write(std::string_view text)
    {
        std::ofstream(directory_ / "QmR7View.xml", std::ios::binary) << text;
    }

    static std::string good_description()
    {
        std::ifstream file(std::filesystem::path(R7_RESOURCES) / "QmR7View.xml");
        return {std::istreambuf_iterator<char>(file), {}};
    }

    // Why the description is refused; empty where it is not.
    std::string problem()
    {
        const auto loaded = load_panel(bundle_);
        const auto* problem = std::get_if<DescriptionProblem>(&loaded);
        return problem ? problem->text : "";
    }
};

TEST_F(PanelLoader, ThePanelNeedsNoImages)
{
    write(good_description());
    QmR7ViewFactory factory(bundle_);
    EXPECT_EQ(factory.interfaceVersion(), 0u);
    EXPECT_EQ(factory.description(), "Quillmere: R7");
    const auto panel = factory.uiViewForAudioUnit_withSize(nullptr, {12, 34});
    ASSERT_TRUE(panel);
    EXPECT_EQ(panel->frame(), (Rect{0, 0, 960, 600})) << "the preferred size is not looked at";
}

TEST_F(PanelLoader, ABadDescriptionGivesTheMessageAndNoView)
{
    const struct {
        const char* what;
        std::string_view from;
        std::string_view to; // empty: the whole line goes
        const char* problem;
    } rows[] = {
        {"a missing outlet", "\"output_level\"", "", "outlet output_level is missing"},
        {"a doubled outlet", "\"output_level\"", "\"delay_depth_knob\"", "stands twice"},
        {"an unknown outlet", "\"output_level\"", "\"loudness\"", "outlet loudness is unknown"},
        {"an unknown class", "\"QmIndicatorLightView\"", "\"QmLamp\"", "class QmLamp is unknown"},
        {"another class", "\"QmIndicatorLightView\"", "\"QmKnobView\"",
         "delay_on_indicator_light takes no QmKnobView"},
        {"a frame that is not finite",
         "\"output_level\" x=", "\"output_level\" x=\"nan\" old=", "x is not a finite number"},
        {"a frame that is no number",
         "\"output_level\" x=", "\"output_level\" x=\"12pt\" old=", "x is not a finite number"},
        {"no frame", "\"output_level\" x=", "\"output_level\" old=", "no x"},
        {"an enormous panel", "width=\"960\"", "width=\"1e9\"", "width is out of range"},
        {"an empty panel", "height=\"600\"", "height=\"0\"", "height is out of range"},
        {"another panel", "\"QmR7View\"", "\"QmR8View\"", "not a QmR7View"},
        {"an unknown element", "<view class=\"QmIndicatorLightView\"", "<room class=\"QmIndicatorLightView\"",
         "unexpected element <room>"},
        {"an unknown attribute", "\"output_level\" x=", "\"output_level\" colour=\"red\" x=", "unknown"},
        {"a torn end", "</panel>", "", "line "},
    };
    for (const auto& row : rows) {
        SCOPED_TRACE(row.what);
        std::string bad = good_description();
        std::size_t at = bad.find(row.from), length = row.from.size();
        ASSERT_NE(at, std::string::npos);
        if (row.to.empty()) {
            length = bad.find('\n', at) - bad.rfind('\n', at);
            at = bad.rfind('\n', at);
        }
        bad.replace(at, length, row.to);
        write(bad);
        EXPECT_NE(problem().find(row.problem), std::string::npos) << problem();

        std::vector<std::string> heard;
        const LogCapture capture([&](std::string_view text) { heard.emplace_back(text); });
        EXPECT_FALSE(QmR7ViewFactory(bundle_).uiViewForAudioUnit_withSize(nullptr, {}));
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
    const std::string good = good_description();
    for (std::size_t length = 1; length < good.size() - 2; length += 97) {
        write(good.substr(0, length));
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
