// UTF-8, read one code point at a time.
#pragma once

#include <string_view>

namespace r7 {

/// What stands for a byte that is no UTF-8.
inline constexpr char32_t kReplacementCharacter = 0xFFFD;

/// Takes the first code point off `rest`, which must not be empty.
///
/// Where `rest` does not begin with a whole, shortest-form code point (surrogates are none), one byte is
/// taken and kReplacementCharacter returned.
char32_t decode_utf8(std::string_view& rest);

} // namespace r7
