// The scale that a desktop's resource settings ask for.
#pragma once

#include <string_view>

namespace r7 {

/// Pixels for a point according to a resource database's text: its `Xft.dpi` over 96. 1 where it has none, or
/// one that is no number from 48 to 768.
double desktop_scale_of(std::string_view resources);

} // namespace r7
