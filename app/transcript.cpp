// The lines that tell what a panel does.
#include "app/transcript.h"

#include "app/number_text.h"
#include "host/panel_view.h"
#include "platform/window.h"

namespace r7 {

namespace {

// The panel opens one at most.
const Window* overlay_window(const QmR7View& panel)
{
    const Window* window = panel.window();
    return window && !window->child_windows().empty() ? window->child_windows().front() : nullptr;
}

} // namespace

std::string text_of(const Rect& rect)
{
    return text_of(rect.x) + ' ' + text_of(rect.y) + ' ' + text_of(rect.width) + ' ' + text_of(rect.height);
}

std::optional<std::string_view> overlay_editor(const QmR7View& panel)
{
    if (const Window* overlay = overlay_window(panel))
        for (const OutletRow& row : outlet_rows())
            if (view_in(panel, row) == overlay->content_view()) return row.name;
    return std::nullopt;
}

void Transcript::begin(const QmR7View& panel)
{
    panel_ = &panel;
    log_.emplace([this](std::string_view text) { line("log " + std::string(text)); });
}

void Transcript::line(std::string_view text)
{
    if (!panel_) return;
    note_overlay();
    print(text);
}

void Transcript::note_overlay()
{
    if (!panel_) return;
    const auto before = std::exchange(overlay_, overlay_editor(*panel_));
    if (overlay_ == before) return;
    if (before) print("overlay close");
    if (overlay_)
        print("overlay open " + std::string(*overlay_) + ' ' + text_of(overlay_window(*panel_)->frame()));
}

void Transcript::parameter_set(AudioUnitParameterID id, float value)
{
    line("set " + text_of(id) + ' ' + text_of(value));
}

void Transcript::property_written(AudioUnitPropertyID id, UInt32 size)
{
    line("write " + text_of(id) + ' ' + text_of(size));
}

void Transcript::will_deliver(const AudioUnitEvent& event, float value)
{
    if (!prints_events_) return;
    const bool is_property = event.mEventType == kAudioUnitEvent_PropertyChange;
    const UInt32 id =
        is_property ? event.mArgument.mProperty.mPropertyID : event.mArgument.mParameter.mParameterID;
    line("event " + text_of(static_cast<UInt32>(event.mEventType)) + ' ' + text_of(id) + ' ' +
         text_of(is_property ? 0.0F : value));
}

void Transcript::print(std::string_view text)
{
    std::fwrite(text.data(), 1, text.size(), output_);
    std::fputc('\n', output_);
}

} // namespace r7
