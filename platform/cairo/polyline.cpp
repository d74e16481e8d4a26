// Simplification by a sleeve of directions; clipping after Sutherland and Hodgman (polygons) and Liang and
// Barsky (segments).
#include "platform/cairo/polyline.h"

namespace r7 {

namespace {

double cross(Point a, Point b)
{
    return a.x * b.y - a.y * b.x;
}

// The directions from an anchor that pass every vertex seen so far within the tolerance.
class Sleeve final {
public:
    Sleeve(Point anchor, double tolerance) : anchor_(anchor), tolerance_(tolerance) {}

    // Whether a line from the anchor to `point` can stand for all vertices between them; if so, the sleeve
    // narrows to those directions that pass by `point` too.
    bool extend_to(Point point)
    {
        const Point way{point.x - anchor_.x, point.y - anchor_.y};
        const double distance = std::hypot(way.x, way.y);
        if (distance < reach_) return false;
        reach_ = distance;
        if (narrowed_ && (cross(right_, way) < 0.0 || cross(left_, way) > 0.0)) return false;
        if (distance <= tolerance_) return true;

        const double sine = tolerance_ / distance, cosine = std::sqrt(1.0 - sine * sine);
        const Point left{way.x * cosine - way.y * sine, way.y * cosine + way.x * sine};
        const Point right{way.x * cosine + way.y * sine, way.y * cosine - way.x * sine};
        if (!narrowed_ || cross(left_, left) < 0.0) left_ = left;
        if (!narrowed_ || cross(right_, right) > 0.0) right_ = right;
        narrowed_ = true;
        return true;
    }

private:
    Point anchor_;
    double tolerance_;
    double reach_ = 0.0;
    bool narrowed_ = false;
    Point left_{};
    Point right_{};
};

// Keeps the part of a polygon where (vertex.*axis - limit) * sign is not below 0.
void clip_to_half_plane(const std::vector<Point>& polygon, double Point::*axis, double limit, double sign,
                        std::vector<Point>& clipped)
{
    clipped.clear();
    if (polygon.empty()) return;
    Point from = polygon.back();
    double from_depth = (from.*axis - limit) * sign;
    for (const Point to : polygon) {
        const double to_depth = (to.*axis - limit) * sign;
        if ((from_depth < 0.0) != (to_depth < 0.0)) {
            const double t = from_depth / (from_depth - to_depth);
            Point cut{from.x + (to.x - from.x) * t, from.y + (to.y - from.y) * t};
            cut.*axis = limit;
            clipped.push_back(cut);
        }
        if (to_depth >= 0.0) clipped.push_back(to);
        from = to;
        from_depth = to_depth;
    }
}

} // namespace

void simplify(std::vector<Point>& line, double tolerance)
{
    if (line.size() < 3) return;
    std::size_t kept = 1;
    Sleeve sleeve(line.front(), tolerance);
    for (std::size_t i = 1; i < line.size(); ++i) {
        if (sleeve.extend_to(line[i])) continue;
        const Point before = line[i - 1];
        line[kept++] = before;
        sleeve = Sleeve(before, tolerance);
        sleeve.extend_to(line[i]);
    }
    line[kept++] = line.back();
    line.resize(kept);
}

void clip_polygon(std::vector<Point>& polygon, const Box& box, std::vector<Point>& scratch)
{
    clip_to_half_plane(polygon, &Point::x, box.left, 1.0, scratch);
    clip_to_half_plane(scratch, &Point::x, box.right, -1.0, polygon);
    clip_to_half_plane(polygon, &Point::y, box.top, 1.0, scratch);
    clip_to_half_plane(scratch, &Point::y, box.bottom, -1.0, polygon);
}

bool clip_segment(Point& a, Point& b, const Box& box)
{
    const Point way{b.x - a.x, b.y - a.y};
    double enter = 0.0, leave = 1.0;
    // Where the line passes an edge: `rate` is how fast it nears the inside, `depth` how far inside `a` is.
    const auto passes = [&](double rate, double depth) {
        if (rate == 0.0) return depth >= 0.0;
        const double t = -depth / rate;
        if (rate > 0.0)
            enter = std::max(enter, t);
        else
            leave = std::min(leave, t);
        return enter <= leave;
    };
    if (!passes(way.x, a.x - box.left) || !passes(-way.x, box.right - a.x) || !passes(way.y, a.y - box.top) ||
        !passes(-way.y, box.bottom - a.y))
        return false;
    const Point from = a;
    if (enter > 0.0) a = {from.x + way.x * enter, from.y + way.y * enter};
    if (leave < 1.0) b = {from.x + way.x * leave, from.y + way.y * leave};
    return true;
}

} // namespace r7
