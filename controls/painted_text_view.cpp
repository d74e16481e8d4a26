// The painted text:
//   1. what the setters take, and in which order;
//   2. the finished image: text, relief, light, tint;
//   3. OpenGL: the context, its state, and drawing with it.
#include "controls/painted_text_view.h"

#include "controls/pixel_planes.h"
#include "platform/cairo/pixel_image.h"
#include "platform/graphics.h"
#include "platform/tiff/tiff_picture.h"

#include <cmath>
#include <utility>

namespace r7 {

namespace {

/// Whole points that cover a finite rectangle.
Rect rounded_outward(const Rect& rect)
{
    const double x = std::floor(rect.x), y = std::floor(rect.y);
    return {x, y, std::ceil(rect.right()) - x, std::ceil(rect.top()) - y};
}

Rect grown(const Rect& rect, double by)
{
    return {rect.x - by, rect.y - by, rect.width + 2.0 * by, rect.height + 2.0 * by};
}

bool has_pixels(const Rect& bounds)
{
    return !bounds.is_empty() && bounds.width <= kMostImagePixels && bounds.height <= kMostImagePixels;
}

} // namespace

QmR7PaintedTextView::QmR7PaintedTextView(const Rect& frame, const Bundle& bundle, GLOpener open_context)
    : View(frame), open_context_(std::move(open_context))
{
    const auto path = bundle.path_for_resource("lightball", "tiff");
    const auto ball = path ? read_tiff(*path) : std::nullopt;
    if (ball) shaded_filter_.set_shading_image(plane_of(*ball));
}

QmR7PaintedTextView::~QmR7PaintedTextView() = default;

const GLPixelFormat& QmR7PaintedTextView::defaultPixelFormat()
{
    static const GLPixelFormat format{};
    return format;
}

void QmR7PaintedTextView::set_text_font_size_paint_color_height_scale_shade_scale(
    std::optional<std::string_view> text, float font_size, const ColorRef& color, float height_scale,
    float shade_scale)
{
    if (text) paint_text_ = *text;
    if (font_size > 0.0f) font_size_ = font_size;
    if (height_scale > 0.0f && height_scale < 300.0f) height_field_filter_.set_radius(height_scale);
    // In single precision, where 0.001 is not above itself.
    if (shade_scale > 0.001f && shade_scale < 200.0f) shaded_filter_.set_scale(shade_scale);
    set_paint_color(color);
}

void QmR7PaintedTextView::set_text_string(std::optional<std::string_view> text)
{
    if (text) paint_text_ = *text;
    render_anew();
}

void QmR7PaintedTextView::set_font_size(float font_size)
{
    if (!(font_size > 0.0f)) return;
    font_size_ = font_size;
    render_anew();
}

void QmR7PaintedTextView::set_paint_color(const ColorRef& color)
{
    if (const Rgba* components = color ? color->rgba() : nullptr) color_filter_.color = *components;
    render_anew();
}

void QmR7PaintedTextView::set_height_field_scale(float scale)
{
    height_field_filter_.set_radius(scale);
    render_anew();
}

void QmR7PaintedTextView::set_shaded_image_scale(float scale)
{
    shaded_filter_.set_scale(scale);
    render_anew();
}

void QmR7PaintedTextView::render_anew()
{
    text_image_ = nullptr;
    updateImage();
}

void QmR7PaintedTextView::updateImage()
{
    if (!text_image_) render_text();
    setImage(filtered());
}

void QmR7PaintedTextView::render_text()
{
    text_image_ = Image::painted(bounds().size(), [&](Graphics& graphics) {
        graphics.draw_text(paint_text_, bounds(),
                           {font_size_, TextAlignment::center, Color::device_rgba(1.0, 1.0, 1.0, 1.0)});
    });
}

ImageRef QmR7PaintedTextView::filtered()
{
    if (!text_image_ || !shaded_filter_.has_shading_image()) return nullptr;
    ImagePixels pixels = image_pixels(*text_image_, 1.0);
    read_coverage(pixels, mask_);
    const Plane<float>& heights = height_field_filter_.from_mask(mask_);
    row_.resize(static_cast<std::size_t>(mask_.width()));
    std::uint8_t* bytes = pixels.bytes.data();
    for (int y = 0; y < mask_.height(); ++y) {
        shaded_filter_.shade_row(heights, mask_, y, row_);
        color_filter_.apply_to(row_);
        bytes = write_bytes(row_, bytes);
    }
    return image_of(pixels);
}

void QmR7PaintedTextView::setImage_dirtyRect(ImageRef image, const Rect& dirty)
{
    if (image == image_) return;
    image_ = std::move(image);
    if (dirty == kInfiniteRect)
        set_needs_display();
    else
        set_needs_display_in(dirty);
}

void QmR7PaintedTextView::viewBoundsDidChange(const Rect&)
{
    updateImage();
}

void QmR7PaintedTextView::prepareOpenGL()
{
    if (!gl_) return;
    gl_->set_swap_interval(1);
    gl_->set_surface_opacity(0);
    for (const GLCapability capability :
         {GLCapability::alpha_test, GLCapability::depth_test, GLCapability::scissor_test, GLCapability::blend,
          GLCapability::dither, GLCapability::cull_face})
        gl_->disable(capability);
    gl_->set_color_mask(true, true, true, true);
    gl_->set_depth_mask(false);
    gl_->set_stencil_mask(0);
    gl_->set_clear_color(0.0f, 0.0f, 0.0f, 0.0f);
    gl_->hint_fastest_transform();
}

void QmR7PaintedTextView::updateMatrices()
{
    const Rect now = bounds();
    if (now == lastBounds_) return;
    if (gl_) {
        const Rect viewport = rounded_outward(now);
        if (has_pixels(now) &&
            gl_->update(static_cast<int>(viewport.width), static_cast<int>(viewport.height))) {
            gl_->set_viewport(viewport);
            gl_->load_orthographic_projection(0.0, now.width, 0.0, now.height, -1.0, 1.0);
            gl_->reset_model_view();
        } else {
            give_up_context();
        }
    }
    lastBounds_ = now;
    viewBoundsDidChange(now);
}

void QmR7PaintedTextView::make_context_current()
{
    const bool is_new = open_context_ != nullptr;
    if (is_new) gl_ = std::exchange(open_context_, nullptr)(pixel_format_.value_or(defaultPixelFormat()));
    if (!gl_) return;
    if (!gl_->make_current()) {
        context_ = nullptr;
        gl_ = nullptr;
        return;
    }
    if (is_new) prepareOpenGL();
    if (!context_) context_ = std::make_unique<ImageContext>(*gl_);
}

void QmR7PaintedTextView::give_up_context()
{
    gl_->resign_current();
    context_ = nullptr;
    gl_ = nullptr;
}

// Meant: the bounds are followed here, and so the image is built while painting, and a redraw asked for.
void QmR7PaintedTextView::drawRect(Graphics& graphics, const Rect& dirty)
{
    make_context_current();
    const Rect ir = rounded_outward(intersection(dirty, bounds()));
    if (is_drawing_to_screen())
        draw_to_screen(graphics, ir);
    else
        draw_to_bitmap(graphics, ir);
    if (gl_) gl_->resign_current();
}

void QmR7PaintedTextView::draw_to_screen(Graphics& graphics, const Rect& ir)
{
    updateMatrices();
    if (!gl_) {
        draw_image_alone(graphics, ir);
        return;
    }
    const Rect rr = rounded_outward(intersection(grown(ir, 1.0), lastBounds_));
    gl_->set_scissor(ir);
    gl_->enable(GLCapability::scissor_test);
    gl_->clear_color_buffer();
    if (!drawRect_inCIContext(rr, *context_) && image_)
        context_->drawImage_atPoint_fromRect(image_, rr.origin(), rr);
    gl_->disable(GLCapability::scissor_test);
    gl_->flush();

    const ImageRef drawn = image_of(gl_->read_pixels(ir));
    graphics.draw_image(drawn.get(), ir.origin(), Compositing::source_over, 1.0);
}

void QmR7PaintedTextView::draw_to_bitmap(Graphics& graphics, const Rect& ir)
{
    if (!context_ || !drawRect_inCIContext(ir, *context_)) draw_image_alone(graphics, ir);
}

void QmR7PaintedTextView::draw_image_alone(Graphics& graphics, const Rect& ir)
{
    const Graphics::SavedState state(graphics);
    graphics.clip_to(ir);
    graphics.draw_image(image_.get(), {}, Compositing::source_over, 1.0);
}

bool QmR7PaintedTextView::drawRect_inCIContext(const Rect&, ImageContext&)
{
    return false;
}

} // namespace r7
