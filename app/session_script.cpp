// Reading a session script: lines into words, words into commands by one table, then the order of presses
// and releases.
#include "app/session_script.h"

#include "app/number_text.h"

#include <algorithm>
#include <cmath>
#include <span>

namespace r7 {

namespace {

using namespace session;

/// Longest wait, in seconds: keeps a session's clock far from the end of its nanoseconds.
constexpr double kLongestWait = 1e6;

/// What is wrong with the line at hand; never leaves this file.
struct Mistake {
    std::string what;
};

std::string in_quotes(std::string_view text)
{
    return '"' + std::string(text) + '"';
}

/// The words of one command after its name, taken from left to right. Whatever does not fit is a Mistake.
class Words final {
public:
    Words(std::span<const std::string_view> words, std::string form) : words_(words), form_(std::move(form))
    {
    }

    bool at_end() const { return words_.empty(); }

    std::string_view next()
    {
        if (at_end()) throw Mistake{"a word is missing: " + form_};
        const std::string_view word = words_.front();
        words_ = words_.subspan(1);
        return word;
    }

    /// Takes the next word if it is `word`.
    bool take(std::string_view word)
    {
        if (at_end() || words_.front() != word) return false;
        words_ = words_.subspan(1);
        return true;
    }

    /// A number of the range of its type.
    template <typename Number = double>
    Number number()
    {
        const std::string_view word = next();
        if (const auto number = number_from<Number>(word)) return *number;
        throw Mistake{in_quotes(word) + (std::is_integral_v<Number> ? " is not a whole number in range"
                                                                    : " is not a number in range")};
    }

    std::uint32_t parameter()
    {
        const auto id = number<std::uint32_t>();
        if (id >= kParameters.size()) throw Mistake{"parameters go from 0 to 53, not to " + text_of(id)};
        return id;
    }

    Stage stage()
    {
        const std::string_view word = next();
        if (word == "1") return Stage::one;
        if (word == "2") return Stage::two;
        throw Mistake{"a stage is 1 or 2, not " + in_quotes(word)};
    }

    int clicks()
    {
        const int clicks = number<int>();
        if (clicks < 1) throw Mistake{"clicks are 1 or more, not " + text_of(clicks)};
        return clicks;
    }

    Point point()
    {
        const double x = number();
        return {x, number()};
    }

    std::optional<Point> optional_point() { return take("at") ? std::optional(point()) : std::nullopt; }

    std::chrono::nanoseconds seconds()
    {
        const double seconds = number();
        if (!(seconds >= 0.0 && seconds <= kLongestWait))
            throw Mistake{"a wait is 0 to 1000000 seconds, not " + text_of(seconds)};
        return std::chrono::nanoseconds(std::llround(seconds * 1e9));
    }

    const OutletRow* view()
    {
        const std::string_view name = next();
        if (const OutletRow* row = outlet_row_named(name)) return row;
        throw Mistake{"there is no view " + in_quotes(name)};
    }

    /// None for `panel`.
    const OutletRow* view_or_panel() { return take("panel") ? nullptr : view(); }

    Subject subject()
    {
        const std::string_view name = next();
        if (const auto subject = subject_named(name)) return *subject;
        throw Mistake{"there is nothing to show with the name " + in_quotes(name)};
    }

    /// The command has been read: nothing may be left.
    void end() const
    {
        if (!at_end()) throw Mistake{in_quotes(words_.front()) + " is a word too many: " + form_};
    }

private:
    std::span<const std::string_view> words_;
    std::string form_;
};

Press read_press(Words& words)
{
    Press press{.view = words.view(), .at = words.optional_point()};
    if (words.take("clicks")) press.clicks = words.clicks();
    if (words.take("right")) press.button = MouseButton::secondary;
    return press;
}

Drag read_drag(Words& words)
{
    Drag drag{.delta_x = words.number(), .delta_y = words.number()};
    if (words.take("control")) drag.modifiers = drag.modifiers | Modifiers::control;
    if (words.take("shift")) drag.modifiers = drag.modifiers | Modifiers::shift;
    if (words.take("option")) drag.modifiers = drag.modifiers | Modifiers::option;
    return drag;
}

UnitCurve read_curve(Words& words)
{
    UnitCurve curve{.stage = words.stage()};
    for (AmplitudePoint& point : curve.points) {
        point.x = words.number<PointCoordinate>();
        point.y = words.number<PointCoordinate>();
    }
    return curve;
}

/// One name at least, and on to the end of the line.
template <typename Read>
auto read_list(Words& words, Read read)
{
    std::vector<decltype(read())> list;
    do list.push_back(read());
    while (!words.at_end());
    return list;
}

Command read_response(Words& words)
{
    const OutletRow* view = words.view();
    if (!has_response(*view)) throw Mistake{"the view " + in_quotes(view->name) + " has no response"};
    return Response{view, words.number()};
}

/// A command: its one or two words, the form of what follows them, and how that is read.
struct CommandRow {
    std::string_view name;
    std::string_view form;
    Command (*read)(Words& words);
};

constexpr CommandRow kCommands[] = {
    {"press", "NAME [at X Y] [clicks N] [right]", [](Words& w) -> Command { return read_press(w); }},
    {"drag", "DX DY [control] [shift] [option]", [](Words& w) -> Command { return read_drag(w); }},
    {"release", "", [](Words&) -> Command { return Release{}; }},
    {"click", "NAME [at X Y] [clicks N] [right]", [](Words& w) -> Command { return Click{read_press(w)}; }},
    {"scroll", "NAME DY [at X Y]",
     [](Words& w) -> Command {
         return Scroll{w.view(), w.number(), w.optional_point()};
     }},
    {"wait", "SECONDS", [](Words& w) -> Command { return Wait{w.seconds()}; }},
    {"unit parameter", "ID VALUE",
     [](Words& w) -> Command {
         return UnitParameter{w.parameter(), w.number<float>()};
     }},
    {"unit level", "STAGE VALUE",
     [](Words& w) -> Command {
         return UnitLevel{w.stage(), w.number()};
     }},
    {"unit curve", "STAGE X1 Y1 X2 Y2 X3 Y3 X4 Y4 X5 Y5 X6 Y6 X7 Y7",
     [](Words& w) -> Command { return read_curve(w); }},
    {"unit event", "TYPE ID",
     [](Words& w) -> Command {
         return UnitEvent{w.number<std::uint32_t>(), w.number<std::uint32_t>()};
     }},
    {"unit bind", "", [](Words&) -> Command { return UnitBind{}; }},
    {"unit unbind", "", [](Words&) -> Command { return UnitUnbind{}; }},
    {"show", "NAME ...",
     [](Words& w) -> Command { return Show{read_list(w, [&w] { return w.subject(); })}; }},
    {"response", "NAME X", [](Words& w) -> Command { return read_response(w); }},
    {"frame", "NAME ...",
     [](Words& w) -> Command { return Frame{read_list(w, [&w] { return w.view_or_panel(); })}; }},
    {"events on", "", [](Words&) -> Command { return Events{true}; }},
    {"events off", "", [](Words&) -> Command { return Events{false}; }},
    {"picture", "FILE [NAME]",
     [](Words& w) -> Command {
         return Picture{std::string(w.next()), w.at_end() ? nullptr : w.view_or_panel()};
     }},
};

/// Words are separated by blanks; a `#` and all behind it is no part of the line.
std::vector<std::string_view> words_of(std::string_view line)
{
    constexpr std::string_view kBlanks = " \t\r";
    line = line.substr(0, line.find('#'));
    std::vector<std::string_view> words;
    for (;;) {
        line.remove_prefix(std::min(line.find_first_not_of(kBlanks), line.size()));
        if (line.empty()) return words;
        words.push_back(line.substr(0, line.find_first_of(kBlanks)));
        line.remove_prefix(words.back().size());
    }
}

/// How many of the words are the row's name; 0 where they are another command's.
std::size_t length_of_name(const CommandRow& row, std::span<const std::string_view> words)
{
    const std::vector<std::string_view> name = words_of(row.name);
    return words.size() >= name.size() && std::ranges::equal(name, words.first(name.size())) ? name.size()
                                                                                             : 0;
}

Command read_command(std::span<const std::string_view> words)
{
    for (const CommandRow& row : kCommands)
        if (const std::size_t length = length_of_name(row, words)) {
            std::string form(row.name);
            if (!row.form.empty()) form.append(" ").append(row.form);
            Words rest(words.subspan(length), form);
            Command command = row.read(rest);
            rest.end();
            return command;
        }
    std::string name(words.front());
    const bool is_first_of_two = std::ranges::any_of(
        kCommands, [&](const CommandRow& row) { return row.name.starts_with(name + ' '); });
    if (is_first_of_two && words.size() > 1) name.append(" ").append(words[1]);
    throw Mistake{"there is no command " + in_quotes(name)};
}

/// Whether the mouse button is down after `command`, which must be possible in that state.
bool is_down_after(const Command& command, bool is_down)
{
    const bool presses = std::holds_alternative<Press>(command) || std::holds_alternative<Click>(command);
    const bool releases = std::holds_alternative<Release>(command);
    if (presses && is_down) throw Mistake{"a button is down already"};
    if ((releases || std::holds_alternative<Drag>(command)) && !is_down) throw Mistake{"no button is down"};
    if (releases) return false;
    return is_down || std::holds_alternative<Press>(command);
}

} // namespace

std::variant<Script, ScriptError> read_script(std::string_view text)
{
    Script script;
    bool is_down = false;
    for (int line = 1; !text.empty(); ++line) {
        const std::string_view this_line = text.substr(0, text.find('\n'));
        text.remove_prefix(std::min(this_line.size() + 1, text.size()));
        const std::vector<std::string_view> words = words_of(this_line);
        if (words.empty()) continue;
        try {
            script.push_back({line, read_command(words)});
            is_down = is_down_after(script.back().command, is_down);
        } catch (const Mistake& mistake) {
            return ScriptError{line, mistake.what};
        }
    }
    return script;
}

} // namespace r7
