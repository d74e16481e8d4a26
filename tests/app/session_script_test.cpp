// What no session may hold, and which words refuse it. The sessions themselves are what is read.
#include "app/session_script.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace r7 {
namespace {

TEST(SessionScript, SaysWhatIsWrong)
{
    const std::string form = "press NAME [at X Y] [clicks N] [right]";
    const struct {
        std::string text, what;
    } cases[] = {
        {"Press output_level", R"(there is no command "Press")"},
        {"unit curves 1", R"(there is no command "unit curves")"},
        {"press", "a word is missing: " + form},
        {"press output_level right at 1 2", R"("at" is a word too many: )" + form},
        {"show", "a word is missing: show NAME ..."},
        {"press panel", R"(there is no view "panel")"},
        {"show unit3", R"(there is nothing to show with the name "unit3")"},
        {"scroll output_level 1e999", R"("1e999" is not a number in range)"},
        {"unit parameter 30 1e39", R"("1e39" is not a number in range)"},
        {"unit parameter 54 0", "parameters go from 0 to 53, not to 54"},
        {"unit parameter -1 0", R"("-1" is not a whole number in range)"},
        {"unit curve 3 0 0 0 0 0 0 0 0 0 0 0 0 0 0", R"(a stage is 1 or 2, not "3")"},
        {"press output_level clicks 0", "clicks are 1 or more, not 0"},
        {"wait nan", "a wait is 0 to 1000000 seconds, not nan"},
        {"response output_level 1", R"(the view "output_level" has no response)"},
        {"click output_level\ndrag 1 1", "no button is down"},
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
    std::mt19937 random(7);
    int refused = 0;
    for (int round = 0; round < 5'000; ++round) {
        std::string text = seed;
        for (int change = 0; change < 3; ++change) {
            char& at = text[random() % text.size()];
            at = random() % 4 == 0 ? static_cast<char>(random()) : seed[random() % seed.size()];
        }
        const auto script = read_script(text);
        const auto* error = std::get_if<ScriptError>(&script);
        if (!error) continue;
        ++refused;
        ASSERT_TRUE(error->line >= 1 && error->line <= 1 + std::ranges::count(text, '\n')) << round;
    }
    EXPECT_TRUE(refused > 2'500 && refused < 5'000) << "some changes are in a comment";
}

} // namespace
} // namespace r7
