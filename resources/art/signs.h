// The signs that tell the lamps apart where colour does not.
#pragma once

#include "platform/geometry.h"

namespace r7::art {

enum class Sign { none, ring, bar, triangle, twin_bars, plus, lozenge, dash, cross, half_disc, twin_posts };

/// Half the width and height that a sign takes, in points.
inline constexpr double kSignExtent = 8.0;

/// The signed distance, in points, of a sign about the origin.
double sign_distance(Sign sign, Point p);

} // namespace r7::art
