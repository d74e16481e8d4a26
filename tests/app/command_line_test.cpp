// The forms of the command line, and what is none of them.
#include "app/command_line.h"

#include <gtest/gtest.h>

namespace r7 {
namespace {

using Arguments = std::vector<const char*>;

Request read(Arguments arguments)
{
    arguments.insert(arguments.begin(), "r7");
    return read_command_line(static_cast<int>(arguments.size()), arguments.data());
}

TEST(CommandLine, OpensAWindowPlaysFilesAndTakesASnapshot)
{
    const auto plain = std::get<WindowOptions>(read({}));
    EXPECT_FALSE(plain.trace || plain.scale || plain.resources);
    EXPECT_TRUE(plain.status);
    EXPECT_FALSE(std::get<WindowOptions>(read({"--no-status"})).status);
    const auto full = std::get<WindowOptions>(read({"--trace", "--scale", "2.5", "--resources", "a b"}));
    EXPECT_TRUE(full.trace);
    EXPECT_EQ(full.scale, 2.5);
    EXPECT_EQ(full.resources, "a b");
    const auto play = std::get<PlayOptions>(read({"play", "snapshot", "play", "--pictures", "p"}));
    EXPECT_EQ(play.sessions, (std::vector<std::filesystem::path>{"snapshot", "play"})) << "files, here";
    EXPECT_EQ(play.pictures, "p");
    EXPECT_EQ(std::get<SnapshotOptions>(read({"snapshot", "x.png"})).scale, 1.0);
    EXPECT_EQ(std::get<SnapshotOptions>(read({"snapshot", "--scale=4", "x.png"})).scale, 4.0);
    EXPECT_NE(std::get<Answer>(read({"snapshot", "-h"})).text.find("Usage"), std::string::npos);
}

TEST(CommandLine, PaintsAText)
{
    const auto full =
        std::get<TextOptions>(read({"text", "", "x.png", "--size", "9.5", "--color", "1,0.5,0", "--height",
                                    "299", "--shade", "0.002", "--width", "4096", "--height-px", "1"}));
    EXPECT_EQ(full.font_size, 9.5f);
    EXPECT_EQ(full.color, (Rgba{1.0, 0.5, 0.0, 1.0}));
    EXPECT_EQ(full.height_scale, 299.0f);
    EXPECT_EQ(full.shade_scale, 0.002f);
    EXPECT_EQ(full.width, 4096);
    EXPECT_EQ(full.height, 1);
}

TEST(CommandLine, RefusesEverythingElse)
{
    const Arguments wrong[] = {
        {"--fast"},
        {"--scale"},
        {"--scale", "0.49"},
        {"--scale", "4.01"},
        {"--scale", "nan"},
        {"--scale", "0x2"},
        {"--scale", "1", "--scale", "2"},
        {"play", "--pictures", "p"},
        {"play", "a", "--scale", "1"},
        {"snapshot"},
        {"snapshot", "a", "b"},
        {"--trace", "play", "a"},
        {"--no-status", "play", "a"},
        {"--scale", "2", "snapshot", "a"},
        {"--resources", "d", "snapshot", "a"},
        {"text", "a"},
        {"--trace", "text", "a", "b"},
        {"text", "a", "b", "--size", "0"},
        {"text", "a", "b", "--size", "1001"},
        {"text", "a", "b", "--height", "300"},
        {"text", "a", "b", "--shade", "0.001"},
        {"text", "a", "b", "--shade", "nan"},
        {"text", "a", "b", "--width", "4097"},
        {"text", "a", "b", "--height-px", "1.5"},
        {"text", "a", "b", "--color", "1,1"},
        {"text", "a", "b", "--color", "1,1,1.1"},
        {"text", "a", "b", "--color", "1,1,1,1"},
    };
    for (const Arguments& arguments : wrong) {
        const Request request = read(arguments);
        const auto* error = std::get_if<UsageError>(&request);
        EXPECT_TRUE(error && !error->text.empty()) << testing::PrintToString(arguments);
    }
}

} // namespace
} // namespace r7
