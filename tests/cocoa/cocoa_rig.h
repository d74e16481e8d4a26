// The view bundle in its host on the display, and beside it the same panel off the screen.
#pragma once

#include "app/open_overlay.h"
#include "app/session_player.h"
#include "tests/cocoa/host_process.h"
#include "tests/support/session_hand.h"

#include <gtest/gtest.h>

#include <regex>

namespace r7 {

struct CocoaTest : testing::Test {
    HostProcess host{R7_BUNDLE};
    char* lines = nullptr;
    std::size_t length = 0;
    std::FILE* file = open_memstream(&lines, &length);
    Transcript transcript{file};
    std::unique_ptr<OffscreenPanel> twin =
        OffscreenPanel::open(std::make_shared<const Bundle>(R7_RESOURCES), 1.0, &transcript);
    SessionHand hand{*twin, [this] { EXPECT_EQ(host.tell("settle"), "done"); }};

    void SetUp() override
    {
        transcript.begin([this] { return open_overlay(twin->panel()); });
        ASSERT_EQ(host.tell("open"), "done");
    }
    void TearDown() override
    {
        for (const int button : {1, 3}) hand.display().release(button);
        EXPECT_EQ(host.quit(), 0);
        std::fclose(file);
        std::free(lines);
    }

    /// Whether that becomes so.
    static bool eventually(const std::function<bool()>& is_so)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(20);
        for (; !is_so(); std::this_thread::sleep_for(std::chrono::milliseconds(10)))
            if (std::chrono::steady_clock::now() > end) return false;
        return true;
    }

    /// Performs a session's gestures on the display and off it, and compares what came of each.
    void play(std::string_view session)
    {
        const auto read = read_script(session);
        const auto* script = std::get_if<Script>(&read);
        ASSERT_TRUE(script) << std::get<ScriptError>(read).what;
        Script gesture;
        for (const ScriptStep& step : *script) {
            std::visit(hand, step.command);
            gesture.push_back(step);
            if (std::holds_alternative<session::Press>(step.command) ||
                std::holds_alternative<session::Drag>(step.command))
                continue;
            ASSERT_FALSE(play_script(gesture, *twin, transcript, {}));
            ASSERT_EQ(host.take_printed(), take_expected())
                << "the gesture that ends in line " << step.line << " of" << session;
            gesture.clear();
        }
    }

private:
    // A host does not know the editors' names.
    std::string take_expected()
    {
        std::fflush(file);
        const std::string text(lines, length);
        std::rewind(file);
        return std::regex_replace(text, std::regex("(overlay open) [a-z_]*"), "$1 editor");
    }
};

} // namespace r7
