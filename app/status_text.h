// What the status line says of a parameter or a curve.
#pragma once

#include "host/panel_tables.h"
#include "unit/embedded_unit.h"

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace r7 {

/// The values of all parameters, by their numbers.
using ParameterValues = std::array<float, kParameterCount>;

struct StatusText {
    std::string name;
    std::string value;
    bool operator==(const StatusText&) const = default;
};

/// Whether the parameter belongs to a band of a tone control, whose three values are shown together.
constexpr bool belongs_to_band(AudioUnitParameterID id)
{
    return id < 30;
}

/// A parameter by its name, and its value as its unit takes it: the band that it belongs to, a switch's
/// position as the panel's lamps and letters show it, or a number.
/// @param id  0 to 53
StatusText status_of_parameter(AudioUnitParameterID id, const ParameterValues& values);

/// A stage's curve by what it makes of half and of full scale, and by the amplitudes where its drawn part
/// ends.
StatusText status_of_curve(Stage stage, const _QM_R7_Bezier_Sequence& record);

} // namespace r7
