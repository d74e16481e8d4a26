// What the transcript tells that no session brings about: overlay windows, and when it begins.
#include "app/transcript.h"

#include "app/offscreen_panel.h"
#include "app/open_overlay.h"

#include <gtest/gtest.h>

namespace r7 {
namespace {

/// A panel whose transcript goes to a file of its own.
struct Rig {
    std::FILE* file = std::tmpfile();
    Transcript transcript{file};
    std::unique_ptr<OffscreenPanel> stage =
        OffscreenPanel::open(std::make_shared<const Bundle>(R7_RESOURCES), 1.0, &transcript);

    ~Rig() { std::fclose(file); }

    QmR7View& panel() { return stage->panel(); }
    void begin()
    {
        transcript.begin([this] { return open_overlay(panel()); });
    }

    std::string text()
    {
        std::string text(static_cast<std::size_t>(std::ftell(file)), '\0');
        std::rewind(file);
        text.resize(std::fread(text.data(), 1, text.size(), file));
        return text;
    }
};

TEST(Transcript, TellsOfAnOverlayWindowInItsPlaceAmongTheOtherLines)
{
    Rig rig;
    rig.begin();
    Window overlay({100.0, 340.5, 640.0, 360.0});
    rig.panel().set_au_parameter_to_value(30, 0.5F);
    overlay.set_content_view(rig.panel().output_level);
    rig.stage->window().window().add_child_window(overlay);
    rig.panel().set_au_parameter_to_value(31, 0.25F);
    rig.transcript.note_overlay();
    rig.stage->window().window().remove_child_window(overlay);
    for (int twice = 0; twice < 2; ++twice) rig.transcript.note_overlay();
    EXPECT_EQ(rig.text(), "set 30 0.5\n"
                          "overlay open output_level 100 340.5 640 360\n"
                          "set 31 0.25\n"
                          "overlay close\n");
}

TEST(Transcript, PrintsNothingBeforeItBegins)
{
    Rig rig;
    rig.transcript.set_prints_events(true);
    rig.panel().set_au_parameter_to_value(30, 0.5F);
    rig.stage->unit().automate(31, 0.5F);
    rig.stage->advance(std::chrono::seconds(1));
    rig.begin();
    const _QM_R7_Bezier_Sequence record = rig.stage->unit().record(Stage::one);
    AudioUnitSetProperty(rig.stage->unit().handle(), 80111, 0, 0, &record, sizeof record);
    EXPECT_EQ(rig.text(), "write 80111 304\n");
}

} // namespace
} // namespace r7
