// The embedded unit: what it starts with, what it takes from whom, and whom it tells.
#include "platform/run_loop.h"
#include "tests/toolbox/toolbox_rig.h"
#include "unit/embedded_unit.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <new>

namespace {
thread_local int allocations = 0;
}

void* operator new(std::size_t size)
{
    ++allocations;
    if (void* memory = std::malloc(size)) return memory;
    throw std::bad_alloc();
}

void operator delete(void* memory) noexcept
{
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}

namespace r7 {
namespace {

using namespace std::chrono_literals;

using Record = _QM_R7_Bezier_Sequence;

struct EmbeddedUnitTest : testing::Test, UnitObserver {
    void parameter_set(AudioUnitParameterID id, float) override { seen += "set " + std::to_string(id) + ' '; }
    void property_written(AudioUnitPropertyID id, UInt32 size) override
    {
        seen += "write " + std::to_string(id) + ' ' + std::to_string(size) + ' ';
    }
    void will_deliver(const AudioUnitEvent&, float) override { seen += "event "; }

    SimulatedClock clock;
    RunLoop loop{clock};
    std::string seen;
    std::shared_ptr<EmbeddedUnit> unit = EmbeddedUnit::create(this);
    AudioUnit au = unit->handle();
};

TEST_F(EmbeddedUnitTest, StartsWithTheTablesValuesAndIdentityCurves)
{
    for (const auto& [id, start] :
         {std::pair{4u, 0.8F}, {29u, 0.0F}, {27u, 8000.0F}, {47u, 0.01F}, {53u, 0.0F}})
        EXPECT_EQ(unit->parameter(id), start) << id;
    for (const Stage stage : {Stage::one, Stage::two}) {
        const Record record = unit->record(stage);
        EXPECT_EQ(record.needs_update, 0);
        EXPECT_EQ(record.segment_file_version, 2u);
        EXPECT_EQ(record.G[0], 3 * static_cast<double>(1.0F / 6.0F)) << "made of single-precision sixths";
        EXPECT_EQ(unit->level(stage), 0.0);
    }
}

TEST_F(EmbeddedUnitTest, KeepsWhatOthersGiveItAndRefusesWhatItDoesNotHave)
{
    // Unclamped, and to the last bit.
    const float odd_nan = std::bit_cast<float>(0x7FC01234u);
    for (const float value : {-7.0F, INFINITY, odd_nan}) {
        EXPECT_EQ(set(nullptr, au, 30, value), noErr);
        Float32 got = 0;
        EXPECT_EQ(AudioUnitGetParameter(au, 30, 0, 0, &got), noErr);
        EXPECT_EQ(std::bit_cast<UInt32>(got), std::bit_cast<UInt32>(value));
    }
    Record sent, got{};
    std::memset(&sent, 0xA5, sizeof sent);
    EXPECT_EQ(AudioUnitSetProperty(au, 80111, 0, 0, &sent, sizeof sent), noErr);
    UInt32 size = sizeof got;
    EXPECT_EQ(AudioUnitGetProperty(au, 80111, 0, 0, &got, &size), noErr);
    EXPECT_EQ(std::memcmp(&sent, &got, sizeof got), 0);
    const std::string all_seen = "set 30 set 30 set 30 write 80111 " + std::to_string(sizeof sent) + ' ';
    EXPECT_EQ(seen, all_seen);

    const struct {
        UInt32 parameter, property, scope, element, property_size;
        OSStatus parameter_status, get_status, set_status;
    } refused[] = {
        {54, 80109, 0, 0, sizeof(Record), kAudioUnitErr_InvalidParameter, kAudioUnitErr_InvalidProperty,
         kAudioUnitErr_InvalidProperty},
        {~0u, 80114, 0, 0, 8, kAudioUnitErr_InvalidParameter, kAudioUnitErr_InvalidProperty,
         kAudioUnitErr_InvalidProperty},
        {30, 80110, 1, 0, sizeof(Record), kAudioUnitErr_InvalidScope, kAudioUnitErr_InvalidScope,
         kAudioUnitErr_InvalidScope},
        {30, 80110, 0, 1, sizeof(Record), kAudioUnitErr_InvalidElement, kAudioUnitErr_InvalidElement,
         kAudioUnitErr_InvalidElement},
        {30, 80110, 0, 0, sizeof(Record) - 1, noErr, kAudioUnitErr_InvalidPropertyValue,
         kAudioUnitErr_InvalidPropertyValue},
        {30, 80112, 0, 0, 7, noErr, kAudioUnitErr_InvalidPropertyValue, kAudioUnitErr_PropertyNotWritable},
        {30, 80113, 0, 0, 8, noErr, noErr, kAudioUnitErr_PropertyNotWritable},
    };
    const Record before = unit->record(Stage::one);
    for (const auto& row : refused) {
        SCOPED_TRACE(std::to_string(row.property) + ' ' + std::to_string(row.property_size));
        Float32 value = 0;
        EXPECT_EQ(AudioUnitGetParameter(au, row.parameter, row.scope, row.element, &value),
                  row.parameter_status);
        const AudioUnitParameter address{au, row.parameter, row.scope, row.element};
        if (row.parameter_status != noErr) {
            EXPECT_EQ(AUParameterSet(nullptr, nullptr, &address, 9.0F, 0), row.parameter_status);
        }
        size = row.property_size;
        EXPECT_EQ(AudioUnitGetProperty(au, row.property, row.scope, row.element, &got, &size),
                  row.get_status);
        EXPECT_EQ(AudioUnitSetProperty(au, row.property, row.scope, row.element, &sent, size),
                  row.set_status);
    }
    EXPECT_EQ(AudioUnitSetProperty(au, 80110, 0, 0, &sent, sizeof sent + 1),
              kAudioUnitErr_InvalidPropertyValue);
    const Record after = unit->record(Stage::one);
    EXPECT_EQ(std::memcmp(&before, &after, sizeof after), 0);
    EXPECT_EQ(unit->level(Stage::two), 0.0);
    EXPECT_EQ(seen, all_seen);
}

TEST_F(EmbeddedUnitTest, AnnouncesWhatItTakesItselfWithoutAllocating)
{
    RecordingListener listener;
    listener.ask_for(value_change(au, 53));
    for (const UInt32 id : {80110u, 80111u, 80112u, 80113u}) listener.ask_for(property_change(au, id));
    const int allocations_before = allocations;
    unit->automate(53, 0.5F);
    unit->take_level(Stage::two, 0.75);
    unit->take_level(Stage::one, 0.25);
    unit->automate(53, 0.5F);
    // Points that no editor would leave: used as they are.
    unit->take_curve(Stage::two, {{{0, 0.5}, {1, 2}, {1, 3}, {2, 4}, {3, 4}, {3, 5}, {4, 6}}});
    EXPECT_EQ(allocations, allocations_before);
    EXPECT_EQ(seen, "") << "the observer hears of others only";
    loop.advance(clock, 50ms);
    EXPECT_EQ(listener.heard, "53=0.5 p80113=0 p80112=0 p80111=0 ");
    EXPECT_EQ(seen, "event event event event ");

    double level = 0;
    UInt32 size = 100; // room for more than that
    EXPECT_EQ(AudioUnitGetProperty(au, 80113, 0, 0, &level, &size), noErr);
    EXPECT_EQ(level, 0.75);
    EXPECT_EQ(size, 8u);
    EXPECT_EQ(unit->level(Stage::one), 0.25);

    unit->take_curve(Stage::two, {{{0, 0.5}, {1, 2}, {1, 3}, {2, 4}, {3, 4}, {3, 5}, {4, 6}}});
    const Record record = unit->record(Stage::two);
    EXPECT_EQ(record.needs_update, 2);
    EXPECT_EQ(record.H[0], 0.5);
    EXPECT_EQ(record.G[0], 4.5);
    EXPECT_EQ(record.pos_M, 1.0);
    EXPECT_EQ(unit->record(Stage::one).needs_update, 0);
}

} // namespace
} // namespace r7
