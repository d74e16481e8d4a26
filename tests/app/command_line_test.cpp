// The forms of the command line, and what is none of them.
#include "app/command_line.h"

#include <gtest/gtest.h>

#include <iterator>
#include <sstream>

namespace r7 {
namespace {

/// What the words between blanks ask for.
Request read(const std::string& line)
{
    std::istringstream words("r7 " + line);
    const std::vector<std::string> kept{std::istream_iterator<std::string>(words), {}};
    std::vector<const char*> arguments;
    for (const std::string& word : kept) arguments.push_back(word.c_str());
    return read_command_line(static_cast<int>(arguments.size()), arguments.data());
}

TEST(CommandLine, OpensAWindowPlaysFilesAndPaintsAText)
{
    const auto plain = std::get<WindowOptions>(read(""));
    EXPECT_TRUE(plain.status && !plain.trace && !plain.scale && !plain.resources);
    const auto full = std::get<WindowOptions>(read("--trace --scale 2.5 --no-status --resources here"));
    EXPECT_TRUE(full.trace && full.scale == 2.5 && !full.status && full.resources == "here");
    const auto play = std::get<PlayOptions>(read("play snapshot play"));
    EXPECT_EQ(play.sessions, (std::vector<std::filesystem::path>{"snapshot", "play"})) << "files, here";
    EXPECT_EQ(std::get<SnapshotOptions>(read("snapshot --scale=4 x.png")).scale, 4.0);
    const auto text = std::get<TextOptions>(read("text words x.png --size 9.5 --color 1,0.5,0 --height 299 "
                                                 "--shade 0.002 --width 4096 --height-px 1"));
    EXPECT_EQ(text.color, (Rgba{1.0, 0.5, 0.0, 1.0}));
    EXPECT_TRUE(text.font_size == 9.5f && text.height_scale == 299.0f && text.shade_scale == 0.002f);
    EXPECT_TRUE(text.width == 4096 && text.height == 1);
}

TEST(CommandLine, RefusesEverythingElse)
{
    const std::pair<std::string, std::vector<const char*>> wrong[] = {
        {"", {"--fast", "play --pictures p", "play a --scale 1", "snapshot", "snapshot a b", "text a"}},
        {"--scale ", {"", "0.49", "4.01", "nan", "0x2", "1 --scale 2", "2 snapshot a"}},
        {"--trace ", {"play a", "text a b"}},
        {"--no-status ", {"play a"}},
        {"--resources d ", {"snapshot a"}},
        {"text a b --size ", {"0", "1001"}},
        {"text a b --height ", {"300"}},
        {"text a b --shade ", {"0.001", "nan"}},
        {"text a b --width ", {"4097"}},
        {"text a b --height-px ", {"1.5"}},
        {"text a b --color ", {"1,1", "1,1,1.1", "1,1,1,1"}},
    };
    for (const auto& [begin, ends] : wrong)
        for (const char* end : ends) {
            const Request request = read(begin + end);
            const auto* error = std::get_if<UsageError>(&request);
            EXPECT_TRUE(error && !error->text.empty()) << begin << end;
        }
}

} // namespace
} // namespace r7
