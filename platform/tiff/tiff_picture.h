// Pictures from TIFF files.
#pragma once

#include "platform/cairo/image_pixels.h"

#include <filesystem>
#include <optional>

namespace r7 {

/// The first picture of a TIFF file.
///
/// None, without a message, where the file is missing, unreadable, no TIFF, truncated, or larger than
/// kMostImagePixels a side (told from its header, before anything is decoded). The library's handlers of
/// errors and warnings, which belong to the whole process, stay as they are and hear nothing.
std::optional<ImagePixels> read_tiff(const std::filesystem::path& path);

} // namespace r7
