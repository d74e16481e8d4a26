// The embedded unit's parameters: their numbers, plain names and starting values.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace r7 {

struct ParameterRow {
    std::uint32_t id;
    std::string_view name;
    float start;
};

// Frequencies in Hz, levels in dB; all else without a unit.
inline constexpr auto kParameters = std::to_array<ParameterRow>({
    {0, "pre tone low frequency", 100.0F},
    {1, "pre tone low slope", 0.5F},
    {2, "pre tone low level", 0.0F},
    {3, "pre tone low-mid frequency", 300.0F},
    {4, "pre tone low-mid Q", 0.8F},
    {5, "pre tone low-mid level", 0.0F},
    {6, "pre tone mid frequency", 1000.0F},
    {7, "pre tone mid Q", 0.8F},
    {8, "pre tone mid level", 0.0F},
    {9, "pre tone high-mid frequency", 3000.0F},
    {10, "pre tone high-mid Q", 0.8F},
    {11, "pre tone high-mid level", 0.0F},
    {12, "pre tone high frequency", 8000.0F},
    {13, "pre tone high slope", 0.5F},
    {14, "pre tone high level", 0.0F},
    {15, "post tone low frequency", 100.0F},
    {16, "post tone low slope", 0.5F},
    {17, "post tone low level", 0.0F},
    {18, "post tone low-mid frequency", 300.0F},
    {19, "post tone low-mid Q", 0.8F},
    {20, "post tone low-mid level", 0.0F},
    {21, "post tone mid frequency", 1000.0F},
    {22, "post tone mid Q", 0.8F},
    {23, "post tone mid level", 0.0F},
    {24, "post tone high-mid frequency", 3000.0F},
    {25, "post tone high-mid Q", 0.8F},
    {26, "post tone high-mid level", 0.0F},
    {27, "post tone high frequency", 8000.0F},
    {28, "post tone high slope", 0.5F},
    {29, "post tone high level", 0.0F},
    {30, "delay depth", 0.0F},
    {31, "delay feedback", 0.0F},
    {32, "delay time", 0.2F},
    {33, "delay cutoff frequency", 0.5F},
    {34, "delay cutoff Q", 0.5F},
    {35, "output level", 1.0F},
    {36, "waveshaper one pre-gain", 1.0F},
    {37, "waveshaper one post-gain", 1.0F},
    {38, "waveshaper one C", 0.25F},
    {39, "waveshaper two pre-gain", 1.0F},
    {40, "waveshaper two post-gain", 1.0F},
    {41, "waveshaper two C", 0.25F},
    {42, "envelope sensitivity", 0.5F},
    {43, "filter resonance", 0.5F},
    {44, "start vowel", 0.0F},
    {45, "end vowel", 0.0F},
    {46, "envelope release time", 0.25F},
    {47, "envelope attack time", 0.01F},
    {48, "envelope mode", 0.0F},
    {49, "waveshaper one D", 0.25F},
    {50, "waveshaper one mode", 0.0F},
    {51, "waveshaper two D", 0.25F},
    {52, "waveshaper two mode", 0.0F},
    {53, "parameter 53", 0.0F}, // no control shows it
});

static_assert(
    [] {
        for (std::size_t i = 0; i < kParameters.size(); ++i)
            if (kParameters[i].id != i || kParameters[i].name.empty()) return false;
        return kParameters.size() == 54;
    }(),
    "every parameter has its row, at the place of its number");

} // namespace r7
