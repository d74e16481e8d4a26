// A window on an X11 display: a turn is events, then where the window is, then at most one paint.
#include "platform/x11/x11_window.h"

#include "platform/x11/connection.h"
#include "platform/x11/cursor_cache.h"
#include "platform/x11/endless_screen.h"
#include "platform/x11/native_window.h"
#include "platform/x11/pixel_sender.h"

#include <algorithm>
#include <cassert>
#include <utility>

namespace r7 {

struct X11Window::Event {
    XcbPointer<xcb_generic_event_t> raw;

    explicit operator bool() const { return raw != nullptr; }
    template <typename T>
    const T& as() const
    {
        return reinterpret_cast<const T&>(*raw);
    }
};

// What lives as long as the connection.
struct X11Window::Native {
    Native(std::unique_ptr<X11Connection> over, xcb_window_t window, double scale)
        : connection(std::move(over)),
          c(connection->get()),
          pixels(*connection, window, connection->visual().depth),
          cursors(*connection, scale),
          protocols(connection->atom("WM_PROTOCOLS")),
          delete_window(connection->atom("WM_DELETE_WINDOW"))
    {
    }

    // The next of the events that have been read from the connection.
    Event take_event()
    {
        return next ? std::exchange(next, {})
                    : Event{XcbPointer<xcb_generic_event_t>(xcb_poll_for_queued_event(c))};
    }

    // To the place, or the one of the screen that is nearest.
    void move_pointer(X11EndlessScreen::Place place) const
    {
        const auto coordinate = [](int number) {
            return static_cast<std::int16_t>(std::clamp(number, 0, 32767));
        };
        xcb_warp_pointer(c, XCB_WINDOW_NONE, connection->screen().root, 0, 0, 0, 0, coordinate(place.x),
                         coordinate(place.y));
        xcb_flush(c); // the hand goes on meanwhile
    }

    std::unique_ptr<X11Connection> connection;
    xcb_connection_t* c;
    X11PixelSender pixels;
    X11CursorCache cursors;
    xcb_cursor_t cursor = XCB_CURSOR_NONE; // shown
    X11EndlessScreen endless_screen;
    xcb_atom_t protocols;
    xcb_atom_t delete_window;
    Event next; // looked at, not yet taken
};

namespace {

// Presses, releases and motions have their fields in the same places under different names.
template <typename T>
X11Pointer pointer_of(const T& event)
{
    return {event.event_x, event.event_y, event.root_x, event.root_y, event.time, event.state};
}

// Whether a button that drags is held besides the one that is pressed or released.
bool holds_another(const xcb_button_press_event_t& e)
{
    return (e.state & XCB_BUTTON_MASK_1 && e.detail != XCB_BUTTON_INDEX_1) ||
           (e.state & XCB_BUTTON_MASK_3 && e.detail != XCB_BUTTON_INDEX_3);
}

Rect as_rect(const PixelRect& pixels)
{
    return {static_cast<double>(pixels.x), static_cast<double>(pixels.y), static_cast<double>(pixels.width),
            static_cast<double>(pixels.height)};
}

PixelRect as_pixels(const Rect& rect)
{
    return {static_cast<int>(rect.x), static_cast<int>(rect.y), static_cast<int>(rect.width),
            static_cast<int>(rect.height)};
}

} // namespace

X11Window::Opened X11Window::open(X11WindowOptions options)
{
    assert(options.size.width >= 1.0 && options.size.height >= 1.0 && options.scale >= 0.0);
    X11OpenStatus status = X11OpenStatus::open;
    auto connection = X11Connection::open(options.display, options.parent, status);
    if (!connection) return {nullptr, status};

    constexpr double kMostPixels = 32767.0; // positions in requests have 16 bits
    const double scale = options.scale > 0.0 ? options.scale : connection->desktop_scale();
    if (options.size.width * scale > kMostPixels || options.size.height * scale > kMostPixels)
        return {nullptr, X11OpenStatus::too_large};

    const X11OpenStatus refused = options.parent ? X11OpenStatus::unusable_parent : X11OpenStatus::no_display;
    std::shared_ptr<X11Window> opened(new X11Window(std::move(options), scale));
    if (!opened->create(std::move(connection))) return {nullptr, refused};
    return {std::move(opened), X11OpenStatus::open};
}

X11Window::X11Window(X11WindowOptions options, double scale)
    : options_(std::move(options)),
      back_buffer_(options_.size, scale),
      pointer_(back_buffer_.height(), scale),
      window_(std::make_shared<Window>(Rect{0.0, 0.0, options_.size.width, options_.size.height}))
{
    window_->set_backend(this);
}

X11Window::~X11Window()
{
    window_->set_backend(nullptr);
}

bool X11Window::create(std::unique_ptr<X11Connection> connection)
{
    native_id_ = create_native_window(*connection, options_, static_cast<std::uint16_t>(back_buffer_.width()),
                                      static_cast<std::uint16_t>(back_buffer_.height()));
    if (native_id_ == XCB_WINDOW_NONE) return false;
    native_ = std::make_unique<Native>(std::move(connection), native_id_, scale());
    update_click_interval();
    // Flushed by the first turn.
    xcb_map_window(native_->c, native_id_);
    return true;
}

std::uint64_t X11Window::bytes_sent() const
{
    return native_ ? xcb_total_written(native_->c) : 0;
}

void X11Window::show_cursor(const CursorRef& cursor)
{
    cursor_ = cursor;
    if (!hides_pointer_) use_cursor(cursor);
}

void X11Window::use_cursor(const CursorRef& cursor)
{
    if (!native_) return;
    const xcb_cursor_t found = native_->cursors.find(cursor);
    if (found == native_->cursor) return;
    native_->cursor = found;
    xcb_change_window_attributes(native_->c, native_id_, XCB_CW_CURSOR, &found);
    wants_turn_ = true; // to be flushed
}

int X11Window::file_descriptor() const
{
    return native_ ? xcb_get_file_descriptor(native_->c) : -1;
}

bool X11Window::is_pending()
{
    if (!native_) return false;
    // A reply that was waited for may have brought events, which the file tells nothing of.
    if (!native_->next) native_->next = native_->take_event();
    return native_->next || wants_turn_ || native_->connection->is_broken();
}

void X11Window::serve()
{
    if (!native_) return;
    const auto self = shared_from_this(); // whoever is told of an event may let go of this window
    if (!native_->next) native_->next.raw.reset(xcb_poll_for_event(native_->c));
    // What arrives meanwhile waits for the next turn, so that a busy pointer cannot put off the paint.
    while (const Event event = native_->take_event()) {
        handle(event);
        if (!native_) return;
    }
    if (std::exchange(moved_, false)) update_frame();
    paint();
    xcb_flush(native_->c);
    if (native_->connection->is_broken()) lose();
}

void X11Window::handle(const Event& event)
{
    constexpr int kSentByAClient = 0x80;
    switch (event.raw->response_type & ~kSentByAClient) {
    case XCB_EXPOSE: {
        const auto& e = event.as<xcb_expose_event_t>();
        const PixelRect picture{0, 0, back_buffer_.width(), back_buffer_.height()};
        exposed_ = true;
        to_send_.add(intersection(as_rect({e.x, e.y, e.width, e.height}), as_rect(picture)));
        break;
    }
    case XCB_UNMAP_NOTIFY:
        exposed_ = false;
        end_drag(); // whose release the display keeps to itself
        break;
    case XCB_PROPERTY_NOTIFY: // of the desktop's settings
        update_click_interval();
        break;
    case XCB_CONFIGURE_NOTIFY:
    case XCB_REPARENT_NOTIFY:
        moved_ = true;
        break;
    case XCB_DESTROY_NOTIFY:
        lose();
        break;
    case XCB_CLIENT_MESSAGE: {
        const auto& e = event.as<xcb_client_message_event_t>();
        const bool closes = e.type == native_->protocols && e.data.data32[0] == native_->delete_window;
        if (closes && options_.close_requested) options_.close_requested();
        break;
    }
    case XCB_BUTTON_PRESS: {
        const auto& e = event.as<xcb_button_press_event_t>();
        if ((e.detail == XCB_BUTTON_INDEX_1 || e.detail == XCB_BUTTON_INDEX_3) && !holds_another(e))
            native_->endless_screen.begin(native_->connection->monitor_at(e.root_x, e.root_y));
        const X11Pointer pointer = native_->endless_screen.follow(pointer_of(e));
        // Nothing else tells where a window is whose surroundings were moved.
        place(e.root_x - e.event_x, e.root_y - e.event_y);
        if (const auto press = pointer_.press(e.detail, pointer))
            window_->press(press->button, press->event);
        else if (const auto notch = pointer_.scroll(e.detail, pointer))
            window_->scroll(*notch);
        break;
    }
    case XCB_BUTTON_RELEASE: {
        const auto& e = event.as<xcb_button_release_event_t>();
        const auto release = pointer_.release(e.detail, native_->endless_screen.follow(pointer_of(e)));
        if (!holds_another(e)) end_drag();
        if (release) window_->release(release->button, release->event);
        break;
    }
    case XCB_MOTION_NOTIFY: {
        const auto& e = event.as<xcb_motion_notify_event_t>();
        const auto drag = pointer_.move(native_->endless_screen.follow(pointer_of(e)));
        if (!drag) break;
        keep_off_edges();
        // One by one, however many wait: a control rounds and clamps each step, and merged ones would end
        // elsewhere.
        window_->drag(drag->button, drag->event);
        break;
    }
    default: // an error, which only tells that something is gone already, or of no interest
        break;
    }
}

void X11Window::keep_off_edges()
{
    const auto place = native_->endless_screen.bring_back();
    if (!place) return;
    if (!std::exchange(hides_pointer_, true)) {
        use_cursor(std::make_shared<Cursor>(Cursor{Image::painted({1.0, 1.0}, [](Graphics&) {}), {}}));
        // Over the windows of others, too.
        xcb_change_active_pointer_grab(native_->c, native_->cursor, XCB_CURRENT_TIME, kPointerEvents);
    }
    native_->move_pointer(*place);
}

void X11Window::end_drag()
{
    if (std::exchange(hides_pointer_, false)) use_cursor(cursor_);
    if (const auto place = native_->endless_screen.end()) native_->move_pointer(*place);
}

void X11Window::update_click_interval()
{
    const auto time =
        options_.click_interval ? options_.click_interval : native_->connection->double_click_time();
    pointer_.set_click_interval(time.value_or(X11PointerTracker::kClickInterval));
}

void X11Window::update_frame()
{
    const XcbPointer<xcb_translate_coordinates_reply_t> corner(xcb_translate_coordinates_reply(
        native_->c,
        xcb_translate_coordinates(native_->c, native_id_, native_->connection->screen().root, 0, 0),
        nullptr));
    if (corner) place(corner->dst_x, corner->dst_y);
}

void X11Window::place(int left, int top)
{
    const int bottom = native_->connection->screen().height_in_pixels - top - back_buffer_.height();
    window_->set_frame_origin({left / scale(), bottom / scale()});
}

void X11Window::paint()
{
    wants_turn_ = false; // what views ask for from now on is for the next turn
    for (const PixelRect& changed : back_buffer_.repaint(*window_)) to_send_.add(as_rect(changed));
    // A window that comes into sight is exposed whole: what is sent before is sent for nothing.
    if (exposed_)
        for (const Rect& part : to_send_.rects())
            native_->pixels.send(back_buffer_.pixels(), back_buffer_.stride(), as_pixels(part));
    to_send_.clear();
}

void X11Window::lose()
{
    native_.reset();
    if (options_.connection_lost) options_.connection_lost();
}

} // namespace r7
