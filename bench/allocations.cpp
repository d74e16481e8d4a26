// Setters, rebuilds and paints take no memory once everything has been shown.
#include "bench/limits.h"

#include "platform/offscreen/offscreen_window.h"
#include "tests/support/panel_rig.h"

#include <cstdlib>
#include <new>

namespace {

std::size_t allocations = 0;

void* allocate(std::size_t size, std::size_t alignment)
{
    ++allocations;
    // The size that the C library asks for: a multiple of the alignment.
    if (void* memory = std::aligned_alloc(alignment, (size + alignment - 1) / alignment * alignment))
        return memory;
    throw std::bad_alloc();
}

} // namespace

void* operator new(std::size_t size)
{
    return allocate(size, __STDCPP_DEFAULT_NEW_ALIGNMENT__);
}
void* operator new(std::size_t size, std::align_val_t alignment)
{
    return allocate(size, static_cast<std::size_t>(alignment));
}
void operator delete(void* memory) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::align_val_t) noexcept
{
    std::free(memory);
}
void operator delete(void* memory, std::size_t, std::align_val_t) noexcept
{
    std::free(memory);
}

namespace r7::bench {

namespace {

/// Gives each parameter one value after another, each property what the unit has, and shows what comes of it,
/// the hidden editors included.
void show_everything(PanelRig& rig, OffscreenWindow& window)
{
    AudioUnitEvent event{};
    for (const float value : {0.0f, 1.0f, 2.0f, 3.0f, 4.0f, 5.0f, 0.25f, 1000.0f}) {
        event.mEventType = kAudioUnitEvent_ParameterValueChange;
        for (AudioUnitParameterID id = 0; id < kParameterCount; ++id) {
            event.mArgument.mParameter = {rig.unit->handle(), id, kAudioUnitScope_Global, 0};
            rig.panel->_eventListener_event_value(nullptr, event, value);
        }
        rig.unit->take_level(Stage::one, value);
        rig.unit->take_level(Stage::two, value);
        event.mEventType = kAudioUnitEvent_PropertyChange;
        for (const UnitProperty property : kUnitProperties) {
            event.mArgument.mProperty = {rig.unit->handle(), static_cast<AudioUnitPropertyID>(property),
                                         kAudioUnitScope_Global, 0};
            rig.panel->_eventListener_event_value(nullptr, event, 0.0f);
        }
        for (const OutletRow& outlet : outlet_rows()) view_in(*rig.panel, outlet)->update_geometry();
        rig.panel->set_needs_display();
        window.picture();
    }
}

} // namespace

void measure_allocations(Limits& limits)
{
    PanelRig rig;
    OffscreenWindow window(rig.panel->frame(), 1.0);
    window.window().set_content_view(rig.panel);
    show_everything(rig, window);
    const std::size_t before = allocations;
    show_everything(rig, window);
    limits.at_most(0, static_cast<double>(allocations - before),
                   "allocations in setters, rebuilds and paints after the start");
}

} // namespace r7::bench
