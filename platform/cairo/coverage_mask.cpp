// From a path to coverage:
//   1. curves become lines, in points;
//   2. points that are not finite are left out, the others become pixels;
//   3. vertices that nobody can see are dropped;
//   4. what is far from the part that is rendered is cut away: Cairo loses lines of more than 30,000 pixels;
//   5. Cairo renders the rest. Its matrix stays the identity, for a matrix that is not finite would end it.
#include "platform/cairo/coverage_mask.h"

#include "platform/cairo/polyline.h"

namespace r7 {

namespace {

// In pixels. Seen from the outside they add up.
constexpr double kFlatness = 0.04;
constexpr double kSimplification = 0.04;

// In pixels; with the mitres of a wider stroke, lines near the visible part would become too long for Cairo.
constexpr double kWidestStroke = 2048.0;

void add_polygon(cairo_t* cairo, const std::vector<Point>& polygon)
{
    cairo_new_sub_path(cairo);
    for (const Point vertex : polygon) cairo_line_to(cairo, vertex.x, vertex.y);
    cairo_close_path(cairo);
}

// Segments outside `box` are left out, and the line is broken there.
void add_polyline(cairo_t* cairo, const std::vector<Point>& line, const Box& box)
{
    bool broken = true;
    for (std::size_t i = 1; i < line.size(); ++i) {
        Point from = line[i - 1], to = line[i];
        if (!clip_segment(from, to, box)) {
            broken = true;
            continue;
        }
        if (broken || from != line[i - 1]) cairo_move_to(cairo, from.x, from.y);
        cairo_line_to(cairo, to.x, to.y);
        broken = false; // after an end that was cut off, the next segment begins outside
    }
}

// Whether a line ends where it began, in the direction in which it began: a ring, which has no ends to see.
bool is_ring(const std::vector<Point>& line)
{
    constexpr double kSamePoint = 1.0 / 256.0;
    constexpr double kSameDirection = 0.7; // a cosine: the lines of a small circle meet at wide angles
    const Point start = line.front(), end = line.back();
    if (std::hypot(end.x - start.x, end.y - start.y) > kSamePoint) return false;
    const Point out{line[1].x - start.x, line[1].y - start.y};
    const Point in{end.x - line[line.size() - 2].x, end.y - line[line.size() - 2].y};
    return out.x * in.x + out.y * in.y > kSameDirection * std::hypot(out.x, out.y) * std::hypot(in.x, in.y);
}

} // namespace

CoverageMask::CoverageMask(int width, int height)
    : context_(make_surface(cairo_image_surface_create(CAIRO_FORMAT_A8, width, height)))
{
}

void CoverageMask::begin(const PixelRect& part)
{
    part_ = part;
    cairo_t* const cairo = context_.limited_to(part_);
    cairo_set_operator(cairo, CAIRO_OPERATOR_CLEAR);
    cairo_paint(cairo);
    cairo_set_operator(cairo, CAIRO_OPERATOR_OVER);
}

template <typename Visit>
void CoverageMask::each_subpath(const Path& path, const PixelTransform& to_pixels, Visit visit)
{
    path.flatten_into(flattened_, kFlatness / to_pixels.scale);
    points_.clear();
    const auto finish = [&](bool closed) {
        simplify(points_, kSimplification);
        if (points_.size() > 1) visit(closed);
        points_.clear();
    };
    for (const Path::Element& element : flattened_.elements()) {
        if (element.verb == Path::Verb::close) {
            if (points_.empty()) continue;
            const Point start = points_.front();
            finish(true);
            points_.push_back(start); // what follows without a move begins there
            continue;
        }
        if (element.verb == Path::Verb::move) finish(false);
        if (is_finite(element.end())) points_.push_back(to_pixels(element.end()));
    }
    finish(false);
}

void CoverageMask::fill(const Path& path, const PixelTransform& to_pixels)
{
    cairo_t* const cairo = context_.limited_to(part_);
    const Box near_by = box_of(part_).grown_by(1.0);
    each_subpath(path, to_pixels, [&](bool) {
        clip_polygon(points_, near_by, scratch_);
        add_polygon(cairo, points_);
    });
    cairo_fill(cairo);
}

void CoverageMask::stroke(const Path& path, const PixelTransform& to_pixels, double width)
{
    width = std::min(width, kWidestStroke);
    cairo_t* const cairo = context_.limited_to(part_);
    cairo_set_line_width(cairo, width);
    cairo_set_miter_limit(cairo, kMiterLimit);
    const Box near_by = box_of(part_).grown_by(reach_of_stroke(width) + 1.0);
    each_subpath(path, to_pixels, [&](bool closed) {
        if (closed || is_ring(points_)) {
            // The join at the start comes from going on to the second vertex once more: that way it is made
            // whether or not parts of the outline are cut away.
            const Point start = points_[0], second = points_[1];
            points_.push_back(start);
            points_.push_back(second);
        }
        add_polyline(cairo, points_, near_by);
    });
    cairo_stroke(cairo);
}

void CoverageMask::fill_box(const Box& box)
{
    cairo_t* const cairo = context_.limited_to(part_);
    const Box near_by = box_of(part_).grown_by(1.0);
    const double left = std::max(box.left, near_by.left), top = std::max(box.top, near_by.top);
    cairo_rectangle(cairo, left, top, std::min(box.right, near_by.right) - left,
                    std::min(box.bottom, near_by.bottom) - top);
    cairo_fill(cairo);
}

void CoverageMask::fade(double opacity)
{
    cairo_t* const cairo = context_.limited_to(part_);
    cairo_set_operator(cairo, CAIRO_OPERATOR_DEST_IN);
    cairo_set_source_rgba(cairo, 0.0, 0.0, 0.0, opacity);
    cairo_paint(cairo);
    cairo_set_source_rgba(cairo, 0.0, 0.0, 0.0, 1.0);
    cairo_set_operator(cairo, CAIRO_OPERATOR_OVER);
}

} // namespace r7
