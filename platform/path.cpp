// Bézier paths: building, arcs as cubics, flattening.
#include "platform/path.h"

#include <cassert>
#include <cmath>
#include <numbers>

namespace r7 {

namespace {

// Length of the tangents of a cubic that stands for a quarter circle of radius 1: 4/3 * tan(pi/8), the value
// that passes through the middle of the true arc (error 0.03 % of the radius).
const double kQuarterTangent = 4.0 / 3.0 * std::tan(std::numbers::pi / 8.0);

// Degrees that the arc really sweeps, 0 to 360, from the difference of its angles in its own direction.
double reduced_sweep(double sweep)
{
    if (sweep == 0.0) return 0.0;
    if (std::isinf(sweep) || sweep >= 360.0) return 360.0;
    const double rest = std::fmod(sweep, 360.0);
    if (rest == 0.0) return 360.0;
    return rest < 0.0 ? rest + 360.0 : rest;
}

// The largest number of lines that one curve is flattened into: enough for a curve as wide as several
// screens.
constexpr int kMostLines = 512;

} // namespace

void Path::remove_all_points()
{
    elements_.clear();
    current_ = start_ = {};
}

// In place: a line is built by the hundred, and a temporary element costs more than the rest of it.
Path::Element& Path::append(Verb verb)
{
    Element& element = elements_.emplace_back();
    element.verb = verb;
    return element;
}

void Path::move_to(Point point)
{
    append(Verb::move).points[0] = point;
    current_ = start_ = point;
}

void Path::line_to(Point point)
{
    append(Verb::line).points[0] = point;
    current_ = point;
}

// Room is made once for all of them: a response of hundreds of lines is rebuilt with every step of a knob.
void Path::append_lines(std::span<const float> x, std::span<const float> y)
{
    assert(x.size() == y.size());
    if (x.empty()) return;
    const std::size_t before = elements_.size();
    elements_.resize(before + x.size());
    for (std::size_t i = 0; i < x.size(); ++i) {
        Element& element = elements_[before + i];
        element.verb = Verb::line;
        element.points[0] = {x[i], y[i]};
    }
    current_ = {x.back(), y.back()};
}

void Path::curve_to(Point control_1, Point control_2, Point end)
{
    append(Verb::curve).points = {control_1, control_2, end};
    current_ = end;
}

void Path::close()
{
    append(Verb::close);
    current_ = start_;
}

void Path::append_rect(const Rect& rect)
{
    move_to({rect.x, rect.y});
    line_to({rect.right(), rect.y});
    line_to({rect.right(), rect.top()});
    line_to({rect.x, rect.top()});
    close();
}

void Path::append_oval(const Rect& rect)
{
    const double rx = rect.width * 0.5, ry = rect.height * 0.5;
    const double cx = rect.x + rx, cy = rect.y + ry;
    const double tx = rx * kQuarterTangent, ty = ry * kQuarterTangent;
    move_to({cx + rx, cy});
    curve_to({cx + rx, cy + ty}, {cx + tx, cy + ry}, {cx, cy + ry});
    curve_to({cx - tx, cy + ry}, {cx - rx, cy + ty}, {cx - rx, cy});
    curve_to({cx - rx, cy - ty}, {cx - tx, cy - ry}, {cx, cy - ry});
    curve_to({cx + tx, cy - ry}, {cx + rx, cy - ty}, {cx + rx, cy});
    close();
}

void Path::append_arc(Point center, double radius, double start_degrees, double end_degrees,
                      Direction direction)
{
    const double turn = direction == Direction::clockwise ? -1.0 : 1.0;
    const double sweep = reduced_sweep((end_degrees - start_degrees) * turn);
    constexpr double kRadians = std::numbers::pi / 180.0;
    const double start = std::fmod(start_degrees, 360.0) * kRadians;
    if (!std::isfinite(start) || std::isnan(sweep)) return;

    const auto on_circle = [&](double angle) {
        return Point{center.x + std::cos(angle) * radius, center.y + std::sin(angle) * radius};
    };
    const Point first = on_circle(start);
    if (is_empty())
        move_to(first);
    else
        line_to(first);
    if (sweep == 0.0) return;

    const int pieces = static_cast<int>(std::ceil(sweep / 90.0));
    const double step = turn * sweep / pieces * kRadians;
    const double tangent = radius * 4.0 / 3.0 * std::tan(step / 4.0);
    for (int piece = 0; piece < pieces; ++piece) {
        const double a = start + piece * step, b = a + step;
        const Point from = on_circle(a), to = on_circle(b);
        curve_to({from.x - std::sin(a) * tangent, from.y + std::cos(a) * tangent},
                 {to.x + std::sin(b) * tangent, to.y - std::cos(b) * tangent}, to);
    }
}

void Path::flatten_into(Path& flattened, double tolerance) const
{
    flattened.remove_all_points();
    flattened.line_width = line_width;
    for (const Element& element : elements_) {
        switch (element.verb) {
        case Verb::move:
            flattened.move_to(element.points[0]);
            break;
        case Verb::line:
            flattened.line_to(element.points[0]);
            break;
        case Verb::close:
            flattened.close();
            break;
        case Verb::curve: {
            const Point p0 = flattened.current_point();
            const auto& [p1, p2, p3] = element.points;
            // A chord over a step h of the parameter lies within h^2/8 * max|B''| of its curve, and a cubic's
            // second derivative is at most 6 times the larger second difference of its control points.
            const double dx = std::max(std::abs(p0.x - 2 * p1.x + p2.x), std::abs(p1.x - 2 * p2.x + p3.x));
            const double dy = std::max(std::abs(p0.y - 2 * p1.y + p2.y), std::abs(p1.y - 2 * p2.y + p3.y));
            const double wanted = std::sqrt(std::hypot(dx, dy) * 0.75 / tolerance);
            const int lines = !std::isfinite(wanted) ? 1
                              : wanted < kMostLines  ? static_cast<int>(wanted) + 1
                                                     : kMostLines;
            for (int i = 1; i < lines; ++i) {
                const double t = static_cast<double>(i) / lines, u = 1.0 - t;
                const double a = u * u * u, b = 3 * u * u * t, c = 3 * u * t * t, d = t * t * t;
                flattened.line_to(
                    {a * p0.x + b * p1.x + c * p2.x + d * p3.x, a * p0.y + b * p1.y + c * p2.y + d * p3.y});
            }
            flattened.line_to(p3);
            break;
        }
        }
    }
}

} // namespace r7
