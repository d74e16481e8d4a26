// Sends pixels to a window or a pixmap of the display.
#include "platform/x11/pixel_sender.h"

#include <algorithm>
#include <cstring>

namespace r7 {

namespace {

constexpr std::size_t kBytesAPixel = 4;
// How many bytes of pixels fit in a request; none where the connection is broken.
std::size_t most_pixel_bytes(xcb_connection_t* connection)
{
    // A request's own fields, with the longer length that big requests have.
    constexpr std::size_t kFields = sizeof(xcb_put_image_request_t) + 4;
    return std::max(std::size_t{xcb_get_maximum_request_length(connection)} * 4, kFields) - kFields;
}

} // namespace

X11PixelSender::X11PixelSender(X11Connection& connection, xcb_drawable_t drawable, std::uint8_t depth)
    : connection_(connection),
      drawable_(drawable),
      context_(xcb_generate_id(connection.get())),
      depth_(depth),
      most_bytes_(most_pixel_bytes(connection.get()))
{
    xcb_create_gc(connection_.get(), context_, drawable_, 0, nullptr);
}

X11PixelSender::~X11PixelSender()
{
    xcb_free_gc(connection_.get(), context_);
}

void X11PixelSender::send(std::span<const std::uint8_t> pixels, std::size_t stride, const PixelRect& rect)
{
    const std::size_t row_bytes = static_cast<std::size_t>(rect.width) * kBytesAPixel;
    const std::size_t height = static_cast<std::size_t>(rect.height);
    const std::size_t most_rows = std::max<std::size_t>(most_bytes_ / row_bytes, 1);
    const std::uint8_t* from =
        &pixels[static_cast<std::size_t>(rect.y) * stride + static_cast<std::size_t>(rect.x) * kBytesAPixel];
    for (std::size_t sent = 0; sent < height; sent += most_rows) {
        const std::size_t rows = std::min(most_rows, height - sent);
        const std::uint8_t* first = from + sent * stride;
        if (row_bytes != stride) {
            rows_.resize(std::max(rows_.size(), rows * row_bytes));
            for (std::size_t row = 0; row < rows; ++row)
                std::memcpy(&rows_[row * row_bytes], first + row * stride, row_bytes);
            first = rows_.data();
        }
        xcb_put_image(connection_.get(), XCB_IMAGE_FORMAT_Z_PIXMAP, drawable_, context_,
                      static_cast<std::uint16_t>(rect.width), static_cast<std::uint16_t>(rows),
                      static_cast<std::int16_t>(rect.x),
                      static_cast<std::int16_t>(rect.y + static_cast<int>(sent)), 0, depth_,
                      static_cast<std::uint32_t>(rows * row_bytes), first);
    }
}

} // namespace r7
