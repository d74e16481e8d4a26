// The status line.
#include "app/status_line.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <utility>

namespace r7 {

namespace {

// Seconds; often enough for the eye of whoever turns a knob.
constexpr Float32 kNotificationInterval = 0.03F;

constexpr std::array kStages{Stage::one, Stage::two};

bool is_same(float a, float b)
{
    return std::bit_cast<std::uint32_t>(a) == std::bit_cast<std::uint32_t>(b);
}

} // namespace

StatusLine::StatusLine(Window& window, const std::shared_ptr<QmR7View>& panel, const EmbeddedUnit& unit,
                       const Bundle& bundle)
    : unit_(unit)
{
    const Rect& frame = window.frame();
    const Size size = panel->bounds().size();
    view_ = std::make_shared<StatusView>(Rect{0.0, 0.0, size.width, kHeight}, bundle);
    view_->set_text({"Double click a display to open its editor", ""});
    window.set_content_view(view_);

    panel_window_ = std::make_shared<Window>(Rect{frame.x, frame.y + kHeight, size.width, size.height},
                                             WindowStyle::borderless);
    panel_window_->set_content_view(panel);
    window.add_child_window(*panel_window_);

    for (AudioUnitParameterID id = 0; id < kParameterCount; ++id) values_[id] = unit.parameter(id);
    listen();
}

StatusLine::~StatusLine()
{
    AUListenerDispose(listener_);
}

void StatusLine::listen()
{
    const AUEventListenerProc proc = [](void* line, void*, const AudioUnitEvent* event, UInt64,
                                        AudioUnitParameterValue value) {
        static_cast<StatusLine*>(line)->heard(*event, value);
    };
    AUEventListenerCreate(proc, this, CFRunLoopGetCurrent(), kCFRunLoopDefaultMode, kNotificationInterval,
                          kNotificationInterval, &listener_);
    AudioUnitEvent event{};
    event.mEventType = kAudioUnitEvent_ParameterValueChange;
    for (AudioUnitParameterID id = 0; id < kUnshownParameter; ++id) {
        event.mArgument.mParameter = {unit_.handle(), id, kAudioUnitScope_Global, 0};
        AUEventListenerAddEventType(listener_, nullptr, &event);
    }
    event.mEventType = kAudioUnitEvent_PropertyChange;
    for (const Stage stage : kStages) {
        event.mArgument.mProperty = {unit_.handle(), EmbeddedUnit::curve_property(stage),
                                     kAudioUnitScope_Global, 0};
        AUEventListenerAddEventType(listener_, nullptr, &event);
    }
}

void StatusLine::heard(const AudioUnitEvent& event, float value)
{
    if (event.mEventType == kAudioUnitEvent_PropertyChange) {
        const Stage stage =
            *std::ranges::find(kStages, event.mArgument.mProperty.mPropertyID, &EmbeddedUnit::curve_property);
        view_->set_text(status_of_curve(stage, unit_.record(stage)));
        return;
    }
    const AudioUnitParameterID id = event.mArgument.mParameter.mParameterID;
    const bool stays = is_same(std::exchange(values_[id], value), value);
    // A tone control sends all of its values whichever one was moved.
    if (stays && belongs_to_band(id)) return;
    view_->set_text(status_of_parameter(id, values_));
}

} // namespace r7
