// The lines that tell what a panel does.
#include "app/transcript.h"

#include "app/number_text.h"

#include <utility>

namespace r7 {

std::string text_of(const Rect& rect)
{
    return text_of(rect.x) + ' ' + text_of(rect.y) + ' ' + text_of(rect.width) + ' ' + text_of(rect.height);
}

void Transcript::begin(std::function<std::optional<OpenOverlay>()> overlay)
{
    ask_overlay_ = std::move(overlay);
    log_.emplace([this](std::string_view text) { line("log " + std::string(text)); });
}

void Transcript::line(std::string_view text)
{
    if (!ask_overlay_) return;
    note_overlay();
    print(text);
}

void Transcript::note_overlay()
{
    if (!ask_overlay_) return;
    const auto before = std::exchange(overlay_, ask_overlay_());
    const bool is_the_same = before && overlay_ && before->editor == overlay_->editor;
    if (before && !is_the_same) print("overlay close");
    if (overlay_ && !is_the_same)
        print("overlay open " + std::string(overlay_->editor) + ' ' + text_of(overlay_->frame));
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
