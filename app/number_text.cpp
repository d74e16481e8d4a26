// Numbers as text: the printing half.
#include "app/number_text.h"

#include <array>
#include <cmath>

namespace r7 {

namespace {

template <typename Number>
std::string shortest(Number number)
{
    std::array<char, 32> text; // the longest, "-2.2250738585072014e-308", has 24 characters
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number);
    return std::string(text.data(), end);
}

} // namespace

std::string text_of(float number)
{
    // The sign of a NaN says nothing and differs between machines.
    return std::isnan(number) ? "nan" : shortest(number);
}

std::string text_of(double number)
{
    return std::isnan(number) ? "nan" : shortest(number);
}

std::string text_of(std::int32_t number)
{
    return shortest(number);
}

std::string text_of(std::uint32_t number)
{
    return shortest(number);
}

std::string text_of(bool flag)
{
    return flag ? "1" : "0";
}

} // namespace r7
