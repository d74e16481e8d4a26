// The lines that tell what a panel does: the output of a session, and of `--trace`.
#pragma once

#include "platform/geometry.h"
#include "platform/log.h"
#include "unit/embedded_unit.h"

#include <cstdio>
#include <optional>
#include <string>
#include <string_view>

namespace r7 {

class QmR7View;

/// `X Y WIDTH HEIGHT`.
std::string text_of(const Rect& rect);

/// The name of the editor that is open in a window of its own over the panel, or nothing.
std::optional<std::string_view> overlay_editor(const QmR7View& panel);

/// Prints what a unit and a panel's window tell, in the words of docs/sessions.md, as it happens.
class Transcript final : public UnitObserver {
public:
    /// Prints nothing until begin(). @param output  stays open; its errors show in ferror()
    explicit Transcript(std::FILE* output) : output_(output) {}

    /// From here on, what happens to `panel`, which outlives the transcript's use, is printed, and the
    /// messages that this thread logs are.
    void begin(const QmR7View& panel);
    /// Whether calls of the panel's listener are printed, too; at first they are not.
    void set_prints_events(bool prints) { prints_events_ = prints; }

    /// Prints what has not been told yet, then `text`.
    void line(std::string_view text);
    /// Prints whether an overlay window was opened or closed since the last line; nothing before begin().
    void note_overlay();

    void parameter_set(AudioUnitParameterID id, float value) override;
    void property_written(AudioUnitPropertyID id, UInt32 size) override;
    void will_deliver(const AudioUnitEvent& event, float value) override;

private:
    void print(std::string_view text);

    std::FILE* output_;
    const QmR7View* panel_ = nullptr; // none before begin()
    std::optional<LogCapture> log_;
    std::optional<std::string_view> overlay_;
    bool prints_events_ = false;
};

} // namespace r7
