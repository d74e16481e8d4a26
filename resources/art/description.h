// The interface description of the panel, as the drawing program and the tests read it.
#pragma once

#include "platform/geometry.h"

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace r7::art {

/// A view of the description, or the room that is kept for one.
struct DescribedView
{
    std::string view_class; ///< empty for a place
    std::string outlet;
    Rect frame;
    bool is_hidden = false;

    bool is_place() const { return view_class.empty(); }
};

struct Description
{
    std::string panel_class;
    Size size;
    std::vector<DescribedView> views; ///< in the order of the file

    /// The view of an outlet, or none.
    const DescribedView* find(std::string_view outlet) const;
};

/// Reads a description from the text of its file.
///
/// None, with `error` saying the line and what is wrong there, where it is no well-formed XML, has an unknown
/// element, lacks an attribute, has a frame that is not finite or is empty, or an outlet twice.
std::optional<Description> parse_description(std::string_view xml, std::string& error);

} // namespace r7::art
