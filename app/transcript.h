// The lines that tell what a panel does: the output of a session, and of `--trace`.
#pragma once

#include "platform/geometry.h"
#include "platform/log.h"
#include "unit/embedded_unit.h"

#include <cstdio>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace r7 {

/// `X Y WIDTH HEIGHT`.
std::string text_of(const Rect& rect);

/// The window that an editor is open in over the panel: the editor's name, and where it is on the screen.
struct OpenOverlay {
    std::string_view editor; ///< of static storage
    Rect frame;
};

/// Prints what a unit and a panel's window tell, in the words of docs/sessions.md, as it happens.
class Transcript final : public UnitObserver {
public:
    /// Prints nothing until begin(). @param output  stays open; its errors show in ferror()
    explicit Transcript(std::FILE* output) : output_(output) {}

    /// From here on, what happens is printed, and the messages that this thread logs are.
    /// @param overlay  answers, on this thread, what is open now
    void begin(std::function<std::optional<OpenOverlay>()> overlay);
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
    std::function<std::optional<OpenOverlay>()> ask_overlay_; // none before begin()
    std::optional<LogCapture> log_;
    std::optional<OpenOverlay> overlay_;
    bool prints_events_ = false;
};

} // namespace r7
