// Clips, sources and compositing.
#include "platform/cairo/cairo_graphics.h"

#include "platform/cairo/cairo_image.h"
#include "platform/cairo/text_layout.h"

#include <cassert>
#include <limits>

namespace r7 {

namespace {

PixelRect bounds_of(cairo_surface_t* picture)
{
    return {0, 0, cairo_image_surface_get_width(picture), cairo_image_surface_get_height(picture)};
}

// Around all points of a path that are finite, in pixels.
Box bounds_of(const Path& path, const PixelTransform& to_pixels)
{
    constexpr double kNowhere = std::numeric_limits<double>::infinity();
    Box bounds{kNowhere, kNowhere, -kNowhere, -kNowhere};
    for (const Path::Element& element : path.elements()) {
        const std::size_t count = element.verb == Path::Verb::curve ? 3 : element.verb != Path::Verb::close;
        for (std::size_t i = 0; i < count; ++i) {
            if (!is_finite(element.points[i])) continue;
            const Point point = to_pixels(element.points[i]);
            bounds = {std::min(bounds.left, point.x), std::min(bounds.top, point.y),
                      std::max(bounds.right, point.x), std::max(bounds.bottom, point.y)};
        }
    }
    return bounds;
}

bool is_whole(const Box& box)
{
    const auto whole = [](double pixels) { return pixels == std::round(pixels); };
    return whole(box.left) && whole(box.top) && whole(box.right) && whole(box.bottom);
}

// A number for an image's matrix, one that the rasteriser can hold exactly. It has 16 bits behind the point,
// and would make up for what it must round in a way that depends on the part being repainted.
double exact(double number)
{
    constexpr double kSteps = 1 << 15;
    return std::round(number * kSteps) / kSteps;
}

double exact_scale(double pixels, double onto)
{
    return std::clamp(exact(pixels / onto), exact(1e-4), 1e4);
}

// The image as a source, stretched into `box` and continued outside it.
PatternRef source_of(const CairoImage& image, const CairoImage::Raster& raster, const Box& box,
                     cairo_extend_t outside)
{
    const Size size = image.size();
    const double x_scale = exact_scale(size.width * raster.pixels_per_point, box.width());
    const double y_scale = exact_scale(size.height * raster.pixels_per_point, box.height());
    cairo_matrix_t matrix;
    cairo_matrix_init(&matrix, x_scale, 0.0, 0.0, y_scale, exact(-box.left * x_scale),
                      exact(raster.height() - box.bottom * y_scale));
    PatternRef source(cairo_pattern_create_for_surface(raster.surface.get()));
    cairo_pattern_set_matrix(source.get(), &matrix);
    cairo_pattern_set_extend(source.get(), outside);
    return source;
}

} // namespace

SurfaceRef make_picture(Size size, double scale)
{
    constexpr double kRoundingError = 1e-6;
    const auto pixels = [&](double points) {
        return to_pixel_index(std::ceil(points * scale - kRoundingError));
    };
    return make_surface(
        cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pixels(size.width), pixels(size.height)));
}

CairoGraphics::CairoGraphics(const SurfaceRef& picture, double scale)
    : scale_(scale),
      bounds_(bounds_of(picture.get())),
      context_(picture),
      mask_(bounds_.width, bounds_.height)
{
    begin(bounds_);
}

void CairoGraphics::begin(const PixelRect& part)
{
    part_ = intersection(part, bounds_);
    const Point lower_left{0.0, static_cast<double>(bounds_.height)};
    state_ = {lower_left, lower_left, bounds_};
    saved_.clear();
}

void CairoGraphics::restore()
{
    assert(!saved_.empty());
    state_ = saved_.back();
    saved_.pop_back();
}

void CairoGraphics::move_origin_to(Point origin)
{
    if (is_finite(origin))
        state_.origin = to_pixels()(origin);
    else
        state_.clip = {}; // what is nowhere cannot be seen
}

void CairoGraphics::clip_to(const Rect& rect)
{
    state_.clip =
        is_finite(rect) ? intersection(state_.clip, rounded_to_nearest(to_pixels()(rect))) : PixelRect{};
}

void CairoGraphics::fill(const Path& path, const Color* color)
{
    if (!color || !begin_mask(rounded_outward(bounds_of(path, to_pixels())))) return;
    mask_.fill(path, to_pixels());
    paint_through_mask(source_of(*color).get(), Compositing::source_over, 1.0);
}

void CairoGraphics::stroke(const Path& path, const Color* color)
{
    const double width = path.line_width * scale_;
    if (!color || !(width > 0.0) || !std::isfinite(width)) return;
    const Box reached = bounds_of(path, to_pixels()).grown_by(CoverageMask::reach_of_stroke(width));
    if (!begin_mask(rounded_outward(reached))) return;
    mask_.stroke(path, to_pixels(), width);
    paint_through_mask(source_of(*color).get(), Compositing::source_over, 1.0);
}

void CairoGraphics::fill_rect(const Rect& rect, const Color* color, Compositing how)
{
    if (!color || rect.is_empty() || !is_finite(rect)) return;
    const Box box = to_pixels()(rect);
    if (!visible(rounded_outward(box)).is_empty()) paint_box(box, source_of(*color).get(), how, 1.0);
}

void CairoGraphics::draw_image(const Image* image, Point origin, Compositing how, double fraction)
{
    if (!image) return;
    const Size size = image->size();
    draw_image_in_rect(image, {origin.x, origin.y, size.width, size.height}, how, fraction);
}

void CairoGraphics::draw_image_in_rect(const Image* image, const Rect& rect, Compositing how, double fraction)
{
    if (!image || rect.is_empty() || !is_finite(rect) || !std::isfinite(fraction)) return;
    const Box box = to_pixels()(rect);
    const PixelRect touched = rounded_outward(box);
    if (visible(touched).is_empty()) return;
    const CairoImage& drawn = CairoImage::of(*image);
    const Size size = drawn.size();
    const auto raster = drawn.raster(std::max(box.width() / size.width, box.height() / size.height));
    // An image that is not stretched fades by itself into pixels that it covers in part, which saves a mask.
    const auto is_unstretched = [](double side, int pixels) { return std::abs(side - pixels) < 1e-3; };
    const bool fades = how == Compositing::source_over && is_unstretched(box.width(), raster.width()) &&
                       is_unstretched(box.height(), raster.height());
    const PatternRef source = r7::source_of(drawn, raster, box, fades ? CAIRO_EXTEND_NONE : CAIRO_EXTEND_PAD);
    paint_box(fades ? box_of(touched) : box, source.get(), how, std::clamp(fraction, 0.0, 1.0));
}

void CairoGraphics::draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes)
{
    text_.remove_all_points();
    append_text(utf8, rect, attributes.font_size, attributes.alignment, text_);
    fill(text_, attributes.color.get());
}

PixelRect CairoGraphics::visible(const PixelRect& rect) const
{
    return intersection(intersection(rect, state_.clip), part_);
}

PatternRef CairoGraphics::source_of(const Color& color) const
{
    if (const Rgba* rgba = color.rgba()) {
        if (!std::isfinite(rgba->red + rgba->green + rgba->blue + rgba->alpha)) return nullptr;
        return PatternRef(cairo_pattern_create_rgba(rgba->red, rgba->green, rgba->blue, rgba->alpha));
    }
    const CairoImage& image = CairoImage::of(*color.pattern_image());
    // Whole pixels to a point, so that a tile ends where the next one begins.
    const auto raster = image.raster(std::ceil(scale_));
    const PixelTransform from_pattern_origin{scale_, state_.pattern_origin};
    const Size size = image.size();
    return r7::source_of(image, raster, from_pattern_origin(Rect{0.0, 0.0, size.width, size.height}),
                         CAIRO_EXTEND_REPEAT);
}

void CairoGraphics::paint_box(const Box& box, cairo_pattern_t* source, Compositing how, double opacity)
{
    const PixelRect touched = rounded_outward(box);
    if (!is_whole(box) || opacity < 1.0) {
        if (!begin_mask(touched)) return;
        mask_.fill_box(box);
        paint_through_mask(source, how, opacity);
        return;
    }
    if (!source) return;
    cairo_t* const cairo = context_.limited_to(visible(touched));
    cairo_set_operator(cairo, how == Compositing::copy ? CAIRO_OPERATOR_SOURCE : CAIRO_OPERATOR_OVER);
    cairo_set_source(cairo, source);
    cairo_paint(cairo);
}

bool CairoGraphics::begin_mask(const PixelRect& reached)
{
    masked_ = intersection(reached, state_.clip);
    if (intersection(masked_, part_).is_empty()) return false;
    mask_.begin(masked_);
    return true;
}

void CairoGraphics::paint_through_mask(cairo_pattern_t* source, Compositing how, double opacity)
{
    if (!source) return;
    const PixelRect painted = intersection(masked_, part_);
    if (how == Compositing::copy) {
        cairo_t* const cairo = context_.limited_to(painted);
        cairo_set_operator(cairo, CAIRO_OPERATOR_DEST_OUT);
        cairo_set_source_rgba(cairo, 0.0, 0.0, 0.0, 1.0);
        cairo_mask_surface(cairo, mask_.surface(), 0.0, 0.0);
    }
    if (opacity < 1.0) mask_.fade(opacity);
    cairo_t* const cairo = context_.limited_to(painted);
    cairo_set_operator(cairo, how == Compositing::copy ? CAIRO_OPERATOR_ADD : CAIRO_OPERATOR_OVER);
    cairo_set_source(cairo, source);
    cairo_mask_surface(cairo, mask_.surface(), 0.0, 0.0);
}

} // namespace r7
