// Playing a session script, command by command.
#include "app/session_player.h"

#include "app/number_text.h"

#include <string>

namespace r7 {

namespace {

/// Performs commands; each has its operator.
class Performer final {
public:
    Performer(OffscreenPanel& stage, Transcript& transcript, const std::filesystem::path& pictures)
        : stage_(stage), transcript_(transcript), pictures_(pictures)
    {
    }

    /// What went wrong with the last command, or nothing.
    const std::string& failure() const { return failure_; }

    void operator()(const session::Press& press)
    {
        held_ = {view_of(press.view), press.button, press.at.value_or(centre_of(press.view)), press.clicks};
        send(&View::mouseDown, &View::rightMouseDown, {});
    }

    void operator()(const session::Drag& drag)
    {
        held_.location.x += drag.delta_x;
        held_.location.y -= drag.delta_y;
        send(&View::mouseDragged, &View::rightMouseDragged, drag);
    }

    void operator()(const session::Release&)
    {
        send(&View::mouseUp, &View::rightMouseUp, {});
        held_ = {};
    }

    void operator()(const session::Click& click)
    {
        (*this)(click.press);
        (*this)(session::Release{});
    }

    void operator()(const session::Scroll& scroll)
    {
        const ViewRef view = view_of(scroll.view);
        const Point at = scroll.at.value_or(centre_of(scroll.view));
        view->scrollWheel({.location_in_window = view->convert_to_window(at), .delta_y = scroll.delta_y});
    }

    void operator()(const session::Wait& wait) { stage_.advance(wait.duration); }

    void operator()(const session::UnitParameter& take) { stage_.unit().automate(take.id, take.value); }
    void operator()(const session::UnitLevel& take) { stage_.unit().take_level(take.stage, take.value); }
    void operator()(const session::UnitCurve& take) { stage_.unit().take_curve(take.stage, take.points); }

    void operator()(const session::UnitEvent& sent)
    {
        AudioUnitEvent event{.mEventType = static_cast<AudioUnitEventType>(sent.type), .mArgument = {}};
        const AudioUnit unit = stage_.unit().handle();
        if (event.mEventType == kAudioUnitEvent_PropertyChange)
            event.mArgument.mProperty = {unit, sent.id, kAudioUnitScope_Global, 0};
        else
            event.mArgument.mParameter = {unit, sent.id, kAudioUnitScope_Global, 0};
        // An unbound panel has no listener, and nobody hears of it.
        send_event(stage_.panel().event_listener(), event, 0.0F);
    }

    void operator()(const session::UnitBind&) { stage_.panel().setAU(stage_.unit().handle()); }
    void operator()(const session::UnitUnbind&) { stage_.panel().setAU(nullptr); }

    void operator()(const session::Show& show)
    {
        for (const Subject& subject : show.subjects)
            transcript_.line(state_line(subject, {stage_.panel(), stage_.unit()}));
    }

    void operator()(const session::Response& response)
    {
        transcript_.line(response_line(*response.view, response.x, stage_.panel()));
    }

    void operator()(const session::Frame& frame)
    {
        for (const OutletRow* row : frame.views)
            transcript_.line("frame " + std::string(row ? row->name : "panel") + ' ' +
                             text_of(view_of(row)->frame()));
    }

    void operator()(const session::Events& events) { transcript_.set_prints_events(events.on); }

    void operator()(const session::Picture& picture)
    {
        const ViewRef view = view_of(picture.view);
        const std::filesystem::path file = pictures_ / picture.file;
        const bool written = view->window() ? paint_in_place(*view, file) : paint_alone(view, file);
        if (!written) failure_ = "the picture " + file.string() + " cannot be written";
    }

private:
    // The button that is down.
    struct Held {
        ViewRef view;
        MouseButton button = MouseButton::primary;
        Point location; // in the view
        int clicks = 1;
    };

    // The view of a row; the panel itself where there is none.
    ViewRef view_of(const OutletRow* row)
    {
        View& view = row ? *view_in(stage_.panel(), *row) : stage_.panel();
        return view.shared_from_this();
    }

    Point centre_of(const OutletRow* row)
    {
        const Rect bounds = view_of(row)->bounds();
        return {bounds.width / 2.0, bounds.height / 2.0};
    }

    // What the panel's window shows where the view is, be it in the panel or in an overlay above it.
    bool paint_in_place(const View& view, const std::filesystem::path& file)
    {
        const Point shown = view.window()->frame().origin(),
                    panel = stage_.window().window().frame().origin();
        const Point origin = view.convert_to_window({shown.x - panel.x, shown.y - panel.y});
        return stage_.window().picture().write_png(file, moved_by(view.bounds(), origin));
    }

    // A hidden editor, in a window of its own for this once.
    bool paint_alone(const ViewRef& view, const std::filesystem::path& file)
    {
        OffscreenWindow alone(view->bounds(), stage_.window().picture().scale());
        const bool was_hidden = view->is_hidden();
        alone.window().set_content_view(view);
        view->set_hidden(false);
        const bool written = alone.picture().write_png(file);
        alone.window().set_content_view(nullptr);
        view->set_hidden(was_hidden);
        return written;
    }

    // Sends the view that was pressed an event of its button.
    void send(void (View::*primary)(const MouseEvent&), void (View::*secondary)(const MouseEvent&),
              const session::Drag& motion)
    {
        const ViewRef view = held_.view; // lives until it returns
        const MouseEvent event{.location_in_window = view->convert_to_window(held_.location),
                               .delta_x = motion.delta_x,
                               .delta_y = motion.delta_y,
                               .click_count = held_.clicks,
                               .modifiers = motion.modifiers};
        (*view.*(held_.button == MouseButton::primary ? primary : secondary))(event);
    }

    OffscreenPanel& stage_;
    Transcript& transcript_;
    const std::filesystem::path& pictures_;
    Held held_;
    std::string failure_;
};

} // namespace

std::optional<ScriptError> play_script(const Script& script, OffscreenPanel& stage, Transcript& transcript,
                                       const std::filesystem::path& pictures)
{
    Performer performer(stage, transcript, pictures);
    for (const ScriptStep& step : script) {
        std::visit(performer, step.command);
        transcript.note_overlay();
        if (!performer.failure().empty()) return ScriptError{step.line, performer.failure()};
    }
    return std::nullopt;
}

} // namespace r7
