// The panel's interface description: which views there are, and where.
#pragma once

#include "platform/geometry.h"

#include <filesystem>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace r7 {

/// One view of the panel, as described.
struct ViewDescription {
    std::string class_name;
    std::string outlet;
    Rect frame;                 ///< in the panel's coordinates, finite, not empty
    bool starts_hidden = false; ///< and so in no place of the panel: a window of its own will show it
};

/// What a description file says.
struct InterfaceDescription {
    Size panel_size;                    ///< finite, above 0
    std::vector<ViewDescription> views; ///< bottom to top, each outlet at most once

    /// The view of an outlet, or none.
    const ViewDescription* find(std::string_view outlet) const;
};

/// Why a description cannot be used: one line, with the place where there is one.
struct DescriptionProblem {
    std::string text;
};

/// Largest width and height that a description may ask for, in points.
inline constexpr double kMostDescribedPoints = 4096.0;

/// Reads and checks an XML description.
///
///     <panel class="QmR7View" width="960" height="600">
///       <view class="QmKnobView" outlet="delay_depth_knob" x="24" y="8" width="64" height="64" hidden="no"/>
///     </panel>
///
/// Anything else, a missing or doubled attribute, a doubled outlet or a frame that is not finite is a
/// problem. Whether the classes and outlets exist is the loader's question. Never throws on the file's
/// account.
std::variant<InterfaceDescription, DescriptionProblem>
read_interface_description(const std::filesystem::path& path);

} // namespace r7
