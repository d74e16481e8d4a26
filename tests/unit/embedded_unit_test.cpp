// The embedded unit: what it starts with, what it takes from whom, and whom it tells.
#include "platform/run_loop.h"
#include "tests/support/counted_allocations.h"
#include "tests/support/recording_observer.h"
#include "tests/toolbox/toolbox_rig.h"

#include <gtest/gtest.h>

#include <bit>
#include <cstring>

namespace r7 {
namespace {

struct EmbeddedUnitTest : testing::Test {
    RecordingObserver observer;
    SimulatedClock clock;
    RunLoop loop{clock};
    std::shared_ptr<EmbeddedUnit> unit = EmbeddedUnit::create(&observer);
    AudioUnit au = unit->handle();
};

TEST_F(EmbeddedUnitTest, KeepsWhatOthersGiveItAndRefusesWhatItDoesNotHave)
{
    EXPECT_EQ(unit->parameter(32), 0.2F);
    for (const UInt32 bits : {0xC0E00000u, 0x7FC01234u}) { // -7 and a NaN: unclamped, to the last bit
        set(nullptr, au, 30, std::bit_cast<float>(bits));
        Float32 got = 0;
        EXPECT_EQ(AudioUnitGetParameter(au, 30, 0, 0, &got), noErr);
        EXPECT_EQ(std::bit_cast<UInt32>(got), bits);
    }
    constexpr UInt32 full = sizeof(_QM_R7_Bezier_Sequence);
    unsigned char sent[full + 1], got[full + 1];
    std::memset(sent, 0xA5, sizeof sent);
    UInt32 size = full;
    EXPECT_EQ(AudioUnitSetProperty(au, 80111, 0, 0, sent, full), noErr);
    EXPECT_EQ(AudioUnitGetProperty(au, 80111, 0, 0, got, &size), noErr);
    EXPECT_EQ(std::memcmp(sent, got, full), 0);

    const struct {
        UInt32 property, scope, element, size;
        OSStatus get_status, set_status;
    } refused[] = {
        {80109, 0, 0, full, kAudioUnitErr_InvalidProperty, kAudioUnitErr_InvalidProperty},
        {80114, 0, 0, full, kAudioUnitErr_InvalidProperty, kAudioUnitErr_InvalidProperty},
        {80110, 1, 0, full, kAudioUnitErr_InvalidScope, kAudioUnitErr_InvalidScope},
        {80110, 0, 1, full, kAudioUnitErr_InvalidElement, kAudioUnitErr_InvalidElement},
        {80110, 0, 0, full - 1, kAudioUnitErr_InvalidPropertyValue, kAudioUnitErr_InvalidPropertyValue},
        {80110, 0, 0, full + 1, noErr, kAudioUnitErr_InvalidPropertyValue},
        {80113, 0, 0, 8, noErr, kAudioUnitErr_PropertyNotWritable},
    };
    for (const auto& [id, scope, element, given, get_status, set_status] : refused) {
        size = given;
        EXPECT_EQ(AudioUnitGetProperty(au, id, scope, element, got, &size), get_status) << id << ' ' << given;
        EXPECT_EQ(AudioUnitSetProperty(au, id, scope, element, sent, given), set_status)
            << id << ' ' << given;
    }
    EXPECT_EQ(unit->record(Stage::one).segment_file_version, 2u);
    for (const AudioUnitParameter& nowhere :
         {AudioUnitParameter{au, 54, 0, 0}, {au, 30, 1, 0}, {au, 30, 0, 1}})
        EXPECT_NE(AUParameterSet(nullptr, nullptr, &nowhere, 1.0F, 0), noErr);
    EXPECT_EQ(observer.sets, 2) << "and of nothing that is refused";
}

TEST_F(EmbeddedUnitTest, AnnouncesWhatItTakesItselfWithoutAllocating)
{
    RecordingListener listener;
    listener.ask_for(event_of(0, au, 53));
    for (const UInt32 id : {80110u, 80111u, 80112u, 80113u}) listener.ask_for(event_of(3, au, id));
    const std::size_t before = allocations();
    unit->automate(53, 0.5F);
    unit->take_level(Stage::two, 0.75);
    unit->take_level(Stage::one, 0.25);
    unit->take_curve(Stage::two, {});
    EXPECT_EQ(allocations(), before);
    EXPECT_EQ(observer.sets + observer.deliveries, 0) << "the observer hears of others only";
    loop.advance(clock, std::chrono::milliseconds(50));
    EXPECT_EQ(listener.heard, "0:53=0.5 3:80113=0 3:80112=0 3:80111=0 ");
    EXPECT_EQ(observer.deliveries, 4);
}

} // namespace
} // namespace r7
