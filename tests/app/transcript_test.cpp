// What the transcript leaves out, which sessions cannot show: they begin it before anything happens.
#include "app/transcript.h"

#include "app/offscreen_panel.h"
#include "app/open_overlay.h"

#include <gtest/gtest.h>

namespace r7 {
namespace {

TEST(Transcript, PrintsNothingBeforeItBegins)
{
    std::FILE* const file = std::tmpfile();
    Transcript transcript(file);
    transcript.set_prints_events(true);
    const auto stage = OffscreenPanel::open(std::make_shared<const Bundle>(R7_RESOURCES), 1.0, &transcript);
    stage->panel().set_au_parameter_to_value(30, 0.5F);
    stage->unit().automate(31, 0.5F);
    stage->advance(std::chrono::seconds(1));
    transcript.begin([&] { return open_overlay(stage->panel()); });
    const _QM_R7_Bezier_Sequence record = stage->unit().record(Stage::one);
    AudioUnitSetProperty(stage->unit().handle(), 80111, 0, 0, &record, sizeof record);
    std::rewind(file);
    char text[99] = "";
    EXPECT_STREQ(std::fgets(text, sizeof text, file), "write 80111 304\n");
    EXPECT_FALSE(std::fgets(text, sizeof text, file));
    std::fclose(file);
}

} // namespace
} // namespace r7
