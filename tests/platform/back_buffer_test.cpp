// The picture of a window.
#include "platform/cairo/back_buffer.h"
#include "platform/graphics.h"
#include "platform/window.h"
#include "tests/support/canvas.h"
#include "tests/support/scratch_folder.h"

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

const ColorRef kRed = Color::device_rgba(1, 0, 0, 1);
const ColorRef kHalfWhite = Color::device_white(1, 0.5);

struct BackBufferTest : testing::Test, ScratchFolder {
    std::shared_ptr<Window> window = std::make_shared<Window>(Rect{0, 0, 120, 80});
    bool otherwise = false; // whether random views paint something else

    void show(Canvas::Painter painter)
    {
        window->set_content_view(std::make_shared<Painting>(Rect{0, 0, 120, 80}, std::move(painter)));
    }
    Canvas written(const char* name, int width, int height) const
    {
        const Canvas picture(make_surface(cairo_image_surface_create_from_png((folder / name).c_str())));
        EXPECT_EQ(picture.width(), width);
        EXPECT_EQ(picture.height(), height);
        return picture;
    }
    Canvas look_at(const BackBuffer& picture) const
    {
        EXPECT_TRUE(picture.write_png(folder / "picture.png"));
        return written("picture.png", picture.width(), picture.height());
    }
};

constexpr Pixel kRedPixel{255, 0, 0, 255}, kGreyPixel{128, 128, 128, 255}, kBlackPixel{0, 0, 0, 255};

TEST_F(BackBufferTest, PaintsWhatWasAskedForOnBlack)
{
    BackBuffer picture({120, 80}, 1.5);
    expect_lit(look_at(picture), {{{0, 0, 180, 120}, kBlackPixel}});
    show([](Graphics& g) { g.fill_rect({0, 0, 120, 80}, kRed.get(), Compositing::copy); });
    const auto all = picture.repaint(*window);
    ASSERT_EQ(all.size(), 1u);
    EXPECT_EQ(all[0], (PixelRect{0, 0, 180, 120}));
    EXPECT_TRUE(picture.repaint(*window).empty());

    show([](Graphics& g) { g.fill_rect({0, 0, 120, 80}, kHalfWhite.get(), Compositing::source_over); });
    window->take_dirty_region();
    // From 1.5 to 4.5 pixels, and from 3 to 4.5 from the bottom.
    window->set_needs_display_in({1, 2 - 1e-9, 2, 1});
    const auto part = picture.repaint(*window);
    ASSERT_EQ(part.size(), 1u);
    EXPECT_EQ(part[0], (PixelRect{1, 115, 4, 2})) << "whole pixels, and none for a rounding error";
    expect_lit(look_at(picture), {{{1, 3, 4, 2}, kGreyPixel}, {{0, 0, 180, 120}, kRedPixel}});
}

TEST_F(BackBufferTest, PartialRepaintsAddUpToAFullOne)
{
    std::mt19937 random(20260722);
    const auto number = [&](double a, double b) { return std::uniform_real_distribution(a, b)(random); };
    const auto color = [&] {
        return Color::device_rgba(number(0, 1), number(0, 1), number(0, 1), number(0, 1));
    };
    const auto rect = [&](double size) {
        return Rect{number(-5, 115), number(-5, 75), number(0, size), number(0, size)};
    };
    const Canvas noise(600, 700, [&](Graphics& g) {
        for (int i = 0; i < 3000; ++i)
            g.fill_rect({number(0, 600), number(0, 700), 9, 9}, color().get(), Compositing::copy);
    });
    noise.write_png(folder / "noise.png");
    const ImageRef image = Image::from_png_file(folder / "noise.png");
    const ColorRef pattern = Color::pattern(image);
    const auto random_view = [&](const Rect& frame) {
        Path path;
        path.line_width = number(0.2, 6);
        const auto point = [&] { return Point{number(-99, 200), number(-99, 200)}; };
        for (int i = 0; i < 6; ++i)
            random() % 3 ? path.line_to(point()) : path.curve_to(point(), point(), point());
        const ColorRef first = color(), second = random() % 2 ? color() : pattern;
        const auto how = random() % 4 ? Compositing::source_over : Compositing::copy;
        const Rect place{number(-800, 0), number(-600, 0), number(20, 1500), number(20, 900)};
        return std::make_shared<Painting>(frame, [=, this](Graphics& g) {
            if (otherwise) g.move_origin_to({3.3, 4.7});
            g.draw_image(image.get(), place.origin(), how, 1.0);
            g.draw_image_in_rect(image.get(), place, how, 0.7);
            g.fill(path, second.get());
            g.stroke(path, first.get());
            g.draw_text("partial", {5, 5, 80, 30}, {16, TextAlignment::left, second});
            g.fill_rect({1.5, 2, 9, 9}, first.get(), how);
        });
    };
    for (const double scale : {1.0, 1.37, 2.0}) {
        window->set_content_view(random_view({0, 0, 120, 80}));
        for (int i = 0; i < 40; ++i) window->content_view()->add_subview(random_view(rect(30)));
        const auto child = std::make_shared<Window>(Rect{30.5, 20, 60, 40});
        child->set_content_view(random_view({0, 0, 60, 40}));
        child->has_shadow = true;
        window->add_child_window(*child);
        BackBuffer picture({120, 80}, scale), whole({120, 80}, scale);
        picture.repaint(*window);
        for (int round = 0; round < 20; ++round) {
            // Paint other things over parts of the picture, and then those parts as they were.
            std::array<Rect, 9> parts{};
            for (Rect& part : parts) part = rect(20);
            for (const bool now : {true, false}) {
                otherwise = now;
                for (const Rect& part : parts) window->set_needs_display_in(part);
                picture.repaint(*window);
            }
        }
        window->set_needs_display_in({0, 0, 120, 80});
        whole.repaint(*window);
        ASSERT_TRUE(std::ranges::equal(picture.pixels(), whole.pixels())) << scale;
    }
}

TEST_F(BackBufferTest, WritesItselfOrAPartOfItselfOrNothing)
{
    BackBuffer picture({120, 80}, 2.0);
    show([](Graphics& g) { g.fill_rect({10, 20, 30, 40}, kRed.get(), Compositing::copy); });
    picture.repaint(*window);
    write("part.png", "is replaced");
    ASSERT_TRUE(picture.write_png(folder / "whole.png"));
    ASSERT_TRUE(picture.write_png(folder / "part.png", {9, 20, 5, 4.25}));
    expect_lit(written("whole.png", 240, 160),
               {{{20, 40, 60, 80}, kRedPixel}, {{0, 0, 240, 160}, kBlackPixel}});
    expect_lit(written("part.png", 10, 9), {{{0, 0, 2, 9}, kBlackPixel}, {{2, 0, 8, 9}, kRedPixel}});
    EXPECT_EQ(bytes_of(folder / "whole.png").find("pHYs"), std::string::npos) << "a pixel is a pixel";

    std::filesystem::create_directory(folder / "taken.png");
    for (const char* name : {"missing/x.png", "taken.png"})
        EXPECT_FALSE(picture.write_png(folder / name)) << name;
    for (const Rect& rect : {Rect{200, 0, 10, 10}, {std::nan(""), 0, 10, 10}, {0, 0, 10, -1}})
        EXPECT_FALSE(picture.write_png(folder / "none.png", rect));
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder), {}), 3) << "nothing is left behind";
}

} // namespace
} // namespace r7
