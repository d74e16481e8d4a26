// The panel's life: binding to an Audio Unit, listening, synchronising, the background, and the end.
#include "host/panel_view.h"

#include "host/panel_handle.h"
#include "host/panel_tables.h"
#include "platform/graphics.h"

#include <utility>

namespace r7 {

namespace {

// Seconds between two calls for one parameter, and within which its changes arrive as one.
constexpr Float32 kNotificationInterval = 0.05f;
constexpr Float32 kGranularity = 0.05f;

AudioUnitParameter parameter_address(AudioUnit unit, AudioUnitParameterID id)
{
    return {unit, id, kAudioUnitScope_Global, 0};
}

AudioUnitEvent parameter_event(AudioUnit unit, AudioUnitParameterID id)
{
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_ParameterValueChange;
    event.mArgument.mParameter = parameter_address(unit, id);
    return event;
}

AudioUnitEvent property_event(AudioUnit unit, UnitProperty property)
{
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_PropertyChange;
    event.mArgument.mProperty = {unit, static_cast<AudioUnitPropertyID>(property), kAudioUnitScope_Global, 0};
    return event;
}

} // namespace

void EventListenerDispatcher(void* panel, void* object, const AudioUnitEvent* event, UInt64,
                             AudioUnitParameterValue value) noexcept
try {
    static_cast<QmR7View*>(panel)->_eventListener_event_value(object, *event, value);
} catch (...) {
    // The system calls this: a change that could not be shown must not take the host down.
}

QmR7View::QmR7View(const Rect& frame, std::shared_ptr<const Bundle> bundle)
    : View(frame), bundle_(std::move(bundle)), handle_(std::make_shared<PanelHandle>(*this))
{
    bgImage = bundle_->image_resource("r7-bg");
}

QmR7View::~QmR7View()
{
    // A control may outlive its panel in somebody's hand: what it was lent is empty from here on.
    handle_->panel = nullptr;
    _removeListeners();
    close_overlay();
}

void QmR7View::setAU(AudioUnit unit)
{
    if (mAU) _removeListeners();
    mAU = unit;
    if (!mAU) return;
    _addListeners();
    _synchronizeUIWithParameterValues();
}

void QmR7View::_addListeners()
{
    AUEventListenerCreate(&EventListenerDispatcher, this, CFRunLoopGetCurrent(), kCFRunLoopDefaultMode,
                          kNotificationInterval, kGranularity, &mAUEventListener);
    for (AudioUnitParameterID id = 0; id < kParameterCount; ++id) {
        const AudioUnitEvent event = parameter_event(mAU, id);
        AUEventListenerAddEventType(mAUEventListener, this, &event);
    }
    for (const UnitProperty property : kUnitProperties) {
        const AudioUnitEvent event = property_event(mAU, property);
        AUEventListenerAddEventType(mAUEventListener, this, &event);
    }
}

void QmR7View::_removeListeners()
{
    if (mAUEventListener) AUListenerDispose(mAUEventListener);
    mAUEventListener = nullptr;
    mAU = nullptr;
}

void QmR7View::_synchronizeUIWithParameterValues()
{
    for (AudioUnitParameterID id = 0; id < kParameterCount; ++id) {
        // The value read here is not used: all values come in by one way, the announcement.
        AudioUnitParameterValue value = 0.0f;
        AudioUnitGetParameter(mAU, id, kAudioUnitScope_Global, 0, &value);
        const AudioUnitEvent event = parameter_event(mAU, id);
        AUEventListenerNotify(nullptr, nullptr, &event);
    }
    sequence_updated_from_au(static_cast<std::int32_t>(UnitProperty::stage_one_curve));
    sequence_updated_from_au(static_cast<std::int32_t>(UnitProperty::stage_two_curve));
}

void QmR7View::set_au_parameter_to_value(AudioUnitParameterID parameter, AudioUnitParameterValue value)
{
    if (!mAU) return;
    // Naming our own listener as the sender keeps the change from coming back to us.
    const AudioUnitParameter address = parameter_address(mAU, parameter);
    AUParameterSet(mAUEventListener, this, &address, value, 0);
}

void QmR7View::drawRect(Graphics& graphics, const Rect&)
{
    static const Color clear(Rgba{0.0, 0.0, 0.0, 0.0});
    graphics.fill_rect(frame(), &clear, Compositing::copy);
    graphics.draw_image_in_rect(bgImage.get(), bounds(), Compositing::copy, 1.0);
}

} // namespace r7
