// Images from PNG files.
#include "platform/cairo/cairo_image.h"

#include <array>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <system_error>

namespace r7 {

namespace {

// One or two pictures of the same thing.
class PngImage final : public CairoImage {
public:
    PngImage(SurfaceRef once, SurfaceRef twice) : once_{std::move(once), 1.0}, twice_{std::move(twice), 2.0}
    {
    }

    Size size() const override
    {
        return {static_cast<double>(once_.width()), static_cast<double>(once_.height())};
    }

    Raster raster(double pixels_per_point) const override
    {
        // Any enlargement looks better from the larger picture; sums of points are not exact.
        constexpr double kEnlarged = 1.001;
        return twice_.surface && pixels_per_point > kEnlarged ? twice_ : once_;
    }

private:
    Raster once_;
    Raster twice_; // without a surface where there is no such file
};

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using FileRef = std::unique_ptr<std::FILE, FileCloser>;

cairo_status_t read_exactly(void* closure, unsigned char* data, unsigned int length)
{
    return std::fread(data, 1, length, static_cast<std::FILE*>(closure)) == length ? CAIRO_STATUS_SUCCESS
                                                                                   : CAIRO_STATUS_READ_ERROR;
}

// Whether the file starts as a PNG file of a size that is decoded. Without this look at its header, a file of
// some 400 KB can ask the decoder for gigabytes.
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

// The picture of a file, or null.
SurfaceRef read_png(const std::filesystem::path& path)
{
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error)) return nullptr;
    const FileRef file(std::fopen(path.c_str(), "rb"));
    if (!file || !has_acceptable_header(file.get())) return nullptr;
    std::rewind(file.get());
    SurfaceRef surface = make_surface(cairo_image_surface_create_from_png_stream(read_exactly, file.get()));
    return cairo_surface_status(surface.get()) == CAIRO_STATUS_SUCCESS ? surface : nullptr;
}

// "name.png" -> "name@2x.png"
std::filesystem::path twin_of(std::filesystem::path path)
{
    const std::filesystem::path name = path.stem(), extension = path.extension();
    path.replace_filename(name);
    path += "@2x";
    path += extension;
    return path;
}

bool has_twice_the_pixels(cairo_surface_t* twin, cairo_surface_t* surface)
{
    return cairo_image_surface_get_width(twin) == 2 * cairo_image_surface_get_width(surface) &&
           cairo_image_surface_get_height(twin) == 2 * cairo_image_surface_get_height(surface);
}

} // namespace

ImageRef Image::from_png_file(const std::filesystem::path& path)
{
    SurfaceRef once = read_png(path);
    if (!once) return nullptr;
    SurfaceRef twice = read_png(twin_of(path));
    if (twice && !has_twice_the_pixels(twice.get(), once.get())) twice = nullptr;
    return std::make_shared<PngImage>(std::move(once), std::move(twice));
}

} // namespace r7
