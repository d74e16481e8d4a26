// The window as the display knows it.
#include "platform/x11/native_window.h"

#include "platform/cairo/image_pixels.h"

#include <unistd.h>

#include <array>
#include <climits>
#include <cstring>
#include <span>
#include <vector>

namespace r7 {

namespace {

constexpr std::uint32_t kEvents = XCB_EVENT_MASK_EXPOSURE | XCB_EVENT_MASK_STRUCTURE_NOTIFY | kPointerEvents;

/// Sets properties of one window.
class Properties final {
public:
    Properties(const X11Connection& connection, xcb_window_t window)
        : connection_(connection), window_(window)
    {
    }

    void set(xcb_atom_t name, xcb_atom_t type, std::string_view text) const
    {
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, name, type, 8,
                            static_cast<std::uint32_t>(text.size()), text.data());
    }
    void set(xcb_atom_t name, xcb_atom_t type, std::span<const std::uint32_t> words) const
    {
        xcb_change_property(connection_.get(), XCB_PROP_MODE_REPLACE, window_, name, type, 32,
                            static_cast<std::uint32_t>(words.size()), words.data());
    }

private:
    const X11Connection& connection_;
    xcb_window_t window_;
};

// A colour that was multiplied by its alpha, the pixel's uppermost byte, as it was before.
std::uint32_t straight_of(std::uint32_t pixel)
{
    const std::uint32_t alpha = pixel >> 24;
    if (alpha == 0) return 0;
    const auto straight = [=](int shift) {
        return ((pixel >> shift & 0xff) * 255 + alpha / 2) / alpha << shift;
    };
    return alpha << 24 | straight(16) | straight(8) | straight(0);
}

// Width, height and straight colours of each picture; without those that would make it longer than
// `most_words`.
std::vector<std::uint32_t> icon_words(const std::vector<ImageRef>& icons, std::size_t most_words)
{
    std::vector<std::uint32_t> words;
    for (const ImageRef& icon : icons) {
        if (!icon) continue;
        const ImagePixels image = image_pixels(*icon, 1.0);
        const std::size_t count = image.bytes.size() / 4;
        const std::size_t start = words.size() + 2;
        if (start + count > most_words) continue;
        words.push_back(static_cast<std::uint32_t>(image.width));
        words.push_back(static_cast<std::uint32_t>(image.height));
        words.resize(start + count);
        std::memcpy(&words[start], image.bytes.data(), image.bytes.size());
        for (std::uint32_t& pixel : std::span(words).subspan(start)) pixel = straight_of(pixel);
    }
    return words;
}

std::string host_name()
{
    std::array<char, HOST_NAME_MAX + 1> name{};
    return gethostname(name.data(), name.size() - 1) == 0 ? name.data() : "";
}

// What the window manager reads of a top-level window. The layouts are those of the ICCCM, 4.1.2.
void describe_to_window_manager(const X11Connection& connection, const Properties& properties,
                                const X11WindowOptions& options, std::uint16_t width, std::uint16_t height)
{
    const xcb_atom_t utf8 = connection.atom("UTF8_STRING");
    properties.set(XCB_ATOM_WM_NAME, utf8, options.title);
    properties.set(connection.atom("_NET_WM_NAME"), utf8, options.title);
    const std::array protocols{connection.atom("WM_DELETE_WINDOW")};
    properties.set(connection.atom("WM_PROTOCOLS"), XCB_ATOM_ATOM, protocols);

    constexpr std::uint32_t kMinimumAndMaximumSize = 0x10 | 0x20;
    std::array<std::uint32_t, 18> size_hints{kMinimumAndMaximumSize};
    size_hints[5] = size_hints[7] = width;
    size_hints[6] = size_hints[8] = height;
    properties.set(XCB_ATOM_WM_NORMAL_HINTS, XCB_ATOM_WM_SIZE_HINTS, size_hints);

    constexpr std::uint32_t kInputAndState = 0x1 | 0x2, kTakesInput = 1, kNormalState = 1;
    const std::array<std::uint32_t, 9> hints{kInputAndState, kTakesInput, kNormalState};
    properties.set(XCB_ATOM_WM_HINTS, XCB_ATOM_WM_HINTS, hints);

    // A process number means something only together with its machine.
    properties.set(XCB_ATOM_WM_CLIENT_MACHINE, XCB_ATOM_STRING, host_name());
    const std::array process{static_cast<std::uint32_t>(getpid())};
    properties.set(connection.atom("_NET_WM_PID"), XCB_ATOM_CARDINAL, process);

    constexpr std::size_t kFields = sizeof(xcb_change_property_request_t) / 4 + 1;
    const std::size_t most_words = xcb_get_maximum_request_length(connection.get()) - kFields;
    const auto icons = icon_words(options.icons, most_words);
    if (!icons.empty()) properties.set(connection.atom("_NET_WM_ICON"), XCB_ATOM_CARDINAL, icons);
}

} // namespace

xcb_window_t create_native_window(const X11Connection& connection, const X11WindowOptions& options,
                                  std::uint16_t width, std::uint16_t height)
{
    xcb_connection_t* c = connection.get();
    const X11Visual visual = connection.visual();
    const xcb_window_t parent = options.parent ? options.parent : connection.screen().root;

    // Colour map, border and depth of its own: those of a host's window may belong to another visual.
    const xcb_colormap_t colors = xcb_generate_id(c);
    xcb_create_colormap(c, XCB_COLORMAP_ALLOC_NONE, colors, connection.screen().root, visual.id);
    constexpr std::uint32_t kMask =
        XCB_CW_BACK_PIXMAP | XCB_CW_BORDER_PIXEL | XCB_CW_BIT_GRAVITY | XCB_CW_EVENT_MASK | XCB_CW_COLORMAP;
    const std::array<std::uint32_t, 5> values{XCB_BACK_PIXMAP_NONE, 0, XCB_GRAVITY_NORTH_WEST, kEvents,
                                              colors};
    const xcb_window_t window = xcb_generate_id(c);
    const xcb_void_cookie_t created =
        xcb_create_window_checked(c, visual.depth, window, parent, 0, 0, width, height, 0,
                                  XCB_WINDOW_CLASS_INPUT_OUTPUT, visual.id, kMask, values.data());
    const XcbPointer<xcb_generic_error_t> refusal(xcb_request_check(c, created));
    if (refusal) return XCB_WINDOW_NONE;

    const Properties properties(connection, window);
    const std::string class_name = options.class_name + '\0' + options.class_name + '\0';
    properties.set(XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, class_name);
    if (!options.parent) describe_to_window_manager(connection, properties, options, width, height);
    return window;
}

} // namespace r7
