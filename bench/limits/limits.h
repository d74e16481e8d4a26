// The limits, and the table of what was measured against them.
#pragma once

#include <string_view>

namespace r7::bench {

/// Prints each row as it comes, as that of a Markdown table.
class Limits final {
public:
    /// Prints the head of the table.
    Limits();

    /// A number that is none, as one that could not be measured, keeps no limit.
    void at_least(double limit, double measured, std::string_view what);
    void at_most(double limit, double measured, std::string_view what);
    /// A limit that does not hold on this machine; it counts as kept.
    void skip(std::string_view why, std::string_view what);

    bool all_kept() const { return all_kept_; }

private:
    void print(bool kept, double measured, const char* bound, double limit, std::string_view what);

    bool all_kept_ = true;
};

// The families of rows, a file each, in the order of the table.
void measure_curves(Limits& limits);
void measure_tone_control(Limits& limits);
void measure_waveshaper(Limits& limits);
void measure_painting(Limits& limits);
void measure_allocations(Limits& limits);
void measure_idleness(Limits& limits);

} // namespace r7::bench
