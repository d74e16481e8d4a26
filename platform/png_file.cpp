// PNG files, before anybody decodes them.
#include "platform/png_file.h"

#include "platform/image.h"

#include <array>
#include <cstdint>
#include <cstring>
#include <system_error>

namespace r7 {

namespace {

// Without this look at its header, a file of some 400 KB can ask a decoder for gigabytes.
bool has_acceptable_header(std::FILE* file)
{
    std::array<unsigned char, 24> header{};
    if (std::fread(header.data(), 1, header.size(), file) != header.size()) return false;
    static constexpr unsigned char kStart[] = {0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n',
                                               0,    0,   0,   13,  'I',  'H',  'D',  'R'};
    if (std::memcmp(header.data(), kStart, sizeof kStart) != 0) return false;
    const auto side_at = [&](std::size_t i) {
        return static_cast<std::uint32_t>(header[i]) << 24 | static_cast<std::uint32_t>(header[i + 1]) << 16 |
               static_cast<std::uint32_t>(header[i + 2]) << 8 | header[i + 3];
    };
    const auto acceptable = [](std::uint32_t side) { return side > 0 && side <= kMostImagePixels; };
    return acceptable(side_at(16)) && acceptable(side_at(20));
}

} // namespace

FileRef open_png_file(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return nullptr;
    FileRef file(std::fopen(path.c_str(), "rb"));
    if (!file || !has_acceptable_header(file.get())) return nullptr;
    std::rewind(file.get());
    return file;
}

std::filesystem::path twice_as_large(std::filesystem::path path)
{
    const std::filesystem::path name = path.stem(), extension = path.extension();
    path.replace_filename(name);
    path += "@2x";
    path += extension;
    return path;
}

} // namespace r7
