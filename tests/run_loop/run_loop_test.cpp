// The run loop: what a turn serves, what ends its sleep, and what sources may do to each other.
#include "platform/run_loop.h"

#include "tests/run_loop/source.h"

#include <gtest/gtest.h>

#include <sys/eventfd.h>
#include <unistd.h>

#include <thread>

namespace r7 {
namespace {

using namespace std::chrono_literals;

struct RunLoopTest : testing::Test {
    std::string served;
    SimulatedClock clock;
    RunLoop loop{clock};

    // A source that writes its letter when it is served.
    std::shared_ptr<Source> add(char letter, RunLoop::Modes modes = RunLoop::Modes::all)
    {
        const auto source = std::make_shared<Source>();
        source->work = [this, letter] { served += letter; };
        loop.add(source, modes);
        return source;
    }
};

TEST_F(RunLoopTest, ServesWhatHasWorkOnceATurnInTheOrderOfAdding)
{
    const auto late = add('l'), readable = add('r'), idle = add('i'), due = add('d'), pending = add('p');
    clock.move_to(5s);
    clock.move_to(4s); // never back
    late->when = 5s + 1ns;
    due->when = 5s;
    pending->pending = true;
    readable->file = eventfd(1, 0);
    loop.turn(0s);
    loop.add(readable); // comes last now
    loop.turn(0s);
    EXPECT_EQ(served, "rdpdpr") << "each keeps its work, and has one turn like all others";
    close(readable->file);
}

TEST_F(RunLoopTest, SourcesAddRemoveAndDestroyThemselvesAndOthersAndTurnAModalLoop)
{
    auto first = add('1'), removed = add('2'), destroyed = add('3'), added = add('4');
    const auto standard = add('s', RunLoop::Modes::standard_only), every = add('e');
    for (const auto& source : {first, removed, destroyed, added, standard, every}) source->pending = true;
    loop.remove(*added);
    first->work = [&, self = std::weak_ptr(first)] {
        loop.remove(*first);
        loop.remove(*removed);
        loop.add(added);
        destroyed.reset();
        first.reset();
        EXPECT_FALSE(self.expired()) << "it lives until it returns";
        loop.turn(0s, RunLoopMode::modal);
        served += ' ';
    };
    loop.turn(0s);
    EXPECT_EQ(served, "e4 se") << "what is added waits for the next turn, which was the modal one";
}

TEST_F(RunLoopTest, AdvancingStopsAtEveryDueTimeOnTheWay)
{
    const auto a = add('a'), b = add('b');
    a->when = 30ms;
    b->when = 10ms; // stays due, and holds nobody up
    a->work = [&] {
        served += 'a' + std::to_string(clock.now() / 1ms);
        *a->when += 30ms;
    };
    loop.advance(clock, 70ms);
    EXPECT_EQ(served, "ba30ba60bb");
}

TEST_F(RunLoopTest, TheCurrentLoopIsTheLastOneMadeThatHasNotGone)
{
    const auto told = add('!');
    auto second = std::make_unique<RunLoop>(clock);
    const RunLoop third(clock);
    second->add(told);
    second.reset();
    EXPECT_EQ(served, "!");
    EXPECT_EQ(&RunLoop::current(), &third);
    std::thread([&] { EXPECT_NE(&RunLoop::current(), &third); }).join();
}

TEST(RunLoopSleep, LastsUntilThereIsWorkOrAWake)
{
    constexpr Time too_long = 20s;
    const SteadyClock clock;
    RunLoop loop(clock);
    const Time start = clock.now();
    const auto source = std::make_shared<Source>();
    loop.add(source);
    source->when = start + 2500us;
    source->work = [&] { // a wake while sources are served is for the next sleep
        source->when.reset();
        std::thread([waker = loop.waker()] { waker->wake(); }).join();
    };
    loop.turn(too_long);
    EXPECT_FALSE(source->when) << "woken early, a loop turns for nothing";
    loop.turn(too_long);
    const Time woken = clock.now();
    loop.turn(2ms);
    EXPECT_GE(clock.now() - woken, 2ms) << "one wake ends one sleep";
    int turns = 0;
    source->file = eventfd(0, 0);
    source->work = [&] { ++turns, loop.stop(); };
    std::thread writer([&] { eventfd_write(source->file, 1); });
    loop.run();
    loop.run();
    EXPECT_EQ(turns, 2);
    writer.join();
    close(source->file);
    EXPECT_LT(clock.now() - start, too_long);
}

} // namespace
} // namespace r7
