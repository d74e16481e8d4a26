// The record that carries one waveshaper stage's transfer curve between the panel and the Audio Unit.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <type_traits>

namespace r7 {

/// One number for each of the curve's two cubic segments.
using SegmentPair = std::array<double, 2>;

/// A transfer curve as the Audio Unit evaluates it: the payload of properties 80110 and 80111, in host byte
/// order and in the layout of the build (304 bytes, or 296 where doubles are aligned to four bytes).
///
/// The curve is odd. For an input amplitude x >= 0 it is a cubic while x < segment_length[0], a second cubic
/// for the next segment_length[1], and the line pos_M * x + pos_Intercept from there on. Segment i is at once
///     x(t) = C t + D,  y(t) = E t^3 + F t^2 + G t + H   (t from 0 to 1), and
///     y(x) = P x^3 + Q x^2 + R x + S,                   as t = A x - B.
///
/// The name begins with an underscore and a capital, which C++ keeps for its own use, because the two sides
/// of the exchange know the record by that name.
struct _QM_R7_Bezier_Sequence // NOLINT(bugprone-reserved-identifier)
{
    std::int32_t needs_update; ///< counts the exports into this record; wraps
    double pos_M;
    double pos_Intercept;
    SegmentPair segment_length; ///< equal to C
    SegmentPair C;
    SegmentPair D;
    SegmentPair E;
    SegmentPair F;
    SegmentPair G;
    SegmentPair H;
    SegmentPair A;
    SegmentPair B;
    SegmentPair P;
    SegmentPair Q;
    SegmentPair R;
    SegmentPair S;
    // Constants, which say nothing about the drawn curve.
    double compressor_slope_one;
    double compressor_slope_two;
    double compressor_3P;
    double compressor_2Q;
    double compressor_R;
    double compressor_x1;
    double compressor_x2;
    double compressor_x3;
    std::uint32_t segment_file_version;
};

static_assert(std::is_trivial_v<_QM_R7_Bezier_Sequence> && std::is_standard_layout_v<_QM_R7_Bezier_Sequence>);

namespace bezier_sequence_layout {

struct Probe {
    char first;
    double second;
};
inline constexpr bool kWideAlignment = offsetof(Probe, second) == 8;

/// The offset that this build must have, of those with doubles aligned to eight and to four bytes.
constexpr std::size_t either(std::size_t wide, std::size_t narrow)
{
    return kWideAlignment ? wide : narrow;
}

using Record = _QM_R7_Bezier_Sequence;
static_assert(offsetof(Record, needs_update) == 0);
static_assert(offsetof(Record, pos_M) == either(8, 4));
static_assert(offsetof(Record, pos_Intercept) == either(16, 12));
static_assert(offsetof(Record, segment_length) == either(24, 20));
static_assert(offsetof(Record, C) == either(40, 36));
static_assert(offsetof(Record, D) == either(56, 52));
static_assert(offsetof(Record, E) == either(72, 68));
static_assert(offsetof(Record, F) == either(88, 84));
static_assert(offsetof(Record, G) == either(104, 100));
static_assert(offsetof(Record, H) == either(120, 116));
static_assert(offsetof(Record, A) == either(136, 132));
static_assert(offsetof(Record, B) == either(152, 148));
static_assert(offsetof(Record, P) == either(168, 164));
static_assert(offsetof(Record, Q) == either(184, 180));
static_assert(offsetof(Record, R) == either(200, 196));
static_assert(offsetof(Record, S) == either(216, 212));
static_assert(offsetof(Record, compressor_slope_one) == either(232, 228));
static_assert(offsetof(Record, compressor_slope_two) == either(240, 236));
static_assert(offsetof(Record, compressor_3P) == either(248, 244));
static_assert(offsetof(Record, compressor_2Q) == either(256, 252));
static_assert(offsetof(Record, compressor_R) == either(264, 260));
static_assert(offsetof(Record, compressor_x1) == either(272, 268));
static_assert(offsetof(Record, compressor_x2) == either(280, 276));
static_assert(offsetof(Record, compressor_x3) == either(288, 284));
static_assert(offsetof(Record, segment_file_version) == either(296, 292));
static_assert(sizeof(Record) == either(304, 296));

} // namespace bezier_sequence_layout

} // namespace r7
