// A Bézier path: the geometry that views build when their state changes and paint later.
#pragma once

#include "platform/geometry.h"

#include <array>
#include <span>
#include <vector>

namespace r7 {

/// A list of move, line, cubic and close elements with a line width.
///
/// Holds any numbers, NaN and infinities included; what cannot be drawn is left out where the path is
/// painted. `remove_all_points` keeps the storage, so that a path which is refilled allocates nothing once it
/// has grown.
class Path {
public:
    enum class Verb { move, line, curve, close };
    enum class Direction { counterclockwise, clockwise };

    /// `points[0]` is the end of a move or a line; a curve has its two control points and its end.
    struct Element {
        Verb verb = Verb::move;
        std::array<Point, 3> points{};
        bool operator==(const Element&) const = default;

        /// Where the element leads; meaningless for a close.
        Point end() const { return points[verb == Verb::curve ? 2 : 0]; }
    };

    /// Width of strokes of this path, in points.
    double line_width = 1.0;

    bool is_empty() const { return elements_.empty(); }
    std::span<const Element> elements() const { return elements_; }
    /// The end of the last element, (0, 0) for an empty path; after a close, where that subpath began.
    Point current_point() const { return current_; }

    void reserve(std::size_t elements) { elements_.reserve(elements); }
    void remove_all_points();
    void move_to(Point point);
    void line_to(Point point);
    /// Lines to the points (x[i], y[i]) in turn; there are as many of x as of y.
    void append_lines(std::span<const float> x, std::span<const float> y);
    void curve_to(Point control_1, Point control_2, Point end);
    void close();

    void append_rect(const Rect& rect);
    /// The ellipse inscribed in `rect`, of four closed cubics, counterclockwise from its rightmost point.
    void append_oval(const Rect& rect);
    /// An arc about `center` from one angle to another, in degrees counterclockwise from +x, as cubics.
    ///
    /// A line leads to the arc's start where the path has a current point, a move otherwise. A clockwise arc
    /// covers (start - end) modulo 360, a counterclockwise one (end - start) modulo 360; equal angles add
    /// nothing but the line, an exact non-zero multiple of 360 and everything beyond one turn a full ring.
    /// The sweep is reduced here, so that ten thousand turns cost no more than one. An infinite end is a full
    /// ring; a NaN or an infinite start adds nothing.
    void append_arc(Point center, double radius, double start_degrees, double end_degrees,
                    Direction direction);

    /// The same outline of lines alone, each within `tolerance` points of its curve.
    ///
    /// The copy has this path's line width. A curve with a point that is not finite becomes one line to its
    /// end.
    void flatten_into(Path& flattened, double tolerance = 0.1) const;

private:
    Element& append(Verb verb);

    std::vector<Element> elements_;
    Point current_{};
    Point start_{};
};

} // namespace r7
