// Images: files that are read and files that are refused, the twin of twice the pixels, painted images.
#include "tests/support/canvas.h"
#include "tests/support/scratch_folder.h"

#include <sys/resource.h>
#include <zlib.h>

#include <random>

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

    Bytes rows;
    rows.reserve(row.size() * height);
    for (std::uint32_t y = 0; y < height; ++y) rows += row;
    uLongf size = compressBound(static_cast<uLong>(rows.size()));
    Bytes packed(size, '\0');
    compress2(reinterpret_cast<Bytef*>(packed.data()), &size, reinterpret_cast<const Bytef*>(rows.data()),
              static_cast<uLong>(rows.size()), 1);
    packed.resize(size);
    const Bytes kind = rgba.empty() ? Bytes("\1\0\0\0\0", 5) : Bytes("\10\6\0\0\0", 5);
    return kSignature + chunk("IHDR", big_endian(width) + big_endian(height) + kind) + chunk("IDAT", packed) +
           chunk("IEND", "");
}

const Bytes kRed("\xFF\0\0\xFF", 4), kBlue("\0\0\xFF\xFF", 4), kHalfGreen("\0\xFF\0\x80", 4);

struct ImageTest : testing::Test, ScratchFolder {
    ImageRef read(const Bytes& bytes) const
    {
        write("image.png", bytes);
        return Image::from_png_file(folder / "image.png");
    }
};

Canvas painted(const ImageRef& image, double scale)
{
    return Canvas(20, 20, scale, [&](Graphics& g) { g.draw_image(image.get(), {}, Compositing::copy, 1.0); });
}

TEST_F(ImageTest, RefusesWhatIsNoWholeFile)
{
    const Bytes good = png(5, 3, kHalfGreen);
    EXPECT_FALSE(Image::from_png_file(folder / "missing.png"));
    EXPECT_FALSE(Image::from_png_file(folder));
    for (const Bytes& bad :
         {Bytes("text"), Bytes("GIF89a"), Bytes(5000, '\0'), "x" + good, kSignature + good})
        EXPECT_FALSE(read(bad));
    for (std::size_t length = 0; length < good.size(); ++length)
        EXPECT_FALSE(read(good.substr(0, length))) << length << " of " << good.size();
    expect_lit(painted(read(good), 1.0), {{{0, 0, 5, 3}, {0, 128, 0, 128}}});
}

TEST_F(ImageTest, RefusesWhatIsTooLargeWithoutDecodingIt)
{
    EXPECT_TRUE(read(png(4096, 1, kRed)) && read(png(1, 4096, kRed)));
    EXPECT_FALSE(read(png(4097, 1, kRed)) || read(png(1, 4097, kRed)));
    for (const auto& [width, height] : {std::pair(0u, 5u), {5u, 0u}, {0x7FFFFFFFu, 5u}, {5u, 0xFFFFFFFFu}}) {
        const Bytes header = big_endian(width) + big_endian(height) + Bytes("\10\6\0\0\0", 5);
        EXPECT_FALSE(read(kSignature + chunk("IHDR", header) + png(5, 5, kRed).substr(33))) << width;
    }

    const Bytes bomb = png(30000, 8000, {});
    EXPECT_LT(bomb.size(), 500'000u);
    rusage before{}, after{};
    getrusage(RUSAGE_SELF, &before);
    EXPECT_FALSE(read(bomb));
    getrusage(RUSAGE_SELF, &after);
    EXPECT_LT(after.ru_maxrss - before.ru_maxrss, 4000) << "kilobytes";
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
        for (const auto& [at, length] :
             {std::pair(std::size_t{8}, std::size_t{13}), {33, good.size() - 57}, {good.size() - 12, 0}})
            if (round % 2)
                bad.replace(at, length + 12, chunk(bad.substr(at + 4, 4), bad.substr(at + 8, length)));
        const ImageRef image = read(bad);
        accepted += image != nullptr;
        painted(image, 1.0);
    }
    EXPECT_TRUE(accepted > 0 && accepted < 200) << accepted;
}

TEST_F(ImageTest, TheTwinIsUsedWhereAPointIsMoreThanAPixelAndItFits)
{
    const Pixel red{255, 0, 0, 255}, blue{0, 0, 255, 255};
    for (const auto& [twin, at_2x] : {std::pair(png(10, 6, kBlue), blue),
                                      {png(9, 6, kBlue), red},
                                      {png(10, 7, kBlue), red},
                                      {Bytes("broken"), red}}) {
        write("image@2x.png", twin);
        const ImageRef image = read(png(5, 3, kRed));
        expect_lit(painted(image, 1.0), {{{0, 0, 5, 3}, red}});
        expect_lit(painted(image, 2.0), {{{0, 0, 5, 3}, at_2x}}, 2.0);
        EXPECT_EQ(painted(image, 1.5).at(3, 2), at_2x);
    }
}

TEST(PaintedImage, IsSharpAtEveryScaleAndNeedsNobodyElse)
{
    int calls = 0;
    const ImageRef image = [&] {
        const ColorRef color = Color::device_rgba(0, 1, 0, 1);
        const auto dot = [&](Graphics& g) { g.fill_rect({0, 0, 1, 1}, color.get(), Compositing::copy); };
        const ImageRef inner = Image::painted({3, 3}, dot);
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
    const Pixel green{0, 255, 0, 255};
    for (const int scale : {2, 4})
        expect_lit(painted(image, scale),
                   {{{2, 2, 1.5, 1.5}, green}, {{6, 6, 1, 1}, green}, {{9, 7, 1, 1}, green}}, scale);
    EXPECT_EQ(calls, 1);
}

TEST(PaintedImage, NeedsASize)
{
    for (const Size& size : {Size{0, 5}, {5, -1}, {std::nan(""), 5}, {5, 1 / 0.0}, {4097, 5}})
        EXPECT_FALSE(Image::painted(size, [](Graphics&) { ADD_FAILURE() << "painted"; }));
}

} // namespace
} // namespace r7
