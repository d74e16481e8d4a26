// Numbers as text, without the process locale: how sessions and command lines write them.
#pragma once

#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>

namespace r7 {

/// The number that the whole of `text` spells in decimal, or none: no blanks, no plus sign, no hexadecimal,
/// nothing behind it, and within the range of its type. A floating-point number may be `inf` or `nan`.
template <typename Number>
std::optional<Number> number_from(std::string_view text)
{
    Number number{};
    const char* const end = text.data() + text.size();
    const auto [rest, error] = std::from_chars(text.data(), end, number);
    if (error != std::errc{} || rest != end) return std::nullopt;
    return number;
}

/// The shortest text that reads back to the same number of the same type; `nan` for every NaN.
std::string text_of(float number);
std::string text_of(double number);
std::string text_of(std::int32_t number);
std::string text_of(std::uint32_t number);
/// 0 or 1.
std::string text_of(bool flag);

} // namespace r7
