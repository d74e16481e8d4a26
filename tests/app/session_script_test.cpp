// The grammar of sessions: what is read, and what is refused with which words.
#include "app/session_script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>

namespace r7 {
namespace {

Script read(std::string_view text)
{
    auto script = read_script(text);
    if (const auto* error = std::get_if<ScriptError>(&script)) {
        ADD_FAILURE() << text << ": " << error->what;
        return {};
    }
    return std::get<Script>(std::move(script));
}

/// The only command of a line.
template <typename Command>
Command read_one(std::string_view line)
{
    const Script script = read(line);
    const auto* command = script.size() == 1 ? std::get_if<Command>(&script.front().command) : nullptr;
    EXPECT_TRUE(command) << line;
    return command ? *command : Command{};
}

TEST(SessionScript, ReadsPressesWithTheirOptionalWords)
{
    const auto plain = read_one<session::Press>("press delay_depth_knob");
    EXPECT_EQ(plain.view->name, "delay_depth_knob");
    EXPECT_FALSE(plain.at);
    EXPECT_EQ(plain.clicks, 1);
    EXPECT_EQ(plain.button, MouseButton::primary);

    const auto full = read_one<session::Press>("press envelope_mode at 3.5 -inf clicks 2 right");
    EXPECT_EQ(full.at, (Point{3.5, -std::numeric_limits<double>::infinity()}));
    EXPECT_EQ(full.clicks, 2);
    EXPECT_EQ(full.button, MouseButton::secondary);

    EXPECT_EQ(read_one<session::Click>("click output_level right").press.button, MouseButton::secondary);
    const auto scroll = read_one<session::Scroll>("scroll output_level -1e-3 at 1 2");
    EXPECT_EQ(scroll.delta_y, -1e-3);
    EXPECT_EQ(scroll.at, (Point{1.0, 2.0}));
}

TEST(SessionScript, ReadsDragsWithTheirModifiers)
{
    const Script script =
        read("press output_level\ndrag 10 -15\ndrag 0.1 nan control shift option\ndrag 1 2 shift\n");
    ASSERT_EQ(script.size(), 4U);
    const auto drag = [&](std::size_t i) { return std::get<session::Drag>(script[i].command); };
    EXPECT_EQ(drag(1).delta_x, 10.0);
    EXPECT_EQ(drag(1).delta_y, -15.0);
    EXPECT_EQ(drag(1).modifiers, Modifiers::none);
    EXPECT_EQ(drag(2).delta_x, 0.1) << "in double precision";
    EXPECT_EQ(drag(2).modifiers, Modifiers::control | Modifiers::shift | Modifiers::option);
    EXPECT_EQ(drag(3).modifiers, Modifiers::shift);
}

TEST(SessionScript, ReadsWhatTheHostDoes)
{
    EXPECT_EQ(read_one<session::Wait>("wait 0.05").duration, std::chrono::milliseconds(50));
    const auto parameter = read_one<session::UnitParameter>("unit parameter 53 0.1");
    EXPECT_EQ(parameter.id, 53U);
    EXPECT_EQ(parameter.value, 0.1F);
    const auto level = read_one<session::UnitLevel>("unit level 2 0.1");
    EXPECT_EQ(level.stage, Stage::two);
    EXPECT_EQ(level.value, 0.1);
    const auto curve = read_one<session::UnitCurve>("unit curve 1 0 1 2 3 4 5 6 7 8 9 10 11 12 13");
    EXPECT_EQ(curve.stage, Stage::one);
    EXPECT_EQ(curve.points.front(), (AmplitudePoint{0, 1}));
    EXPECT_EQ(curve.points.back(), (AmplitudePoint{12, 13}));
    const auto event = read_one<session::UnitEvent>("unit event 1 4294967295");
    EXPECT_EQ(event.type, 1U);
    EXPECT_EQ(event.id, 4294967295U);
    read_one<session::UnitBind>("unit bind");
    read_one<session::UnitUnbind>("unit unbind");
}

TEST(SessionScript, ReadsQuestions)
{
    EXPECT_EQ(
        read_one<session::Show>("show unit panel record1 record2 unit1 unit2 wah_mode_light").subjects.size(),
        7U);
    const auto frame = read_one<session::Frame>("frame panel output_level");
    ASSERT_EQ(frame.views.size(), 2U);
    EXPECT_EQ(frame.views[0], nullptr);
    EXPECT_EQ(frame.views[1]->name, "output_level");
    EXPECT_TRUE(read_one<session::Events>("events on").on);
    EXPECT_FALSE(read_one<session::Events>("events off").on);
    EXPECT_EQ(read_one<session::Picture>("picture a/b.png").view, nullptr);
    EXPECT_EQ(read_one<session::Picture>("picture b.png output_level").view->name, "output_level");
}

TEST(SessionScript, SkipsCommentsAndBlanksAndCountsLines)
{
    EXPECT_TRUE(read("").empty());
    const Script script = read("# a session\r\n\n \t show \t unit#and no more\r\n\nwait 1");
    ASSERT_EQ(script.size(), 2U);
    EXPECT_EQ(script[0].line, 3);
    EXPECT_EQ(std::get<session::Show>(script[0].command).subjects.size(), 1U);
    EXPECT_EQ(script[1].line, 5) << "the last line needs no end";
}

TEST(SessionScript, SaysWhatIsWrong)
{
    constexpr std::string_view kPressForm = "press NAME [at X Y] [clicks N] [right]";
    const struct {
        std::string text;
        std::string what;
    } cases[] = {
        {"turn output_level", R"(there is no command "turn")"},
        {"unit", R"(there is no command "unit")"},
        {"unit curves 1", R"(there is no command "unit curves")"},
        {"events", R"(there is no command "events")"},
        {"Press output_level", R"(there is no command "Press")"},
        {"press", std::string("a word is missing: ").append(kPressForm)},
        {"press output_level at 1", std::string("a word is missing: ").append(kPressForm)},
        {"press output_level clicks", std::string("a word is missing: ").append(kPressForm)},
        {"press output_level right at 1 2", std::string(R"("at" is a word too many: )").append(kPressForm)},
        {"show", "a word is missing: show NAME ..."},
        {"wait 1 2", R"("2" is a word too many: wait SECONDS)"},
        {"events on off", R"("off" is a word too many: events on)"},
        {"unit bind 1", R"("1" is a word too many: unit bind)"},
        {"unit curve 1 0 0 0 0 0 0 0 0 0 0 0 0 0",
         "a word is missing: unit curve STAGE X1 Y1 X2 Y2 X3 Y3 X4 Y4 X5 Y5 X6 Y6 X7 Y7"},
        {"press output", R"(there is no view "output")"},
        {"press panel", R"(there is no view "panel")"},
        {"frame unit", R"(there is no view "unit")"},
        {"picture a.png unit1", R"(there is no view "unit1")"},
        {"show unit3", R"(there is nothing to show with the name "unit3")"},
        {"scroll output_level 0x10", R"("0x10" is not a number in range)"},
        {"scroll output_level 1e999", R"("1e999" is not a number in range)"},
        {"unit parameter 30 1e39", R"("1e39" is not a number in range)"},
        {"unit parameter 54 0", "parameters go from 0 to 53, not to 54"},
        {"unit parameter -1 0", R"("-1" is not a whole number in range)"},
        {"unit parameter 1.5 0", R"("1.5" is not a whole number in range)"},
        {"unit level 0 1", R"(a stage is 1 or 2, not "0")"},
        {"unit curve 3 0 0 0 0 0 0 0 0 0 0 0 0 0 0", R"(a stage is 1 or 2, not "3")"},
        {"press output_level clicks 0", "clicks are 1 or more, not 0"},
        {"wait -0.1", "a wait is 0 to 1000000 seconds, not -0.1"},
        {"wait nan", "a wait is 0 to 1000000 seconds, not nan"},
        {"wait inf", "a wait is 0 to 1000000 seconds, not inf"},
        {"response output_level 1", R"(the view "output_level" has no response)"},
        {"release", "no button is down"},
        {"drag 1 1", "no button is down"},
        {"click output_level\ndrag 1 1", "no button is down"},
        {"press output_level\nrelease\nrelease", "no button is down"},
        {"press output_level\npress output_level right", "a button is down already"},
        {"press output_level\nclick output_level", "a button is down already"},
    };
    for (const auto& [text, what] : cases) {
        const auto script = read_script(text);
        const auto* error = std::get_if<ScriptError>(&script);
        ASSERT_TRUE(error) << text;
        EXPECT_EQ(error->what, what) << text;
        EXPECT_EQ(error->line, 1 + std::ranges::count(text, '\n')) << text << ": the last line is wrong";
    }
}

TEST(SessionScript, ReadsOrRefusesWhateverBytesItIsGiven)
{
    const std::string seed =
        "press output_level at 1 2 clicks 2 right\ndrag 1e3 -2 control\nrelease # over\n"
        "unit curve 1 0 0 1 1 2 2 3 3 4 4 5 5 6 6\nunit event 3 80110\nshow unit panel\nwait 1\n";
    constexpr unsigned kSeed = 7;
    std::mt19937 random(kSeed);
    int refused = 0;
    for (int round = 0; round < 5'000; ++round) {
        std::string text = seed;
        for (int change = 0; change < 3; ++change) {
            char& at = text[random() % text.size()];
            at = random() % 4 == 0 ? static_cast<char>(random()) : seed[random() % seed.size()];
        }
        const auto script = read_script(text);
        if (const auto* error = std::get_if<ScriptError>(&script)) {
            ++refused;
            ASSERT_GE(error->line, 1) << "seed " << kSeed << ", round " << round;
            ASSERT_LE(error->line, 1 + std::ranges::count(text, '\n'))
                << "seed " << kSeed << ", round " << round;
            ASSERT_FALSE(error->what.empty());
        }
    }
    EXPECT_GT(refused, 2'500);
    EXPECT_LT(refused, 5'000) << "some changes are in a comment";
}

} // namespace
} // namespace r7
