// The picture of a window.
#include "platform/cairo/back_buffer.h"
#include "platform/graphics.h"
#include "platform/window.h"
#include "tests/platform/canvas.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstring>
#include <filesystem>
#include <fstream>
#include <random>

namespace r7 {
namespace {

// A view that paints what it is told to.
class Painting final : public View {
public:
    Painting(const Rect& frame, Canvas::Painter new_painter) : View(frame), painter(std::move(new_painter)) {}
    void drawRect(Graphics& graphics, const Rect&) override { painter(graphics); }

    Canvas::Painter painter;
};

class Backend final : public WindowBackend {
public:
    void window_needs_paint() override {}
    void show_cursor(const CursorRef&) override {}
};

const ColorRef kRed = Color::device_rgba(1, 0, 0, 1);
const ColorRef kHalfWhite = Color::device_white(1, 0.5);

struct BackBufferTest : testing::Test {
    Backend backend;
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{0, 0, 120, 80});
    std::filesystem::path folder =
        std::filesystem::temp_directory_path() / ("r7-back-buffer-test-" + std::to_string(::getpid()));

    BackBufferTest()
    {
        std::filesystem::create_directory(folder);
        window->set_backend(&backend);
    }
    ~BackBufferTest() override
    {
        window->set_backend(nullptr);
        std::filesystem::remove_all(folder);
    }

    void show(Canvas::Painter painter)
    {
        window->set_content_view(std::make_shared<Painting>(Rect{0, 0, 120, 80}, std::move(painter)));
    }
    std::size_t files() const
    {
        return static_cast<std::size_t>(std::distance(std::filesystem::directory_iterator(folder), {}));
    }
};

std::uint32_t word(const BackBuffer& picture, int x, int y_from_top)
{
    std::uint32_t argb = 0;
    std::memcpy(&argb,
                picture.pixels().data() + static_cast<std::size_t>(y_from_top) * picture.stride() +
                    4 * static_cast<std::size_t>(x),
                4);
    return argb;
}

TEST_F(BackBufferTest, StartsBlackAndPaintsWhatWasAskedFor)
{
    BackBuffer picture({120, 80}, 1.5);
    EXPECT_EQ(picture.width(), 180);
    EXPECT_EQ(picture.height(), 120);
    EXPECT_EQ(word(picture, 179, 119), 0xFF000000u);

    show([](Graphics& g) { g.fill_rect({0, 0, 120, 80}, kRed.get(), Compositing::copy); });
    const auto all = picture.repaint(*window);
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0], (PixelRect{0, 0, 180, 120}));
    EXPECT_EQ(word(picture, 0, 0), 0xFFFF0000u);
    EXPECT_TRUE(picture.repaint(*window).empty());

    show([](Graphics& g) { g.fill_rect({0, 0, 120, 80}, kHalfWhite.get(), Compositing::source_over); });
    window->take_dirty_region();
    window->set_needs_display_in({1, 2, 2, 1}); // from 1.5 to 4.5 pixels, from 3 to 4.5 from the bottom
    const auto part = picture.repaint(*window);
    ASSERT_EQ(part.size(), 1u);
    EXPECT_EQ(part[0], (PixelRect{1, 115, 4, 2}));
    for (int x = 0; x < 8; ++x)
        for (int y = 112; y < 120; ++y)
            EXPECT_EQ(word(picture, x, y),
                      !intersection(part[0], {x, y, 1, 1}).is_empty() ? 0xFF808080u : 0xFFFF0000u);
}

TEST_F(BackBufferTest, ARoundingErrorAddsNoPixels)
{
    BackBuffer picture({120, 80}, 1.0);
    const double three = 1.1 * 3 - 0.3;
    ASSERT_GT(three, 3.0);
    window->set_needs_display_in({three, three, 1, 1});
    const auto changed = picture.repaint(*window);
    ASSERT_EQ(changed.size(), 1u);
    EXPECT_EQ(changed[0], (PixelRect{3, 76, 1, 1}));
}

TEST_F(BackBufferTest, PartialRepaintsAddUpToAFullOne)
{
    std::mt19937 random(20260722);
    const auto number = [&](double to) { return std::uniform_real_distribution(0.0, to)(random); };
    int turn = 0;
    const auto scene = [&](Graphics& g) {
        g.fill_rect({3, 3, 100, 70}, kHalfWhite.get(), Compositing::source_over);
        Path path;
        for (int i = 0; i < 100; ++i) path.line_to({i * 1.3, 40 + 35 * std::sin(i * 0.1 + turn)});
        g.stroke(path, kRed.get());
        g.fill(path, kHalfWhite.get());
        g.draw_text("partial", {20.0 + turn, 5, 80, 30}, {16, TextAlignment::left, kRed});
    };
    for (const double scale : {1.0, 1.37, 2.0}) {
        show(scene);
        for (int i = 0; i < 40; ++i) {
            const Color color({number(1), number(1), number(1), number(1)});
            window->content_view()->add_subview(std::make_shared<Painting>(
                Rect{number(120), number(80), number(20), number(20)}, [=](Graphics& g) {
                    g.fill_rect({-9, -9, 99, 99}, &color, Compositing::source_over);
                }));
        }
        const auto child = std::make_shared<Window>(Rect{30.5, 20, 60, 40});
        child->set_content_view(std::make_shared<Painting>(Rect{0, 0, 60, 40}, scene));
        window->add_child_window(*child);
        BackBuffer picture({120, 80}, scale), whole({120, 80}, scale);
        picture.repaint(*window);
        for (int round = 0; round < 60; ++round) {
            // Paint other things over parts of the picture, and then those parts as they were.
            std::vector<Rect> parts;
            for (int i = 0; i < 5; ++i)
                parts.push_back({number(120) - 5, number(80) - 5, number(20), number(20)});
            for (turn = 5; turn >= 0; turn -= 5) {
                for (const Rect& part : parts) window->set_needs_display_in(part);
                picture.repaint(*window);
            }
            turn = 0;
        }
        window->set_needs_display_in({0, 0, 120, 80});
        whole.repaint(*window);
        ASSERT_TRUE(std::ranges::equal(picture.pixels(), whole.pixels())) << scale;
    }
}

TEST_F(BackBufferTest, WritesItselfOrAPartOfItself)
{
    BackBuffer picture({120, 80}, 2.0);
    show([](Graphics& g) { g.fill_rect({10, 20, 30, 40}, kRed.get(), Compositing::copy); });
    picture.repaint(*window);
    ASSERT_TRUE(picture.write_png(folder / "whole.png"));
    ASSERT_TRUE(picture.write_png(folder / "part.png", {10, 20, 5, 4.25}));
    EXPECT_EQ(files(), 2u);
    const ImageRef whole = Image::from_png_file(folder / "whole.png"),
                   part = Image::from_png_file(folder / "part.png");
    ASSERT_TRUE(whole && part);
    EXPECT_EQ(whole->size(), (Size{240, 160}));
    EXPECT_EQ(part->size(), (Size{10, 9}));
    const Canvas canvas(240, 160,
                        [&](Graphics& g) { g.draw_image(whole.get(), {}, Compositing::copy, 1.0); });
    EXPECT_EQ(canvas.at(20, 40), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(canvas.at(19, 40), (Pixel{0, 0, 0, 255}));
    EXPECT_EQ(canvas.at(79, 119), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(canvas.at(80, 119), (Pixel{0, 0, 0, 255}));
    const Canvas cut(10, 9, [&](Graphics& g) { g.draw_image(part.get(), {}, Compositing::copy, 1.0); });
    for (const auto& [x, y] : {std::pair(0, 0), {9, 8}}) EXPECT_EQ(cut.at(x, y), (Pixel{255, 0, 0, 255}));

    std::ifstream file(folder / "whole.png", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    EXPECT_EQ(bytes.find("pHYs"), std::string::npos) << "a pixel is a pixel";
}

TEST_F(BackBufferTest, LeavesNothingBehindWhereItCannotWrite)
{
    const BackBuffer picture({120, 80}, 1.0);
    EXPECT_FALSE(picture.write_png(folder / "missing" / "x.png"));
    EXPECT_FALSE(picture.write_png(folder / "part.png", {200, 0, 10, 10}));
    EXPECT_FALSE(picture.write_png(folder / "part.png", {std::nan(""), 0, 10, 10}));
    std::filesystem::create_directory(folder / "taken.png");
    EXPECT_FALSE(picture.write_png(folder / "taken.png"));
    EXPECT_EQ(files(), 1u);

    std::ofstream(folder / "old.png") << "old";
    EXPECT_TRUE(picture.write_png(folder / "old.png")) << "a file that is there is replaced";
    EXPECT_TRUE(Image::from_png_file(folder / "old.png"));
    EXPECT_EQ(files(), 2u);
}

} // namespace
} // namespace r7
