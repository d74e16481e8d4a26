// The toolbox under several threads at once; of use above all in a build that looks for data races.
#include "platform/run_loop.h"
#include "tests/toolbox/toolbox_rig.h"
#include "unit/embedded_unit.h"

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

namespace r7 {
namespace {

using namespace std::chrono_literals;

constexpr int kRounds = 200;

using Values = std::array<Float32, kParameters.size()>;

// Listens to all parameters on this thread, without delay, and keeps the last values.
AUEventListenerRef listen(AudioUnit unit, Values& values)
{
    const auto keep = [](void* kept, void*, const AudioUnitEvent* event, UInt64, Float32 value) {
        (*static_cast<Values*>(kept))[event->mArgument.mParameter.mParameterID] = value;
    };
    AUEventListenerRef listener = nullptr;
    AUEventListenerCreate(keep, &values, CFRunLoopGetCurrent(), kCFRunLoopDefaultMode, 0.0F, 0.0F, &listener);
    for (UInt32 id = 0; id < kParameters.size(); ++id) {
        const auto event = value_change(unit, id);
        AUEventListenerAddEventType(listener, nullptr, &event);
    }
    return listener;
}

void automate_all(EmbeddedUnit& unit, int value)
{
    for (UInt32 id = 0; id < kParameters.size(); ++id) unit.automate(id, static_cast<float>(value));
}

void turn_until(const std::atomic<bool>& over)
{
    while (!over) RunLoop::current().turn(1ms);
}

TEST(ToolboxThreads, LastValuesArriveWhileListenersOfAnotherThreadComeAndGo)
{
    const auto unit = EmbeddedUnit::create();
    Values heard{};
    const auto listener = listen(unit->handle(), heard);
    std::atomic<bool> over = false;
    std::thread host([&] {
        for (int round = 1; round <= kRounds; ++round) {
            automate_all(*unit, round);
            unit->take_level(Stage::one, round);
            unit->take_curve(Stage::one, {});
        }
        over = true;
    });
    std::thread second_panel([&] {
        Values theirs{};
        while (!over) {
            const auto other = listen(unit->handle(), theirs);
            RunLoop::current().turn(1us);
            AUListenerDispose(other);
        }
    });
    while (!over) {
        RunLoop::current().turn(1ms);
        EXPECT_LE(unit->record(Stage::one).needs_update, kRounds);
    }
    host.join();
    second_panel.join();
    for (int turn = 0; turn < 3; ++turn) RunLoop::current().turn(1ms);
    for (const Float32 value : heard) EXPECT_EQ(value, kRounds);
    AUListenerDispose(listener);
}

TEST(ToolboxThreads, DisposingOnAnotherThreadWaitsForTheCallThatIsUnderWay)
{
    std::atomic<bool> has_begun = false, is_disposed = false;
    bool was_disposed_meanwhile = false;
    const auto unit = EmbeddedUnit::create();
    RecordingListener listener(0.0F);
    listener.ask_for(value_change(unit->handle(), 0));
    listener.during_call = [&] {
        has_begun = true;
        const SteadyClock clock;
        for (const Time end = clock.now() + 20ms; clock.now() < end;) was_disposed_meanwhile |= is_disposed;
    };
    unit->automate(0, 1.0F);
    std::thread disposer([&] {
        while (!has_begun) {
        }
        AUListenerDispose(listener.handle);
        is_disposed = true;
    });
    turn_until(is_disposed);
    disposer.join();
    EXPECT_FALSE(was_disposed_meanwhile);
}

TEST(ToolboxThreads, AUnitMayGoWhileAnotherThreadUsesItsHandle)
{
    for (int round = 0; round < kRounds / 10; ++round) {
        auto unit = EmbeddedUnit::create();
        const AudioUnit handle = unit->handle();
        Values heard{};
        const auto listener = listen(handle, heard);
        std::atomic<bool> over = false;
        std::thread user([&] {
            while (set(nullptr, handle, 0, 1.0F) == noErr) {
            }
            over = true;
        });
        RunLoop::current().turn(1us);
        unit.reset();
        turn_until(over);
        user.join();
        AUListenerDispose(listener);
    }
}

} // namespace
} // namespace r7
