// The run loop: what a turn serves, what ends its sleep, and what sources may do to each other.
#include "platform/run_loop.h"

#include <gtest/gtest.h>

#include <sys/eventfd.h>
#include <unistd.h>

#include <functional>
#include <string>
#include <thread>
#include <utility>

namespace r7 {
namespace {

using namespace std::chrono_literals;

constexpr Time kTooLong = 20s; // a sleep that nobody ends

struct Source final : RunLoopSource {
    int file_descriptor() const override { return file; }
    bool is_pending() override { return pending; }
    std::optional<Time> due() const override { return when; }
    void serve() override { ++served, work ? work() : void(); }
    void run_loop_ended() override { ended = true; }

    int file = -1;
    bool pending = false;
    std::optional<Time> when;
    std::function<void()> work;
    int served = 0;
    bool ended = false;
};

struct RunLoopTest : testing::Test {
    std::shared_ptr<Source> add(RunLoop::Modes modes = RunLoop::Modes::all)
    {
        auto source = std::make_shared<Source>();
        loop.add(source, modes);
        return source;
    }

    SimulatedClock clock;
    RunLoop loop{clock};
};

TEST_F(RunLoopTest, ServesWhatHasWorkOnceInTheOrderOfAdding)
{
    std::string order;
    const auto late = add(), readable = add(), pending = add(), idle = add(), due = add();
    clock.move_to(5s);
    clock.move_to(4s); // never back
    // Each keeps its work: nobody has a second turn before all others had their first.
    late->when = 5s + 1ns;
    due->when = 5s;
    pending->pending = true;
    readable->file = eventfd(1, 0);
    readable->work = [&] { order += 'r'; };
    pending->work = [&] { order += 'p'; };
    due->work = [&] { order += 'd'; };
    loop.turn(0s);
    loop.add(readable);
    loop.turn(0s);
    EXPECT_EQ(order, "rpdpdr");
    EXPECT_EQ(late->served + idle->served, 0);
    close(readable->file);
}

TEST_F(RunLoopTest, SourcesAddRemoveAndDestroyThemselvesAndOthers)
{
    auto first = add(), second = add(), third = add(), added = add();
    loop.remove(*added);
    for (const auto& source : {first, second, third, added}) source->pending = true;
    const std::weak_ptr<Source> destroyed[] = {first, second};
    first->work = [&] {
        loop.remove(*third);
        loop.add(added);
        second.reset();
        first.reset();
    };
    loop.turn(0s);
    EXPECT_TRUE(destroyed[0].expired() && destroyed[1].expired());
    EXPECT_EQ(added->served, 0) << "added in this turn, it waits for the next";
    loop.turn(0s);
    EXPECT_EQ(added->served, 1);
    EXPECT_EQ(third->served, 0);
}

TEST_F(RunLoopTest, AModalLoopInsideATurnLeavesStandardSourcesToTheOuterOne)
{
    const auto outer = add(), standard = add(RunLoop::Modes::standard_only), every = add();
    outer->pending = standard->pending = every->pending = true;
    outer->work = [&] {
        outer->pending = false;
        loop.turn(0s, RunLoopMode::modal);
        EXPECT_EQ(standard->served, 0);
    };
    loop.turn(0s);
    EXPECT_EQ(standard->served, 1);
    EXPECT_EQ(every->served, 2);
}

TEST_F(RunLoopTest, AdvancingStopsAtEveryDueTimeOnTheWay)
{
    std::string seen;
    const auto a = add(), b = add();
    a->when = 30ms;
    b->when = 10ms;
    a->work = [&] {
        seen += 'a' + std::to_string(clock.now() / 1ms);
        *a->when += 30ms;
    };
    b->work = [&] { seen += 'b' + std::to_string(clock.now() / 1ms); }; // stays due, and holds nobody up
    loop.advance(clock, 70ms);
    EXPECT_EQ(seen, "b10a30b30a60b60b70");
}

TEST_F(RunLoopTest, StoppingEndsTheInnermostRunOrTheNext)
{
    const auto source = add();
    source->pending = true;
    source->work = [&] { source->served == 1 ? loop.run() : loop.stop(); };
    loop.run();
    loop.stop();
    loop.run();
    EXPECT_EQ(source->served, 3);
}

TEST_F(RunLoopTest, TheCurrentLoopIsTheLastOneMadeThatHasNotGone)
{
    auto second = std::make_unique<RunLoop>(clock);
    const RunLoop third(clock);
    const auto source = std::make_shared<Source>();
    second->add(source);
    second.reset();
    EXPECT_TRUE(source->ended);
    EXPECT_EQ(&RunLoop::current(), &third);
    std::thread([&] { EXPECT_NE(&RunLoop::current(), &third); }).join();
}

TEST(RunLoopSleep, LastsUntilThereIsWorkOrAWake)
{
    const SteadyClock clock;
    RunLoop loop(clock);
    const auto source = std::make_shared<Source>();
    loop.add(source);
    const Time start = clock.now();
    source->when = start + 2500us;
    loop.turn(kTooLong);
    EXPECT_EQ(source->served, 1) << "woken early, a loop turns for nothing";

    source->when.reset();
    source->file = eventfd(0, 0);
    std::thread writer([&] { eventfd_write(source->file, 1); });
    loop.turn(kTooLong);
    EXPECT_EQ(source->served, 2);
    writer.join();
    close(std::exchange(source->file, -1));

    source->pending = true;
    source->work = [&] {
        source->pending = false;
        std::thread([waker = loop.waker()] { waker->wake(); }).join();
    };
    loop.turn(kTooLong);
    loop.turn(kTooLong); // ended by the wake that came while sources were served
    const Time woken = clock.now();
    loop.turn(2ms);
    EXPECT_GE(clock.now() - woken, 2ms) << "one wake ends one sleep";
    EXPECT_LT(clock.now() - start, kTooLong);
}

} // namespace
} // namespace r7
