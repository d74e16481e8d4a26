// Quantities as the status line writes them.
#include "app/quantity_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <span>
#include <string_view>

namespace r7 {

namespace {

/// How magnitudes below a limit are written.
struct FormRow {
    double below;
    double divisor;
    int decimals;
    std::string_view unit;
};

/// What is above the last row of a quantity's is written as a power of ten, in the unit of the first.
constexpr auto kPlainForms = std::to_array<FormRow>({{1e6, 1.0, 3, ""}});
constexpr auto kLevelForms = std::to_array<FormRow>({{1e6, 1.0, 1, " dB"}});
// The limits are where rounding would make a fourth digit.
constexpr auto kFrequencyForms = std::to_array<FormRow>({
    {99.95, 1.0, 1, " Hz"},
    {999.5, 1.0, 0, " Hz"},
    {9995.0, 1000.0, 2, " kHz"},
    {99950.0, 1000.0, 1, " kHz"},
    {999500.0, 1000.0, 0, " kHz"},
});

std::string digits(double number, std::chars_format format, int decimals)
{
    std::array<char, 32> text; // the longest, "-999999.999" or "-1.00e+308", has 11 characters
    const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), number, format, decimals);
    return std::string(text.data(), end);
}

struct Written {
    std::string number;
    std::string_view unit;
};

Written written(double number, std::span<const FormRow> forms)
{
    if (std::isnan(number)) return {"nan", forms.front().unit}; // a NaN's sign says nothing
    if (std::isinf(number)) return {number < 0.0 ? "-inf" : "inf", forms.front().unit};
    const auto row =
        std::ranges::find_if(forms, [&](const FormRow& form) { return std::abs(number) < form.below; });
    if (row == forms.end()) return {digits(number, std::chars_format::scientific, 2), forms.front().unit};
    std::string text = digits(number / row->divisor, std::chars_format::fixed, row->decimals);
    if (text.front() == '-' && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
    return {std::move(text), row->unit};
}

} // namespace

std::string plain_text(double number)
{
    std::string text = written(number, kPlainForms).number;
    constexpr std::size_t kThreeDecimals = 4; // with their point
    if (text.find('.') + kThreeDecimals == text.size() && text.back() == '0') text.pop_back();
    return text;
}

std::string frequency_text(double hz)
{
    const auto [number, unit] = written(hz, kFrequencyForms);
    return number + std::string(unit);
}

std::string level_text(double db)
{
    const auto [number, unit] = written(db, kLevelForms);
    const bool is_raised = db > 0.0 && number.find_first_of("123456789i") != std::string::npos;
    return (is_raised ? "+" : "") + number + std::string(unit);
}

} // namespace r7
