// Cursors of the display, made from pictures by the RENDER extension.
#include "platform/x11/cursor_cache.h"

#include "platform/cairo/image_pixels.h"
#include "platform/x11/pixel_sender.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace r7 {

namespace {

constexpr std::uint8_t kDepth = 32;

// The format of 32-bit pixels with alpha on top, or 0 where the display has none.
xcb_render_pictformat_t find_format(xcb_connection_t* connection)
{
    // A request of an extension that is not there would break the connection.
    const xcb_query_extension_reply_t* extension = xcb_get_extension_data(connection, &xcb_render_id);
    if (!extension || !extension->present) return 0;
    const XcbPointer<xcb_render_query_pict_formats_reply_t> formats(
        xcb_render_query_pict_formats_reply(connection, xcb_render_query_pict_formats(connection), nullptr));
    if (!formats) return 0;
    auto i = xcb_render_query_pict_formats_formats_iterator(formats.get());
    for (; i.rem; xcb_render_pictforminfo_next(&i)) {
        const xcb_render_directformat_t& bits = i.data->direct;
        if (i.data->type == XCB_RENDER_PICT_TYPE_DIRECT && i.data->depth == kDepth &&
            bits.alpha_shift == 24 && bits.alpha_mask == 0xff && bits.red_shift == 16 &&
            bits.green_shift == 8 && bits.blue_shift == 0)
            return i.data->id;
    }
    return 0;
}

std::uint16_t clamp_to_pixel(double position, int pixels)
{
    return static_cast<std::uint16_t>(std::clamp(std::round(position), 0.0, pixels - 1.0));
}

} // namespace

xcb_cursor_t X11CursorCache::find(const CursorRef& cursor)
{
    if (!cursor || !cursor->image) return XCB_CURSOR_NONE;
    if (cursor != made_from_) {
        if (made_) xcb_free_cursor(connection_.get(), made_);
        made_ = make(*cursor);
        made_from_ = cursor;
    }
    return made_;
}

xcb_cursor_t X11CursorCache::make(const Cursor& cursor)
{
    xcb_connection_t* c = connection_.get();
    if (!std::exchange(asked_for_format_, true)) format_ = find_format(c);
    if (!format_) return XCB_CURSOR_NONE;

    const ImagePixels image = image_pixels(*cursor.image, scale_);
    const auto width = static_cast<std::uint16_t>(image.width);
    const auto height = static_cast<std::uint16_t>(image.height);
    const xcb_pixmap_t pixmap = xcb_generate_id(c);
    xcb_create_pixmap(c, kDepth, pixmap, connection_.screen().root, width, height);
    X11PixelSender(connection_, pixmap, kDepth)
        .send(image.bytes, std::size_t{width} * 4, {0, 0, image.width, image.height});

    const xcb_render_picture_t picture = xcb_generate_id(c);
    xcb_render_create_picture(c, picture, pixmap, format_, 0, nullptr);
    const xcb_cursor_t made = xcb_generate_id(c);
    xcb_render_create_cursor(c, made, picture, clamp_to_pixel(cursor.hot_spot.x * scale_, image.width),
                             clamp_to_pixel(image.height - cursor.hot_spot.y * scale_, image.height));
    xcb_render_free_picture(c, picture);
    xcb_free_pixmap(c, pixmap);
    return made;
}

} // namespace r7
