// Pictures from TIFF files, by libtiff.
#include "platform/tiff/tiff_picture.h"

#include <tiffio.h>

#include <array>
#include <cstdint>
#include <cstring>
#include <memory>

namespace r7 {

namespace {

// A picture of the largest size as libtiff wants it in one piece, and half as much again for its own tables.
constexpr tmsize_t kMostMemory = tmsize_t{kMostImagePixels} * kMostImagePixels * 6;

// Says that the report is dealt with: the handlers of the process are not called.
int silent(TIFF*, void*, const char*, const char*, va_list)
{
    return 1;
}

struct Closer {
    void operator()(TIFF* file) const { TIFFClose(file); }
    void operator()(TIFFOpenOptions* options) const { TIFFOpenOptionsFree(options); }
};

std::unique_ptr<TIFF, Closer> open(const std::filesystem::path& path)
{
    const std::unique_ptr<TIFFOpenOptions, Closer> options(TIFFOpenOptionsAlloc());
    if (!options) return nullptr;
    TIFFOpenOptionsSetErrorHandlerExtR(options.get(), silent, nullptr);
    TIFFOpenOptionsSetWarningHandlerExtR(options.get(), silent, nullptr);
    TIFFOpenOptionsSetMaxSingleMemAlloc(options.get(), kMostMemory);
    // Read, not mapped: a mapped file that somebody shortens ends the process.
    return std::unique_ptr<TIFF, Closer>(TIFFOpenExt(path.c_str(), "rm", options.get()));
}

bool is_acceptable(std::uint32_t side)
{
    return side > 0 && side <= std::uint32_t{kMostImagePixels};
}

} // namespace

std::optional<ImagePixels> read_tiff(const std::filesystem::path& path)
{
    const auto file = open(path);
    std::uint32_t width = 0, height = 0;
    if (!file || !TIFFGetField(file.get(), TIFFTAG_IMAGEWIDTH, &width) ||
        !TIFFGetField(file.get(), TIFFTAG_IMAGELENGTH, &height))
        return std::nullopt;
    if (!is_acceptable(width) || !is_acceptable(height)) return std::nullopt;

    std::array<char, 1024> complaint{}; // the size that libtiff demands
    constexpr int kStopAtErrors = 1;
    std::vector<std::uint32_t> raster(std::size_t{width} * height);
    if (!TIFFRGBAImageOK(file.get(), complaint.data()) ||
        !TIFFReadRGBAImageOriented(file.get(), width, height, raster.data(), ORIENTATION_TOPLEFT,
                                   kStopAtErrors))
        return std::nullopt;

    // Already premultiplied; only the order of the colours differs.
    for (std::uint32_t& pixel : raster)
        pixel = TIFFGetA(pixel) << 24 | TIFFGetR(pixel) << 16 | TIFFGetG(pixel) << 8 | TIFFGetB(pixel);
    ImagePixels pixels{static_cast<int>(width), static_cast<int>(height), {}};
    pixels.bytes.resize(raster.size() * sizeof(raster.front()));
    std::memcpy(pixels.bytes.data(), raster.data(), pixels.bytes.size());
    return pixels;
}

} // namespace r7
