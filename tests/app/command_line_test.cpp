// The forms of the command line, and what is none of them.
#include "app/command_line.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace r7 {
namespace {

using Arguments = std::vector<const char*>;

Request read(Arguments arguments)
{
    arguments.insert(arguments.begin(), "r7");
    return read_command_line(static_cast<int>(arguments.size()), arguments.data());
}

std::string line_of(const Arguments& arguments)
{
    std::string line;
    for (const char* argument : arguments) line.append(argument).append(" ");
    return line;
}

TEST(CommandLine, OpensAWindow)
{
    const auto plain = std::get<WindowOptions>(read({}));
    EXPECT_FALSE(plain.trace);
    EXPECT_FALSE(plain.scale);
    EXPECT_FALSE(plain.resources);

    const auto full = std::get<WindowOptions>(read({"--trace", "--scale", "2.5", "--resources", "a b"}));
    EXPECT_TRUE(full.trace);
    EXPECT_EQ(full.scale, 2.5);
    EXPECT_EQ(full.resources, "a b");
}

TEST(CommandLine, PlaysFilesInTheirOrder)
{
    using Files = std::vector<std::filesystem::path>;
    const auto play = std::get<PlayOptions>(read({"play", "b", "a", "--pictures", "p"}));
    EXPECT_EQ(play.sessions, (Files{"b", "a"}));
    EXPECT_EQ(play.pictures, "p");
    // Words of other forms are files here.
    EXPECT_EQ(std::get<PlayOptions>(read({"play", "snapshot", "play"})).sessions,
              (Files{"snapshot", "play"}));
}

TEST(CommandLine, TakesASnapshot)
{
    const auto snapshot = std::get<SnapshotOptions>(read({"snapshot", "x.png"}));
    EXPECT_EQ(snapshot.file, "x.png");
    EXPECT_EQ(snapshot.scale, 1.0);
    EXPECT_EQ(std::get<SnapshotOptions>(read({"snapshot", "--scale=4", "x.png"})).scale, 4.0);
}

TEST(CommandLine, AnswersForHelpAndVersion)
{
    EXPECT_TRUE(std::get<Answer>(read({"--version"})).text.starts_with("r7 "));
    for (const Arguments& arguments : {Arguments{"--help"}, {"play", "--help"}, {"snapshot", "-h"}})
        EXPECT_NE(std::get<Answer>(read(arguments)).text.find("Usage"), std::string::npos)
            << line_of(arguments);
}

TEST(CommandLine, RefusesEverythingElse)
{
    const Arguments wrong[] = {
        {"panel"},
        {"--fast"},
        {"--scale"},
        {"--scale", "0.49"},
        {"--scale", "4.01"},
        {"--scale", "nan"},
        {"--scale", "0x2"},
        {"--scale", "1", "--scale", "2"},
        {"--resources"},
        {"play"},
        {"play", "--pictures", "p"},
        {"play", "a", "--scale", "1"},
        {"snapshot"},
        {"snapshot", "a", "b"},
        {"snapshot", "a", "--scale", "5"},
        {"--trace", "play", "a"},
        {"--scale", "2", "snapshot", "a"},
        {"--resources", "d", "snapshot", "a"},
    };
    for (const Arguments& arguments : wrong) {
        const Request request = read(arguments);
        const auto* error = std::get_if<UsageError>(&request);
        EXPECT_TRUE(error && !error->text.empty()) << line_of(arguments);
    }
}

} // namespace
} // namespace r7
