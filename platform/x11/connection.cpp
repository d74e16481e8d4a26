// The connection to a display.
#include "platform/x11/connection.h"

#include "platform/x11/desktop_settings.h"

#include <xcb/randr.h>

#include <bit>

namespace r7 {

namespace {

// The screen that the display's name asks for.
const xcb_screen_t* preferred_screen(const xcb_setup_t* setup, int number)
{
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(setup);
    for (; screen.rem && number > 0; --number) xcb_screen_next(&screen);
    return screen.rem ? screen.data : nullptr;
}

// The screen that a window is on, or none where there is no such window.
const xcb_screen_t* screen_of(xcb_connection_t* connection, xcb_window_t window)
{
    const XcbPointer<xcb_get_geometry_reply_t> geometry(
        xcb_get_geometry_reply(connection, xcb_get_geometry(connection, window), nullptr));
    if (!geometry) return nullptr;
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    while (screen.rem && screen.data->root != geometry->root) xcb_screen_next(&screen);
    return screen.rem ? screen.data : nullptr;
}

bool has_32_bits_a_pixel(const xcb_setup_t* setup, std::uint8_t depth)
{
    xcb_format_iterator_t format = xcb_setup_pixmap_formats_iterator(setup);
    while (format.rem && format.data->depth != depth) xcb_format_next(&format);
    return format.rem && format.data->bits_per_pixel == 32;
}

// The root window's visual where it serves, otherwise the first of the smallest depth that does; depth 0
// where there is none.
X11Visual usable_visual(const xcb_setup_t* setup, const xcb_screen_t& screen)
{
    constexpr auto kOrder =
        std::endian::native == std::endian::little ? XCB_IMAGE_ORDER_LSB_FIRST : XCB_IMAGE_ORDER_MSB_FIRST;
    X11Visual best;
    if (setup->image_byte_order != kOrder) return best;
    for (auto depth = xcb_screen_allowed_depths_iterator(&screen); depth.rem; xcb_depth_next(&depth)) {
        const std::uint8_t bits = depth.data->depth;
        if ((bits != 24 && bits != 32) || !has_32_bits_a_pixel(setup, bits)) continue;
        for (auto i = xcb_depth_visuals_iterator(depth.data); i.rem; xcb_visualtype_next(&i)) {
            const xcb_visualtype_t& visual = *i.data;
            if (visual._class != XCB_VISUAL_CLASS_TRUE_COLOR || visual.red_mask != 0xff0000 ||
                visual.green_mask != 0xff00 || visual.blue_mask != 0xff)
                continue;
            if (visual.visual_id == screen.root_visual) return {visual.visual_id, bits};
            if (best.depth == 0 || bits < best.depth) best = {visual.visual_id, bits};
        }
    }
    return best;
}

} // namespace

std::unique_ptr<X11Connection> X11Connection::open(const std::string& display, xcb_window_t parent,
                                                   X11OpenStatus& status)
{
    int number = 0;
    std::unique_ptr<X11Connection> opened(
        new X11Connection(xcb_connect(display.empty() ? nullptr : display.c_str(), &number)));
    const auto refuse = [&status](X11OpenStatus reason) {
        status = reason;
        return nullptr;
    };
    if (opened->is_broken()) return refuse(X11OpenStatus::no_display);
    const xcb_setup_t* setup = xcb_get_setup(opened->connection_);
    opened->screen_ = parent ? screen_of(opened->connection_, parent) : preferred_screen(setup, number);
    if (!opened->screen_) return refuse(parent ? X11OpenStatus::unusable_parent : X11OpenStatus::no_display);
    opened->visual_ = usable_visual(setup, *opened->screen_);
    if (opened->visual_.depth == 0) return refuse(X11OpenStatus::no_usable_visual);
    status = X11OpenStatus::open;
    return opened;
}

X11Connection::~X11Connection()
{
    xcb_disconnect(connection_);
}

double X11Connection::desktop_scale() const
{
    // The desktop's settings are with the first screen, whichever screen the window is on.
    const xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    return desktop_scale_of(property(root, XCB_ATOM_RESOURCE_MANAGER, XCB_ATOM_STRING));
}

PixelRect X11Connection::monitor_at(int x, int y) const
{
    const PixelRect whole{0, 0, screen_->width_in_pixels, screen_->height_in_pixels};
    // A request of an extension that is not there would break the connection.
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection_, &xcb_randr_id);
    if (!extension || !extension->present) return whole;
    constexpr std::uint8_t kActive = 1;
    const XcbPointer<xcb_randr_get_monitors_reply_t> reply(xcb_randr_get_monitors_reply(
        connection_, xcb_randr_get_monitors(connection_, screen_->root, kActive), nullptr));
    if (!reply) return whole;
    for (auto i = xcb_randr_get_monitors_monitors_iterator(reply.get()); i.rem;
         xcb_randr_monitor_info_next(&i)) {
        const PixelRect monitor{i.data->x, i.data->y, i.data->width, i.data->height};
        if (x >= monitor.x && x < monitor.right() && y >= monitor.y && y < monitor.bottom()) return monitor;
    }
    return whole;
}

std::optional<std::chrono::milliseconds> X11Connection::double_click_time() const
{
    const auto asked = xcb_get_selection_owner(connection_, atom("_XSETTINGS_S0"));
    const XcbPointer<xcb_get_selection_owner_reply_t> manager(
        xcb_get_selection_owner_reply(connection_, asked, nullptr));
    if (!manager || manager->owner == XCB_WINDOW_NONE) return std::nullopt;
    constexpr std::uint32_t kChanges = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection_, manager->owner, XCB_CW_EVENT_MASK, &kChanges);
    const xcb_atom_t settings = atom("_XSETTINGS_SETTINGS");
    return double_click_time_of(property(manager->owner, settings, settings));
}

xcb_atom_t X11Connection::atom(std::string_view name) const
{
    const XcbPointer<xcb_intern_atom_reply_t> reply(xcb_intern_atom_reply(
        connection_, xcb_intern_atom(connection_, 0, static_cast<std::uint16_t>(name.size()), name.data()),
        nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

std::string X11Connection::property(xcb_window_t window, xcb_atom_t name, xcb_atom_t type) const
{
    constexpr std::uint32_t kMostWords = 1 << 16;
    const XcbPointer<xcb_get_property_reply_t> reply(xcb_get_property_reply(
        connection_, xcb_get_property(connection_, 0, window, name, type, 0, kMostWords), nullptr));
    if (!reply || reply->format != 8) return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())),
            static_cast<std::size_t>(xcb_get_property_value_length(reply.get()))};
}

} // namespace r7
