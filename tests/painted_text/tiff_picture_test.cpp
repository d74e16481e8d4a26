// Pictures from TIFF files: the committed ball, and files that are not what they seem.
#include "platform/tiff/tiff_picture.h"

#include "controls/pixel_planes.h"
#include "resources/art/lightball.h"

#include <gtest/gtest.h>
#include <tiffio.h>
#include <unistd.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>

namespace r7 {
namespace {

constexpr const char* kLightball = R7_RESOURCES "/lightball.tiff";

/// The place of a file for one test, which is removed at the end.
struct ScratchFile {
    ~ScratchFile() { std::filesystem::remove(path); }
    const std::filesystem::path path = testing::TempDir() + "r7-" + std::to_string(::getpid()) + ".tiff";
};

TEST(TiffPicture, OfTheLightballIsTheBallThatIsDrawn)
{
    const auto picture = read_tiff(kLightball);
    ASSERT_TRUE(picture && picture->width == art::kLightballSide && picture->height == art::kLightballSide);
    const Plane<Pixel> ball = plane_of(*picture);
    const std::vector<std::uint8_t> drawn = art::drawn_lightball();
    // Another machine's mathematics may round a component the other way.
    for (std::size_t i = 0; i < ball.samples().size(); ++i)
        ASSERT_NEAR(ball.samples()[i].green * 255.0f, drawn[3 * i + 1], 1.01f) << i;
    EXPECT_GT(ball.at(45, 39).red, 0.98f) << "lit from the top left";
    EXPECT_LT(ball.at(105, 108).blue, 0.25f) << "dark at the other side";
}

// Neither a host nor the handlers that it has set for the library hear of it.
TEST(TiffPicture, OfAnUnusableFileIsNoneAndSilent)
{
    static int reports = 0;
    const auto count = [](const char*, const char*, va_list) { ++reports; };
    const TIFFErrorHandler errors = TIFFSetErrorHandler(count), warnings = TIFFSetWarningHandler(count);
    const ScratchFile file;
    EXPECT_FALSE(read_tiff(file.path)) << "missing";
    EXPECT_FALSE(read_tiff(file.path.parent_path())) << "a folder";

    const auto is_readable = [&](const std::string& bytes) {
        std::ofstream(file.path, std::ios::binary) << bytes;
        return read_tiff(file.path).has_value();
    };
    std::ifstream ball(kLightball, std::ios::binary);
    std::string bytes{std::istreambuf_iterator<char>(ball), {}};
    EXPECT_TRUE(is_readable(bytes));
    for (std::size_t length = 0; length < bytes.size(); length += 37)
        EXPECT_FALSE(is_readable(bytes.substr(0, length))) << length;
    // Damage may pass as another picture; here ever more of it hits the tags at the end.
    std::mt19937 random(5);
    for (int round = 0; round < 200; ++round) {
        bytes[bytes.size() - 1 - random() % 220] = static_cast<char>(random());
        EXPECT_FALSE(is_readable(bytes) && round > 50);
    }
    TIFFSetErrorHandler(errors);
    TIFFSetWarningHandler(warnings);
    EXPECT_EQ(reports, 0);
}

TEST(TiffPicture, OfMoreThanTheMostPixelsASideIsRefused)
{
    const ScratchFile file;
    for (const auto& [width, height] : {std::pair{4096, 1}, {4097, 1}, {1, 4096}, {1, 4097}}) {
        TIFF* const tiff = TIFFOpen(file.path.c_str(), "w");
        TIFFSetField(tiff, TIFFTAG_IMAGEWIDTH, width);
        TIFFSetField(tiff, TIFFTAG_IMAGELENGTH, height);
        TIFFSetField(tiff, TIFFTAG_BITSPERSAMPLE, 8);
        TIFFSetField(tiff, TIFFTAG_PHOTOMETRIC, PHOTOMETRIC_MINISBLACK);
        std::vector<std::uint8_t> row(4097);
        for (int y = 0; y < height; ++y) TIFFWriteScanline(tiff, row.data(), static_cast<std::uint32_t>(y));
        TIFFClose(tiff);
        EXPECT_EQ(read_tiff(file.path).has_value(), width * height <= 4096) << width << " by " << height;
    }
}

} // namespace
} // namespace r7
