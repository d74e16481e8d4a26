// What a hand does to the view in a Mac's window is what the same session does off the screen.
#include "tests/cocoa/cocoa_rig.h"

namespace r7 {
namespace {

TEST_F(CocoaTest, KnobsTurnByDragsKeysWheelAndClicks)
{
    play(R"(
        press delay_depth_knob at 40 40
        drag 10 -15
        drag 3 0 control
        drag 1500 0             # out of the window, and back
        drag -1550 40
        drag 5 0
        release
        press output_level at 30 30 right
        drag -100 0
        drag 0 300
        release
        scroll wave_shaper_one_a 1
        scroll wave_shaper_one_a 1
        scroll wave_shaper_one_a -1
        click output_level
        click output_level clicks 2
        click output_level clicks 3
        press start_vowel_mode at 10 10
        drag 20 0
        release
        click start_vowel_mode at 50 10
        press end_vowel_mode at 30 16 right
        drag 20 -30
        release
        scroll envelope_mode 1
        click envelope_mode right
        click envelope_mode clicks 2 right)");
}

TEST_F(CocoaTest, CurvesAreDrawnInAnOverlay)
{
    play(R"(
        click wave_shaper_one_display
        click wave_shaper_one_display clicks 2
        press zoomed_wave_shaper_display at 367 297
        drag -40 0
        drag 0 50 control
        release
        press zoomed_wave_shaper_display at 289 216
        drag 10 -20 shift
        drag 7 -20 option
        drag 10 10 shift option
        release
        press wave_shaper_one_a at 40 40    # beside the editor
        drag 20 0
        release
        click pre_tone_control_display
        click pre_tone_control_display clicks 2
        click zoomed_wave_shaper_display at 530 55
        click zoomed_wave_shaper_display at 530 85
        click zoomed_wave_shaper_display at 530 25
        click wave_shaper_two_display
        click wave_shaper_two_display clicks 2
        press zoomed_wave_shaper_display at 367 297 right
        drag 0 350
        release
        click zoomed_wave_shaper_display at 530 25)");
}

TEST_F(CocoaTest, ToneControlsAreEditedInAnOverlay)
{
    play(R"(
        click pre_tone_control_display
        click pre_tone_control_display clicks 2
        press pre_tone_control at 377 195
        drag 0 -10
        drag 900 0              # out of the editor
        drag -900 0
        release
        press pre_tone_control at 377 205
        drag 10 0 control
        drag 10 -5 option
        release
        scroll pre_tone_control -1 at 378 205
        scroll pre_tone_control 1 at 378 205
        scroll wave_shaper_one_a 1
        click pre_tone_control at 620 70
        click pre_tone_control at 620 40
        click post_tone_control_display
        click post_tone_control_display clicks 2
        press post_tone_control at 203 195
        drag 10 -10
        drag 10 0 option
        release
        click post_tone_control at 620 40)");
}

} // namespace
} // namespace r7
