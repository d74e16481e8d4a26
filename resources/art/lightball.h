// The ball that lights the painted text: a picture of every direction a surface can face.
#pragma once

#include <cstdint>
#include <filesystem>
#include <vector>

namespace r7::art {

inline constexpr int kLightballSide = 128;

/// The ball as bytes of red, green and blue, rows from the top: it touches all four sides of the picture, and
/// its rim goes on into the corners.
std::vector<std::uint8_t> drawn_lightball();

/// Writes the ball as a TIFF file. False where that cannot be done.
[[nodiscard]] bool write_lightball(const std::filesystem::path& path);

} // namespace r7::art
