// The table of limits.
#include "bench/limits/limits.h"

#include <cstdio>

namespace r7::bench {

namespace {

void print_row(std::string_view what, std::string_view measured, std::string_view limit, const char* verdict)
{
    const auto text = [](std::string_view view) { return static_cast<int>(view.size()); };
    std::printf("| %-72.*s | %10.*s | %15.*s | %-6s |\n", text(what), what.data(), text(measured),
                measured.data(), text(limit), limit.data(), verdict);
    std::fflush(stdout);
}

} // namespace

Limits::Limits()
{
    print_row("what", "measured", "limit", "");
    print_row("---", "---:", "---:", "---");
}

void Limits::at_least(double limit, double measured, std::string_view what)
{
    print(measured >= limit, measured, "at least", limit, what);
}

void Limits::at_most(double limit, double measured, std::string_view what)
{
    print(measured <= limit, measured, "at most", limit, what);
}

void Limits::skip(std::string_view why, std::string_view what)
{
    print_row(what, why, "", "skipped");
}

void Limits::print(bool kept, double measured, const char* bound, double limit, std::string_view what)
{
    char measured_text[32], limit_text[32];
    std::snprintf(measured_text, sizeof measured_text, measured < 100 ? "%.3g" : "%.0f", measured);
    std::snprintf(limit_text, sizeof limit_text, "%s %.0f", bound, limit);
    print_row(what, measured_text, limit_text, kept ? "kept" : "MISSED");
    all_kept_ = all_kept_ && kept;
}

} // namespace r7::bench
