// Images: files that are read and files that are refused, the twin of twice the pixels, painted images.
#include "platform/cairo/image_pixels.h"
#include "tests/platform/canvas.h"

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <unistd.h>
#include <zlib.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <limits>
#include <random>
#include <string>

namespace r7 {
namespace {

using Bytes = std::string;

Bytes big_endian(std::uint32_t value)
{
    Bytes bytes;
    for (int shift = 24; shift >= 0; shift -= 8) bytes += static_cast<char>(value >> shift & 0xFF);
    return bytes;
}

Bytes chunk(const Bytes& type, const Bytes& data)
{
    const Bytes body = type + data;
    const auto check = crc32(0, reinterpret_cast<const Bytef*>(body.data()), static_cast<uInt>(body.size()));
    return big_endian(static_cast<std::uint32_t>(data.size())) + body +
           big_endian(static_cast<std::uint32_t>(check));
}

const Bytes kSignature("\x89PNG\r\n\x1A\n", 8);

// A whole and correct file: RGBA rows of 8 bits a component, or, for an empty colour, grey ones of 1 bit,
// black.
Bytes png(std::uint32_t width, std::uint32_t height, const Bytes& rgba)
{
    Bytes row(1, '\0');
    for (std::uint32_t x = 0; x < width && !rgba.empty(); ++x) row += rgba;
    if (rgba.empty()) row.resize(1 + (width + 7) / 8);

    z_stream stream{};
    deflateInit(&stream, 1);
    Bytes packed(row.size() * height / 200 + row.size() + 1000, '\0');
    stream.next_out = reinterpret_cast<Bytef*>(packed.data());
    stream.avail_out = static_cast<uInt>(packed.size());
    for (std::uint32_t y = 0; y < height; ++y) {
        stream.next_in = reinterpret_cast<Bytef*>(row.data());
        stream.avail_in = static_cast<uInt>(row.size());
        EXPECT_EQ(deflate(&stream, y + 1 < height ? Z_NO_FLUSH : Z_FINISH),
                  y + 1 < height ? Z_OK : Z_STREAM_END);
    }
    packed.resize(stream.total_out);
    deflateEnd(&stream);
    const Bytes kind = rgba.empty() ? Bytes("\1\0\0\0\0", 5) : Bytes("\10\6\0\0\0", 5);
    return kSignature + chunk("IHDR", big_endian(width) + big_endian(height) + kind) + chunk("IDAT", packed) +
           chunk("IEND", "");
}

const Bytes kRed("\xFF\0\0\xFF", 4), kBlue("\0\0\xFF\xFF", 4), kHalfGreen("\0\xFF\0\x80", 4);

struct ImageTest : testing::Test {
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("r7-image-test-" + std::to_string(::getpid()));

    ImageTest() { std::filesystem::create_directory(folder); }
    ~ImageTest() override { std::filesystem::remove_all(folder); }

    std::filesystem::path write(const std::string& name, const Bytes& bytes) const
    {
        std::ofstream(folder / name, std::ios::binary) << bytes;
        return folder / name;
    }
    ImageRef read(const Bytes& bytes) const { return Image::from_png_file(write("image.png", bytes)); }
};

Pixel painted_pixel(const ImageRef& image, double scale, int x, int y)
{
    return Canvas(20, 20, scale, [&](Graphics& g) { g.draw_image(image.get(), {}, Compositing::copy, 1.0); })
        .at(x, y);
}

TEST_F(ImageTest, ReadsPixelsOfAFile)
{
    const ImageRef image = read(png(5, 3, kHalfGreen));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (Size{5, 3}));
    EXPECT_EQ(painted_pixel(image, 1.0, 4, 2), (Pixel{0, 128, 0, 128}));
    EXPECT_EQ(painted_pixel(image, 1.0, 5, 2), (Pixel{}));
    EXPECT_EQ(painted_pixel(image, 1.0, 4, 3), (Pixel{}));
}

TEST_F(ImageTest, RefusesWhatIsNoSuchFile)
{
    const Bytes good = png(5, 3, kRed);
    EXPECT_FALSE(Image::from_png_file(folder / "missing.png"));
    EXPECT_FALSE(Image::from_png_file(folder));
    for (const Bytes& bad : {Bytes(), Bytes("text\n"), Bytes("GIF89a\1\0\1\0\0\0\0", 13),
                             Bytes("II*\0\10\0\0\0", 8), Bytes(5000, '\0'), "x" + good, kSignature + good})
        EXPECT_FALSE(read(bad)) << bad.substr(0, 8);
    for (std::size_t length = 0; length < good.size(); ++length)
        EXPECT_FALSE(read(good.substr(0, length))) << length << " of " << good.size();
    EXPECT_TRUE(read(good));
}

TEST_F(ImageTest, RefusesWhatIsTooLargeWithoutDecodingIt)
{
    EXPECT_TRUE(read(png(4096, 1, kRed)));
    EXPECT_TRUE(read(png(1, 4096, kRed)));
    EXPECT_FALSE(read(png(4097, 1, kRed)));
    EXPECT_FALSE(read(png(1, 4097, kRed)));

    const Bytes bomb = png(30000, 30000, {});
    EXPECT_LT(bomb.size(), 1u << 19);
    const auto path = write("bomb.png", bomb);
    const auto most_kilobytes = [] {
        rusage usage{};
        getrusage(RUSAGE_SELF, &usage);
        return usage.ru_maxrss;
    };
    const auto before = most_kilobytes();
    EXPECT_FALSE(Image::from_png_file(path));
    EXPECT_LT(most_kilobytes() - before, 1000);

    for (const auto& [width, height] : {std::pair(0u, 5u), {5u, 0u}, {0x7FFFFFFFu, 5u}, {5u, 0xFFFFFFFFu}}) {
        Bytes header = big_endian(width) + big_endian(height) + Bytes("\10\6\0\0\0", 5);
        EXPECT_FALSE(read(kSignature + chunk("IHDR", header) + png(5, 5, kRed).substr(33)))
            << width << ' ' << height;
    }
}

TEST_F(ImageTest, SurvivesAnyChangeOfAFile)
{
    std::mt19937 random(20260722);
    const Bytes good = png(9, 7, kHalfGreen);
    int accepted = 0;
    for (int round = 0; round < 400; ++round) {
        Bytes bad = good;
        for (unsigned i = 0; i <= random() % 3; ++i) bad[random() % bad.size()] = static_cast<char>(random());
        // Every second time the checksums are made right again, so that the change reaches the decoder.
        for (std::size_t at = 8; round % 2 && at + 12 <= bad.size();) {
            std::uint32_t length = 0;
            for (std::size_t i = 0; i < 4; ++i)
                length = length << 8 | static_cast<unsigned char>(bad[at + i]);
            if (length > bad.size() - at - 12) break;
            const Bytes repaired = chunk(bad.substr(at + 4, 4), bad.substr(at + 8, length));
            bad.replace(at, repaired.size(), repaired);
            at += repaired.size();
        }
        if (const ImageRef image = read(bad)) {
            ++accepted;
            EXPECT_TRUE(image->size().width <= kMostImagePixels && image->size().height <= kMostImagePixels);
            painted_pixel(image, 1.0, 0, 0);
        }
    }
    EXPECT_GT(accepted, 0);
    EXPECT_LT(accepted, 200);
}

TEST_F(ImageTest, TheTwinIsUsedWhereAPointIsMoreThanAPixel)
{
    write("knob@2x.png", png(10, 6, kBlue));
    const ImageRef image = Image::from_png_file(write("knob.png", png(5, 3, kRed)));
    ASSERT_TRUE(image);
    EXPECT_EQ(image->size(), (Size{5, 3}));
    const Pixel red{255, 0, 0, 255}, blue{0, 0, 255, 255};
    EXPECT_EQ(painted_pixel(image, 1.0, 4, 2), red);
    EXPECT_EQ(painted_pixel(image, 2.0, 9, 5), blue);
    EXPECT_EQ(painted_pixel(image, 2.0, 10, 5), (Pixel{}));
    EXPECT_EQ(painted_pixel(image, 1.5, 3, 2), blue);
    const Canvas stretched(20, 20, [&](Graphics& g) {
        g.draw_image_in_rect(image.get(), {0, 0, 10, 6}, Compositing::copy, 1.0);
        g.draw_image_in_rect(image.get(), {10, 10, 5, 3}, Compositing::copy, 1.0);
        g.draw_image_in_rect(image.get(), {0, 10, 3, 2}, Compositing::copy, 1.0);
    });
    EXPECT_EQ(stretched.at(9, 5), blue);
    EXPECT_EQ(stretched.at(14, 12), red);
    EXPECT_EQ(stretched.at(2, 11), red);
}

TEST_F(ImageTest, ATwinThatDoesNotFitIsIgnored)
{
    for (const Bytes& twin : {png(9, 6, kBlue), png(10, 7, kBlue), png(5, 3, kBlue), Bytes("broken")}) {
        write("image@2x.png", twin);
        const ImageRef image = read(png(5, 3, kRed));
        ASSERT_TRUE(image);
        EXPECT_EQ(painted_pixel(image, 2.0, 4, 2), (Pixel{255, 0, 0, 255}));
    }
    write("image@2x.png", png(10, 6, kBlue));
    EXPECT_FALSE(read("broken")) << "a twin alone is no image";
}

TEST(PaintedImage, IsSharpAtEveryScale)
{
    int calls = 0;
    const ImageRef image = [&] {
        const ColorRef color = Color::device_rgba(0, 1, 0, 1);
        const ImageRef inner = Image::painted({3, 3}, [&](Graphics& g) {
            g.fill_rect({0, 0, 1, 1}, color.get(), Compositing::copy);
        });
        return Image::painted({10, 8}, [&](Graphics& g) {
            ++calls;
            {
                const Graphics::SavedState state(g);
                g.move_origin_to({2, 2});
                g.clip_to({0, 0, 1.5, 1.5});
                g.fill_rect({-5, -5, 20, 20}, color.get(), Compositing::copy);
            }
            g.draw_image(inner.get(), {6, 6}, Compositing::source_over, 1.0);
            g.fill_rect({9, 7, 50, 50}, color.get(), Compositing::copy); // cut off at the image's edge
        });
    }();
    ASSERT_TRUE(image);
    for (int s : {2, 4, 6}) {
        const Canvas canvas(14, 12, s, [&](Graphics& g) {
            g.draw_image(image.get(), {2, 2}, Compositing::source_over, 1.0);
        });
        for (int x = 0; x < 14 * s; ++x)
            for (int y = 0; y < 12 * s; ++y) {
                const Point p{(x + 0.5) / s - 2, (y + 0.5) / s - 2};
                const bool lit =
                    contains({2, 2, 1.5, 1.5}, p) || contains({6, 6, 1, 1}, p) || contains({9, 7, 1, 1}, p);
                ASSERT_EQ(canvas.alpha(x, y), lit ? 255 : 0) << s << ": " << x << ' ' << y;
            }
    }
    EXPECT_EQ(calls, 1);
}

TEST(PaintedImage, IsCompositedAsAWhole)
{
    const ImageRef image = Image::painted({4, 4}, [](Graphics& g) {
        g.fill_rect({0, 0, 4, 4}, Color::device_rgba(1, 0, 0, 1).get(), Compositing::source_over);
        g.fill_rect({0, 0, 4, 4}, Color::device_rgba(0, 0, 1, 1).get(), Compositing::source_over);
        g.fill_rect({0, 0, 1, 4}, Color::device_white(0, 0).get(), Compositing::copy);
    });
    const Canvas canvas(4, 4, [&](Graphics& g) {
        g.fill_rect({0, 0, 4, 4}, Color::device_white(1, 1).get(), Compositing::copy);
        g.draw_image(image.get(), {}, Compositing::source_over, 0.5);
    });
    EXPECT_EQ(canvas.at(2, 2), (Pixel{127, 127, 255, 255}))
        << "the red below the blue does not shine through";
    EXPECT_EQ(canvas.at(0, 2), (Pixel{255, 255, 255, 255}))
        << "a copy replaces what the image has, not what is under it";
}

TEST(PaintedImage, NeedsASize)
{
    constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
    constexpr double kInfinity = std::numeric_limits<double>::infinity();
    for (const Size& size : {Size{0, 5}, {5, 0}, {-5, 5}, {kNaN, 5}, {5, kInfinity}, {4097, 5}})
        EXPECT_FALSE(Image::painted(size, [](Graphics&) { ADD_FAILURE() << "painted"; }));
}

TEST(PaintedImage, GivesItsPixelsToWhoeverShowsItWithoutPainting)
{
    const ImageRef image = Image::painted({2.5, 2}, [](Graphics& g) {
        g.fill_rect({0, 1, 1, 1}, Color::device_rgba(1, 0, 0, 0.5).get(), Compositing::copy);
    });
    for (const auto& [scale, width, height] : {std::tuple(1.0, 3, 2), {2.0, 5, 4}}) {
        const ImagePixels pixels = image_pixels(*image, scale);
        EXPECT_EQ(pixels.width, width);
        EXPECT_EQ(pixels.height, height);
        ASSERT_EQ(pixels.bytes.size(), static_cast<std::size_t>(4 * width * height));
        std::uint32_t first = 0, last = 0;
        std::memcpy(&first, pixels.bytes.data(), 4);
        std::memcpy(&last, pixels.bytes.data() + pixels.bytes.size() - 4, 4);
        EXPECT_EQ(first, 0x80800000u);
        EXPECT_EQ(last, 0u);
    }
}

} // namespace
} // namespace r7
