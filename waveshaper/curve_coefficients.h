// A transfer curve's coefficients and its evaluation, which the editor and the response display share.
#pragma once

#include "waveshaper/bezier_sequence.h"

#include <cstddef>
#include <iterator>
#include <string_view>

namespace r7 {

/// The coefficients of a curve, with the names and the meanings that they have in the record.
struct CurveCoefficients {
    double pos_M = 0;
    double pos_Intercept = 0;
    SegmentPair segment_length{};
    SegmentPair C{};
    SegmentPair D{};
    SegmentPair E{};
    SegmentPair F{};
    SegmentPair G{};
    SegmentPair H{};
    SegmentPair A{};
    SegmentPair B{};
    SegmentPair P{};
    SegmentPair Q{};
    SegmentPair R{};
    SegmentPair S{};

    /// Output amplitude for an input amplitude, both dimensionless with 1 as full scale.
    ///
    /// Double precision between a single-precision input and result. Nothing is clipped: the straight part
    /// goes on without limit. A NaN gives a NaN, as do coefficients that say so.
    float response_for_in_amplitude(float in_amplitude) const;
};

/// A pair of segment coefficients and the name it goes by, in a record or in CurveCoefficients.
template <class Fields>
struct SegmentPairField {
    std::string_view name;
    SegmentPair Fields::*pair;
};

/// Every pair of `Fields`, which is the record or CurveCoefficients, in the record's order.
template <class Fields>
inline constexpr SegmentPairField<Fields> kSegmentPairFields[] = {
    {"segment_length", &Fields::segment_length},
    {"C", &Fields::C},
    {"D", &Fields::D},
    {"E", &Fields::E},
    {"F", &Fields::F},
    {"G", &Fields::G},
    {"H", &Fields::H},
    {"A", &Fields::A},
    {"B", &Fields::B},
    {"P", &Fields::P},
    {"Q", &Fields::Q},
    {"R", &Fields::R},
    {"S", &Fields::S},
};

/// Copies the coefficients, and nothing else, from a record or CurveCoefficients to a record or
/// CurveCoefficients.
template <class From, class To>
void copy_coefficients(const From& from, To& to)
{
    to.pos_M = from.pos_M;
    to.pos_Intercept = from.pos_Intercept;
    for (std::size_t i = 0; i < std::size(kSegmentPairFields<From>); ++i)
        to.*kSegmentPairFields<To>[i].pair = from.*kSegmentPairFields<From>[i].pair;
}

} // namespace r7
