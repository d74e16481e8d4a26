// A run loop's file: readable just while a turn has work.
#include "platform/run_loop_file.h"

#include "tests/run_loop/source.h"

#include <gtest/gtest.h>

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <thread>

namespace r7 {
namespace {

using namespace std::chrono_literals;

struct RunLoopFileTest : testing::Test {
    SteadyClock clock;
    RunLoop loop{clock};
    std::shared_ptr<Source> source = std::make_shared<Source>();
    RunLoopFile file{loop};

    void SetUp() override
    {
        loop.add(source, RunLoop::Modes::standard_only);
        file.turn();
    }

    bool is_ready(Time within = 0s) const
    {
        pollfd asked{file.descriptor(), POLLIN, 0};
        return ::poll(&asked, 1, static_cast<int>(within / 1ms)) == 1;
    }
};

TEST_F(RunLoopFileTest, IsReadyAtTheTimeThatASourceIsDue)
{
    const Time start = clock.now();
    source->when = start + 30ms;
    source->work = [&] { source->when = clock.now() + 20s; };
    EXPECT_FALSE(is_ready());
    std::thread([waker = loop.waker()] { waker->wake(); }).join();
    EXPECT_TRUE(is_ready()) << "woken by another thread";
    file.turn();
    EXPECT_TRUE(is_ready(20s));
    EXPECT_GE(clock.now() - start, 30ms);
    file.turn();
    EXPECT_FALSE(is_ready()) << "served, and due much later";
    source->work = [&] { source->when.reset(); };
    source->when = clock.now() - 1s;
    file.turn();
    EXPECT_FALSE(is_ready()) << "nothing is due";
    source->pending = true;
    source->work = [] {};
    file.turn();
    EXPECT_TRUE(is_ready(20s)) << "work is left";
    loop.remove(*source);
    file.turn();
    EXPECT_FALSE(is_ready());
}

TEST_F(RunLoopFileTest, FollowsTheFilesOfTheSources)
{
    source->work = [] {}; // what can be read stays there
    source->file = eventfd(1, 0);
    file.turn();
    EXPECT_TRUE(is_ready());
    // Another file under the same number.
    close(source->file);
    EXPECT_FALSE(is_ready());
    ASSERT_EQ(eventfd(1, 0), source->file);
    file.turn();
    EXPECT_TRUE(is_ready());
    loop.remove(*source);
    file.turn();
    EXPECT_FALSE(is_ready()) << "it is nobody's now";
    close(source->file);
}

} // namespace
} // namespace r7
