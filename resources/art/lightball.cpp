// The ball that lights the painted text.
#include "resources/art/lightball.h"

#include "resources/art/light.h"

#include <tiffio.h>

#include <memory>

namespace r7::art {

namespace {

// White enamel. Level ground, which faces the viewer, is left below full white, for the tint turns white into
// the paint's own colour: the highlights are what reaches it.
const Material kEnamel{srgb(0xB8B8B8), 0.75, 30.0};

constexpr int kGrain = 4; // samples a pixel, each way

// Faces that turn away from the lamp also lose the light that the ground would throw back on a ball.
double shadow(const Vector& normal)
{
    return 0.1 + 0.9 * smooth_step(-0.8, 0.5, dot(normal, kLight));
}

// (x, y) from -1 to 1, y upward; what lies outside the ball is its rim.
Tint ball_at(double x, double y)
{
    const double reach = std::max(1.0, std::hypot(x, y));
    x /= reach;
    y /= reach;
    const Vector normal{x, y, std::sqrt(std::max(0.0, 1.0 - x * x - y * y))};
    return scaled(lit(kEnamel, normal), shadow(normal));
}

} // namespace

std::vector<std::uint8_t> drawn_lightball()
{
    constexpr int kSamples = kLightballSide * kGrain;
    const auto place = [](int sample) { return (2.0 * sample + 1.0) / kSamples - 1.0; };
    std::vector<std::uint8_t> bytes;
    bytes.reserve(3 * kLightballSide * kLightballSide);
    for (int y = 0; y < kLightballSide; ++y)
        for (int x = 0; x < kLightballSide; ++x) {
            Tint sum{};
            for (int j = 0; j < kGrain; ++j)
                for (int i = 0; i < kGrain; ++i) {
                    const Tint sample = ball_at(place(x * kGrain + i), -place(y * kGrain + j));
                    sum = {sum.red + sample.red, sum.green + sample.green, sum.blue + sample.blue};
                }
            for (const double component : {sum.red, sum.green, sum.blue})
                bytes.push_back(static_cast<std::uint8_t>(
                    std::lround(255.0 * srgb_from_linear(component / (kGrain * kGrain)))));
        }
    return bytes;
}

bool write_lightball(const std::filesystem::path& path)
{
    const std::unique_ptr<TIFF, decltype(&TIFFClose)> file(TIFFOpen(path.c_str(), "w"), TIFFClose);
    if (!file) return false;
    TIFF* const tiff = file.get();
    TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, kLightballSide);
    TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, kLightballSide);
    TIFFSetField(tiff, TIFFTAG_ROWSPERSTRIP, kLightballSide);
    TIFFSetField(tiff, TIFFTAG_SAMPLESPERPIXEL, 3);
    TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
    TIFFSetField(tiff, TIFFTAG_PLANARCONFIG, PLANARCONFIG_CONTIG);
    TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_RGB);
    TIFFSetField(tiff, TIFFTAG_COMPRESSION, COMPRESSION_LZW);
    TIFFSetField(tiff, TIFFTAG_PREDICTOR, PREDICTOR_HORIZONTAL);
    std::vector<std::uint8_t> bytes = drawn_lightball();
    for (std::uint32_t row = 0; row < kLightballSide; ++row)
        if (TIFFWriteScanline(tiff, bytes.data() + row * 3 * kLightballSide, row) < 0) return false;
    return TIFFFlush(tiff) != 0;
}

} // namespace r7::art
