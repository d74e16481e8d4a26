// The toolbox under several threads at once; of use above all in a build that looks for data races.
#include "platform/run_loop.h"
#include "tests/toolbox/toolbox_rig.h"
#include "unit/embedded_unit.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace r7 {
namespace {

using namespace std::chrono_literals;

TEST(ToolboxThreads, LastValuesArriveWhileOthersListenAndTheUnitGoes)
{
    auto unit = EmbeddedUnit::create();
    const AudioUnit handle = unit->handle();
    RecordingListener listener(0.0F);
    for (const ParameterRow& row : kParameters) listener.ask_for(event_of(0, handle, row.id));
    std::atomic<bool> over = false;
    std::thread host([&] {
        for (int round = 1; round <= 1000; ++round) {
            for (const ParameterRow& row : kParameters) unit->automate(row.id, static_cast<float>(round));
            unit->take_curve(Stage::one, {});
        }
        over = true;
    });
    std::thread second_panel([&] {
        while (set(nullptr, handle, 0, 1000.0F) == noErr) {
            RecordingListener other(0.0F);
            other.ask_for(event_of(0, handle, 0));
            RunLoop::current().turn(1us);
        }
    });
    while (!over) {
        RunLoop::current().turn(0s);
        EXPECT_LE(unit->record(Stage::one).needs_update, 1000);
    }
    host.join();
    for (int turn = 0; turn < 3; ++turn) RunLoop::current().turn(1ms);
    for (const ParameterRow& row : kParameters)
        EXPECT_NE(listener.heard.find("0:" + std::to_string(row.id) + "=1000 "), std::string::npos)
            << row.name;
    unit.reset();
    second_panel.join();
}

TEST(ToolboxThreads, DisposingOnAnotherThreadWaitsForTheCallThatIsUnderWay)
{
    std::atomic<bool> has_begun = false, is_disposed = false;
    bool was_disposed_meanwhile = false;
    const auto unit = EmbeddedUnit::create();
    RecordingListener listener(0.0F);
    listener.ask_for(event_of(0, unit->handle(), 0));
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
    while (!is_disposed) RunLoop::current().turn(1ms);
    disposer.join();
    EXPECT_FALSE(was_disposed_meanwhile);
}

} // namespace
} // namespace r7
