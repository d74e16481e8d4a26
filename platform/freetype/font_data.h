// The bytes of the embedded label font.
#pragma once

#include <array>
#include <cstddef>

namespace r7 {

inline constexpr std::size_t kFontDataSize = 14520;

/// A TrueType file; see font_data.cpp for its origin and FONT-LICENCE.txt for its licence.
extern const std::array<unsigned char, kFontDataSize> kFontData;

} // namespace r7
