// The toolbox's contract: who hears of what, when, how often, and what becomes of those who have gone.
#include "platform/run_loop.h"
#include "tests/support/recording_observer.h"
#include "tests/toolbox/toolbox_rig.h"

#include <gtest/gtest.h>

#include <cmath>
#include <optional>
#include <utility>

namespace r7 {
namespace {

using namespace std::chrono_literals;

constexpr UInt32 kParameter = kAudioUnitEvent_ParameterValueChange;
constexpr UInt32 kProperty = kAudioUnitEvent_PropertyChange;

struct ToolboxTest : testing::Test {
    void expect_heard_after(Time time, RecordingListener& listener, const char* heard)
    {
        loop.advance(clock, time);
        EXPECT_EQ(std::exchange(listener.heard, {}), heard);
    }

    RecordingObserver observer;
    SimulatedClock clock;
    RunLoop loop{clock};
    std::shared_ptr<EmbeddedUnit> unit = EmbeddedUnit::create(&observer);
    AudioUnit au = unit->handle();
};

TEST_F(ToolboxTest, EveryoneWhoAskedIsToldExceptTheSender)
{
    RecordingListener a, b;
    for (const UInt32 type : {kParameter, kParameter, kProperty}) { // asking twice is asking once
        a.ask_for(event_of(type, au, 1));
        b.ask_for(event_of(type, au, 1));
    }
    const auto expect_heard = [&](const char* by_a, const char* by_b) {
        expect_heard_after(50ms, a, by_a);
        expect_heard_after(0s, b, by_b);
    };
    EXPECT_EQ(set(a.handle, au, 1, 0.25F), noErr);
    expect_heard("", "0:1=0.25 ");
    EXPECT_EQ(notify(b.handle, event_of(kParameter, au, 1)), noErr);
    expect_heard("0:1=0.25 ", "");
    notify(nullptr, event_of(kProperty, au, 1));
    expect_heard("3:1=0 ", "3:1=0 ");
    // The own set takes nobody else's announcement back; what arrives is the value of that moment.
    set(nullptr, au, 1, 0.75F);
    set(a.handle, au, 1, 1.0F);
    expect_heard("0:1=1 ", "0:1=1 ");

    // What differs in one respect was not asked for, and what the unit refuses is not announced.
    const auto other = EmbeddedUnit::create();
    for (const AudioUnitEvent& event :
         {event_of(kParameter, other->handle(), 1), event_of(1, au, 1), event_of(kParameter, au, 2),
          event_of(kParameter, au, 1, 1, 0), event_of(kParameter, au, 1, 0, 1)})
        EXPECT_EQ(notify(nullptr, event), noErr);
    a.ask_for(event_of(kParameter, au, 54));
    EXPECT_EQ(set(nullptr, au, 54, 1.0F), kAudioUnitErr_InvalidParameter);
    expect_heard("", "");
}

TEST_F(ToolboxTest, AnnouncementsWaitForTheIntervalAndMergeInTheOrderOfTheirFirst)
{
    RecordingListener listener;
    for (const UInt32 id : {1u, 2u, 3u}) listener.ask_for(event_of(kParameter, au, id));
    set(nullptr, au, 2, 0.0F);
    set(nullptr, au, 1, 0.25F);
    expect_heard_after(20ms, listener, "");
    set(nullptr, au, 3, 0.5F);
    for (const Float32 value : {1.0F, 2.0F, 3.0F}) set(nullptr, au, 2, value);
    expect_heard_after(30ms - 1ns, listener, "");
    expect_heard_after(1ns, listener, "0:2=3 0:1=0.25 ");
    set(nullptr, au, 2, 4.0F);
    expect_heard_after(50ms - 1ns, listener, "0:3=0.5 ");
    expect_heard_after(1ns, listener, "0:2=4 ");

    // A loop that is late delivers everything at its first turn; a modal one is late for as long as it runs.
    for (const UInt32 id : {3u, 1u, 2u}) set(nullptr, au, id, 0.0F);
    loop.advance(clock, 1s, RunLoopMode::modal);
    EXPECT_EQ(listener.heard, "");
    expect_heard_after(0s, listener, "0:3=0 0:1=0 0:2=0 ");
}

TEST_F(ToolboxTest, AnAnnouncementWakesTheLoopToLearnWhenItIsDue)
{
    RecordingListener listener(3600.0F);
    listener.ask_for(event_of(kParameter, au, 1));
    set(nullptr, au, 1, 0.5F);
    const SteadyClock real;
    const Time start = real.now();
    loop.turn(20s);
    EXPECT_LT(real.now() - start, 20s);
}

TEST_F(ToolboxTest, WhatACallAnnouncesIsHeardInALaterTurn)
{
    RecordingListener listener(0.0F);
    listener.ask_for(event_of(kParameter, au, 1));
    listener.ask_for(event_of(kParameter, au, 2));
    listener.during_call = [&] {
        set(nullptr, au, 1, unit->parameter(1) + 1.0F);
        set(nullptr, au, 2, unit->parameter(1));
    };
    set(nullptr, au, 1, 0.0F);
    set(nullptr, au, 2, 0.0F);
    clock.move_to(1s);
    expect_heard_after(0s, listener, "0:1=0 0:2=1 "); // the second was still to come, and merged
    clock.move_to(2s);
    expect_heard_after(0s, listener, "0:1=2 0:2=3 ");
}

TEST_F(ToolboxTest, HandlesThatStandForNothingGiveAStatus)
{
    const AUEventListenerRef gone_listener = RecordingListener().handle;
    const AudioUnit gone_unit = EmbeddedUnit::create()->handle();
    const RecordingListener listener; // newer ones, which no old handle stands for
    const auto other = EmbeddedUnit::create();
    const auto event = event_of(kParameter, au, 1);
    for (const AUEventListenerRef gone : {gone_listener, AUEventListenerRef()}) {
        EXPECT_EQ(AUListenerDispose(gone), kAudio_ParamError);
        EXPECT_EQ(AUEventListenerAddEventType(gone, nullptr, &event), kAudio_ParamError);
        EXPECT_EQ(send_event(gone, event, 0.0F), kAudio_ParamError);
    }
    EXPECT_EQ(notify(gone_listener, event), kAudio_ParamError);
    EXPECT_EQ(set(gone_listener, au, 1, 5.0F), kAudio_ParamError);
    EXPECT_NE(unit->parameter(1), 5.0F);
    Float32 value = 0;
    UInt32 size = sizeof value;
    for (const AudioUnit gone : {gone_unit, AudioUnit()}) {
        const auto about_it = event_of(kProperty, gone, 80110);
        EXPECT_EQ(AUEventListenerAddEventType(listener.handle, nullptr, &about_it), kAudio_ParamError);
        EXPECT_EQ(notify(nullptr, about_it), kAudio_ParamError);
        EXPECT_EQ(send_event(listener.handle, about_it, 0.0F), kAudio_ParamError);
        EXPECT_EQ(set(nullptr, gone, 1, 1.0F), kAudio_ParamError);
        EXPECT_EQ(AudioUnitGetParameter(gone, 1, 0, 0, &value), kAudio_ParamError);
        EXPECT_EQ(AudioUnitGetProperty(gone, 80112, 0, 0, &value, &size), kAudio_ParamError);
        EXPECT_EQ(AudioUnitSetProperty(gone, 80112, 0, 0, &value, size), kAudio_ParamError);
    }
    EXPECT_EQ(RecordingListener(NAN).handle, nullptr);
}

TEST_F(ToolboxTest, SendingAnEventCallsOneListenerAtOnce)
{
    RecordingListener listener;
    listener.ask_for(event_of(kParameter, au, 1));
    set(nullptr, au, 1, 0.5F);
    observer.on_delivery = [&] { listener.heard += '>'; };
    EXPECT_EQ(send_event(listener.handle, event_of(kParameter, au, 1), 0.25F), noErr);
    EXPECT_EQ(send_event(listener.handle, event_of(4, au, 3), 0.0F), noErr);
    EXPECT_EQ(listener.heard, ">0:1=0.25 >4:3=0 ") << "the unit is told before each delivery";
    expect_heard_after(50ms, listener, ">0:1=0.25 >4:3=0 >0:1=0.5 "); // what was announced stays so
}

// Whether it goes before the delivery, when that is about to happen or in its middle: nothing more is heard.
TEST_F(ToolboxTest, WhoHasGoneNeitherHearsNorIsHeardOf)
{
    for (const std::string who : {"listener", "unit"}) {
        for (const std::string when : {"before", "about to", "during"}) {
            unit = EmbeddedUnit::create(&observer);
            au = unit->handle();
            RecordingListener listener;
            for (const UInt32 id : {1u, 2u}) {
                listener.ask_for(event_of(kParameter, au, id));
                set(nullptr, au, id, 0.5F);
            }
            const auto go = [&] { who == "unit" ? unit.reset() : void(AUListenerDispose(listener.handle)); };
            if (when == "before") go();
            observer.on_delivery = [&] { when == "about to" ? go() : void(); };
            if (when == "during") listener.during_call = go;
            const bool is_told = when == "during" || (when == "about to" && who == "unit");
            SCOPED_TRACE(who + ' ' + when);
            expect_heard_after(1s, listener, is_told ? "0:1=0.5 " : "");
            set(nullptr, au, 1, 1.0F);
            expect_heard_after(1s, listener, "");
        }
    }
}

TEST_F(ToolboxTest, AListenerWhoseLoopHasGoneNeedsNoClock)
{
    std::optional<RecordingListener> listener;
    {
        const SimulatedClock short_lived;
        const RunLoop inner(short_lived);
        listener.emplace();
        listener->ask_for(event_of(kParameter, au, 1));
    }
    EXPECT_EQ(set(nullptr, au, 1, 0.5F), noErr);
    expect_heard_after(1s, *listener, "");
}

} // namespace
} // namespace r7
