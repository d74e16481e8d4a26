// Lines and polygons in device pixels, made fit for a rasteriser: fewer vertices, and none far away.
#pragma once

#include "platform/cairo/pixels.h"

#include <vector>

namespace r7 {

/// Drops vertices while each of them stays within `tolerance` of the line that takes its place. The ends
/// stay, and so does every turning back. Points are finite.
void simplify(std::vector<Point>& line, double tolerance);

/// Cuts a closed polygon to what lies in the box; winding numbers inside it stay. `scratch` is overwritten.
void clip_polygon(std::vector<Point>& polygon, const Box& box, std::vector<Point>& scratch);

/// Cuts the segment from `a` to `b` to what lies in the box. False, with both untouched, where nothing does.
/// An end inside the box keeps its exact coordinates.
[[nodiscard]] bool clip_segment(Point& a, Point& b, const Box& box);

} // namespace r7
