// Session scripts: the commands of a session file, read and checked before anything runs.
#pragma once

#include "app/state_lines.h"
#include "host/panel_outlets.h"
#include "platform/event.h"
#include "platform/geometry.h"
#include "unit/embedded_unit.h"

#include <chrono>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace r7 {

/// The commands, as docs/sessions.md tells them. Points are in the named view's own coordinates; where there
/// is none, the centre of its bounds is meant. Pointers are to rows of static tables.
namespace session {

struct Press {
    const OutletRow* view = nullptr;
    std::optional<Point> at{};
    int clicks = 1;
    MouseButton button = MouseButton::primary;
};
struct Drag {
    double delta_x = 0.0;
    double delta_y = 0.0; ///< growing downward
    Modifiers modifiers = Modifiers::none;
};
struct Release {};
/// A press, and its release.
struct Click {
    Press press;
};
struct Scroll {
    const OutletRow* view = nullptr;
    double delta_y = 0.0;
    std::optional<Point> at{};
};
struct Wait {
    std::chrono::nanoseconds duration{};
};
struct UnitParameter {
    std::uint32_t id = 0;
    float value = 0.0F;
};
struct UnitLevel {
    Stage stage = Stage::one;
    double value = 0.0;
};
struct UnitCurve {
    Stage stage = Stage::one;
    CurvePoints points{};
};
struct UnitEvent {
    std::uint32_t type = 0;
    std::uint32_t id = 0;
};
struct UnitBind {};
struct UnitUnbind {};
struct Show {
    std::vector<Subject> subjects;
};
/// No row is the panel itself.
struct Frame {
    std::vector<const OutletRow*> views;
};
struct Response {
    const OutletRow* view = nullptr; ///< one that has a response
    double x = 0.0;                  ///< a frequency in Hz, or an input amplitude
};
struct Events {
    bool on = false;
};
/// No row is the whole panel.
struct Picture {
    std::string file;
    const OutletRow* view = nullptr;
};

using Command = std::variant<Press, Drag, Release, Click, Scroll, Wait, UnitParameter, UnitLevel, UnitCurve,
                             UnitEvent, UnitBind, UnitUnbind, Show, Response, Frame, Events, Picture>;

} // namespace session

/// One command, and the line that it stands on, from 1.
struct ScriptStep {
    int line = 0;
    session::Command command;
};

/// The first thing that is wrong with a script.
struct ScriptError {
    int line = 0;
    std::string what;
};

using Script = std::vector<ScriptStep>;

/// Reads the text of a session file. A script is whole or not at all: its words are known, its numbers in
/// range, and every drag and release has its press.
std::variant<Script, ScriptError> read_script(std::string_view text);

} // namespace r7
