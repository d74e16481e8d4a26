// PNG files, before anybody decodes them.
#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>

namespace r7 {

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileRef = std::unique_ptr<std::FILE, FileCloser>;

/// The file, to be read from its beginning, if it starts as a PNG file of a size that is decoded (at most
/// kMostImagePixels a side); otherwise null.
FileRef open_png_file(const std::filesystem::path& path);

/// Where the picture of the same thing with twice the pixels is: "name@2x.png" beside "name.png".
std::filesystem::path twice_as_large(std::filesystem::path path);

} // namespace r7
