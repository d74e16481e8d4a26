// Drawing: what is lit, and what is not.
#include "tests/platform/canvas.h"

#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <random>

namespace r7 {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr auto kOver = Compositing::source_over;
constexpr auto kCopy = Compositing::copy;

const ColorRef kRed = Color::device_rgba(1, 0, 0, 1);
const ColorRef kHalfBlue = Color::device_rgba(0, 0, 1, 0.5);
const ColorRef kWhite = Color::device_white(1, 1);
const ColorRef kClear = Color::device_white(1, 0);

Path line(Point from, Point to, double width)
{
    Path path;
    path.line_width = width;
    path.move_to(from);
    path.line_to(to);
    return path;
}

// Columns of red, green, blue and white, one point each.
ImageRef stripes(double height = 2)
{
    return Image::painted({4, height}, [&](Graphics& graphics) {
        const Rgba columns[] = {{1, 0, 0, 1}, {0, 1, 0, 1}, {0, 0, 1, 1}, {1, 1, 1, 1}};
        for (int i = 0; i < 4; ++i) {
            const Color color(columns[i]);
            graphics.fill_rect({i * 1.0, 0, 1, height}, &color, kCopy);
        }
    });
}

TEST(Graphics, RectanglesFillTheirPixelsYUpward)
{
    const Canvas canvas(10, 8, [](Graphics& g) { g.fill_rect({2, 1, 3, 2}, kRed.get(), kOver); });
    for (int x = 0; x < 10; ++x)
        for (int y = 0; y < 8; ++y)
            EXPECT_EQ(canvas.alpha(x, y), contains(Rect{2, 1, 3, 2}, {x + 0.5, y + 0.5}) ? 255 : 0)
                << x << ' ' << y;
    EXPECT_EQ(canvas.at(3, 1), (Pixel{255, 0, 0, 255}));
}

TEST(Graphics, PartsOfPixelsAreCoveredInPart)
{
    const Canvas canvas(4, 4, [](Graphics& g) { g.fill_rect({0.5, 1, 2, 1.25}, kRed.get(), kOver); });
    EXPECT_NEAR(canvas.alpha(0, 1), 128, 2);
    EXPECT_EQ(canvas.alpha(1, 1), 255);
    EXPECT_NEAR(canvas.alpha(2, 1), 128, 2);
    EXPECT_NEAR(canvas.alpha(1, 2), 64, 4);
    EXPECT_EQ(canvas.alpha(3, 1), 0);
}

TEST(Graphics, CopyReplacesWhereOverBlends)
{
    const Canvas canvas(7, 1, [](Graphics& g) {
        g.fill_rect({0, 0, 7, 1}, kRed.get(), kOver);
        g.fill_rect({1, 0, 1, 1}, kHalfBlue.get(), kOver);
        g.fill_rect({2, 0, 1, 1}, kHalfBlue.get(), kCopy);
        g.fill_rect({3, 0, 1.5, 1}, kClear.get(), kCopy);
        g.fill_rect({5.5, 0, 1, 1}, kHalfBlue.get(), kCopy);
    });
    EXPECT_EQ(canvas.at(0, 0), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(canvas.at(1, 0), (Pixel{127, 0, 128, 255}));
    EXPECT_EQ(canvas.at(2, 0), (Pixel{0, 0, 128, 128}));
    EXPECT_EQ(canvas.at(3, 0), (Pixel{}));
    EXPECT_NEAR(canvas.alpha(4, 0), 128, 2) << "at its edge a copy replaces what it covers";
    EXPECT_NEAR(canvas.at(5, 0).red, 128, 2);
    EXPECT_NEAR(canvas.at(5, 0).blue, 64, 2);
    EXPECT_NEAR(canvas.at(5, 0).alpha, 192, 2);
}

TEST(Graphics, ClipAndOriginHoldUntilTheStateEnds)
{
    const Canvas canvas(20, 20, [](Graphics& g) {
        {
            const Graphics::SavedState outer(g);
            g.move_origin_to({4, 3});
            g.clip_to({0, 0, 6, 6});
            {
                const Graphics::SavedState inner(g);
                g.move_origin_to({2, 2});
                g.clip_to({0, 0, 100, 2}); // narrows, never widens
                g.fill_rect({-50, -50, 100, 100}, kRed.get(), kOver);
            }
            g.fill_rect({0, 0, 1, 100}, kHalfBlue.get(), kCopy);
        }
        g.fill_rect({19, 19, 1, 1}, kWhite.get(), kOver);
    });
    int lit = 0;
    for (int x = 0; x < 20; ++x)
        for (int y = 0; y < 20; ++y) lit += canvas.alpha(x, y) != 0;
    EXPECT_EQ(lit, 4 * 2 + 6 + 1);
    EXPECT_EQ(canvas.alpha(6, 5), 255);
    EXPECT_EQ(canvas.alpha(9, 6), 255);
    EXPECT_EQ(canvas.alpha(4, 8), 128);
    EXPECT_EQ(canvas.alpha(19, 19), 255);
}

TEST(Graphics, FillsWindAndCloseOpenSubpaths)
{
    Path path;
    path.append_rect({0, 0, 9, 9});
    path.append_rect({3, 3, 3, 3}); // the same way round: no hole
    path.move_to({10, 0});
    path.line_to({20, 0});
    path.line_to({20, 10}); // back to (10, 0)
    const Canvas canvas(20, 10, [&](Graphics& g) { g.fill(path, kRed.get()); });
    EXPECT_EQ(canvas.alpha(4, 4), 255);
    EXPECT_EQ(canvas.alpha(19, 3), 255);
    EXPECT_EQ(canvas.alpha(11, 5), 0);
}

TEST(Graphics, StrokesHaveTheirWidthButtCapsAndMitres)
{
    Path corner = line({4, 4}, {14, 4}, 4);
    corner.line_to({14, 14});
    Path sharp = line({20, 4}, {40, 5}, 4); // an angle of 6 degrees: its mitre would be 19 widths long
    sharp.line_to({20, 6});
    Path outside = line({-1, 30}, {-1, 60}, 4);
    Path square;
    square.line_width = 4;
    square.append_rect({24, 20, 10, 10});
    square.line_to({24, 38}); // from where the square was closed
    for (double scale : {1.0, 2.0}) {
        const int s = static_cast<int>(scale);
        const Canvas canvas(60, 40, scale, [&](Graphics& g) {
            for (const Path* path : {&corner, &sharp, &square, &outside}) g.stroke(*path, kRed.get());
        });
        const auto alpha = [&](double x, double y) {
            return canvas.alpha(static_cast<int>(x * s), static_cast<int>(y * s));
        };
        EXPECT_EQ(alpha(4, 2), 255);
        EXPECT_EQ(alpha(4, 5.5), 255);
        EXPECT_EQ(alpha(4, 1.5), 0);
        EXPECT_EQ(alpha(4, 6), 0);
        EXPECT_EQ(alpha(3.5, 4), 0) << "butt cap";
        EXPECT_EQ(alpha(15.5, 2), 255) << "mitre";
        EXPECT_EQ(alpha(16, 2), 0);
        EXPECT_EQ(alpha(38, 5), 255);
        EXPECT_EQ(alpha(43, 5), 0) << "bevel beyond the limit";
        for (const Point p : {Point{22, 18}, {35.5, 18}, {35.5, 31.5}, {22, 31.5}})
            EXPECT_EQ(alpha(p.x, p.y), 255) << "every corner of a closed path is joined";
        EXPECT_EQ(alpha(29, 25), 0);
        EXPECT_EQ(alpha(24, 37), 255);
        EXPECT_EQ(alpha(0, 35), 255) << "what reaches in from outside";
    }
}

TEST(Graphics, ARingShowsNoSeam)
{
    Path ring;
    ring.line_width = 6;
    ring.move_to({20, 9});
    ring.append_arc({20, 20}, 11, 270, -90, Path::Direction::clockwise);
    const Canvas canvas(40, 40, [&](Graphics& g) { g.stroke(ring, kWhite.get()); });
    for (int y = 7; y < 12; ++y)
        for (int x = 18; x < 22; ++x) EXPECT_GE(canvas.alpha(x, y), 250) << x << ' ' << y;
}

TEST(Graphics, PatternsRepeatFromTheLowerLeftCorner)
{
    const ColorRef pattern = Color::pattern(stripes());
    for (const double scale : {1.0, 2.0, 3.0}) {
        const int s = static_cast<int>(scale);
        const Canvas canvas(30, 6, scale, [&](Graphics& g) {
            const Graphics::SavedState state(g);
            g.move_origin_to({3, 2}); // patterns do not move along
            Path path;
            path.append_rect({0, 0, 20, 3});
            g.fill(path, pattern.get());
            g.fill_rect({21, 0, 5, 3}, pattern.get(), kCopy);
        });
        const Pixel columns[] = {{255, 0, 0, 255}, {0, 255, 0, 255}, {0, 0, 255, 255}, {255, 255, 255, 255}};
        for (int x = 3 * s; x < 29 * s; ++x)
            for (int y = 2 * s; y < 5 * s; ++y)
                EXPECT_EQ(canvas.at(x, y), x / s == 23 ? Pixel{} : columns[x / s % 4]) << x << ' ' << y;
    }
}

TEST(Graphics, ImagesOnWholePixelsAreExactAndBetweenThemBlended)
{
    const ImageRef image = stripes();
    const Canvas canvas(12, 12, [&](Graphics& g) {
        g.draw_image(image.get(), {2, 1}, kOver, 1.0);
        g.draw_image(image.get(), {2.5, 4}, kOver, 1.0);
        g.draw_image_in_rect(image.get(), {2, 7, 8, 4}, kOver, 1.0);
    });
    EXPECT_EQ(canvas.at(1, 1), (Pixel{}));
    EXPECT_EQ(canvas.at(2, 1), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(canvas.at(3, 2), (Pixel{0, 255, 0, 255}));
    EXPECT_EQ(canvas.at(5, 2), (Pixel{255, 255, 255, 255}));
    EXPECT_EQ(canvas.at(2, 3), (Pixel{}));

    EXPECT_NEAR(canvas.at(2, 4).red, 128, 2);
    EXPECT_NEAR(canvas.at(2, 4).alpha, 128, 2);
    EXPECT_NEAR(canvas.at(3, 4).red, 128, 2);
    EXPECT_NEAR(canvas.at(3, 4).green, 128, 2);
    EXPECT_EQ(canvas.at(3, 4).alpha, 255);
    EXPECT_NEAR(canvas.at(6, 5).alpha, 128, 2);
    EXPECT_EQ(canvas.at(7, 5), (Pixel{}));

    EXPECT_EQ(canvas.at(2, 7), (Pixel{255, 0, 0, 255})) << "a stretched image is as sharp as its scale";
    EXPECT_EQ(canvas.at(3, 10), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(canvas.at(4, 7), (Pixel{0, 255, 0, 255}));
    EXPECT_EQ(canvas.at(9, 10), (Pixel{255, 255, 255, 255}));
    EXPECT_EQ(canvas.at(9, 11), (Pixel{}));
}

TEST(Graphics, AnImagesFractionIsItsOpacity)
{
    const ImageRef image = stripes();
    const auto red_column = [&](Compositing how, double fraction) {
        const Canvas canvas(4, 2, [&](Graphics& g) {
            g.fill_rect({0, 0, 4, 2}, kWhite.get(), kOver);
            g.draw_image(image.get(), {0, 0}, how, fraction);
        });
        return canvas.at(0, 0);
    };
    EXPECT_EQ(red_column(kOver, 1.0), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(red_column(kOver, 7.0), (Pixel{255, 0, 0, 255}));
    EXPECT_EQ(red_column(kOver, 0.5), (Pixel{255, 127, 127, 255}));
    EXPECT_EQ(red_column(kOver, 0.0), (Pixel{255, 255, 255, 255}));
    EXPECT_EQ(red_column(kCopy, 0.5), (Pixel{128, 0, 0, 128}));
    EXPECT_EQ(red_column(kCopy, 0.0), (Pixel{}));
    EXPECT_EQ(red_column(kCopy, kNaN), (Pixel{255, 255, 255, 255}));
}

TEST(Graphics, TextIsPaintedInItsColour)
{
    const Canvas canvas(40, 20, [](Graphics& g) {
        g.draw_text("HH", {0, 0, 40, 20}, {12, TextAlignment::left, kRed});
        g.draw_text("HH", {0, 0, 40, 20}, {12, TextAlignment::left, nullptr});
    });
    int most = 0;
    for (int x = 0; x < 40; ++x)
        for (int y = 0; y < 20; ++y) {
            const Pixel pixel = canvas.at(x, y);
            most = std::max(most, pixel.alpha);
            EXPECT_EQ(pixel, (Pixel{pixel.alpha, 0, 0, pixel.alpha}));
            EXPECT_TRUE(pixel.alpha == 0 || (x < 22 && y > 6 && y < 18)) << x << ' ' << y;
        }
    EXPECT_GT(most, 200);
}

TEST(Graphics, WhatIsNotFiniteOrMissingPaintsNothingAndHarmsNothing)
{
    const ImageRef image = stripes();
    const ColorRef odd_color = Color::device_rgba(1, kNaN, 0, 1);
    std::vector<Canvas::Painter> operations;
    for (const double bad : {kNaN, kInfinity, -kInfinity}) {
        for (const Rect& rect : {Rect{bad, 1, 5, 5}, {1, bad, 5, 5}, {1, 1, bad, 5}, {1, 1, 5, bad}}) {
            operations.push_back([=](Graphics& g) { g.fill_rect(rect, kRed.get(), kCopy); });
            operations.push_back([=](Graphics& g) { g.draw_image_in_rect(image.get(), rect, kCopy, 1.0); });
            operations.push_back([=](Graphics& g) {
                g.draw_text("text", rect, {9, TextAlignment::center, kRed});
            });
            operations.push_back([=](Graphics& g) {
                g.clip_to(rect);
                g.fill_rect({0, 0, 9, 9}, kRed.get(), kCopy);
            });
        }
        for (const Point origin : {Point{bad, 1}, {1, bad}}) {
            operations.push_back([=](Graphics& g) { g.draw_image(image.get(), origin, kCopy, 1.0); });
            operations.push_back([=](Graphics& g) {
                g.move_origin_to(origin);
                g.fill_rect({0, 0, 9, 9}, kRed.get(), kCopy);
            });
            operations.push_back([=](Graphics& g) { g.stroke(line(origin, {5, 5}, 2), kRed.get()); });
        }
        operations.push_back([=](Graphics& g) { g.draw_image(image.get(), {1, 1}, kCopy, bad); });
        operations.push_back([=](Graphics& g) { g.stroke(line({1, 1}, {8, 8}, bad), kRed.get()); });
        operations.push_back([=](Graphics& g) {
            g.draw_text("t", {0, 0, 9, 9}, {bad, TextAlignment::left, kRed});
        });
    }
    operations.push_back([=](Graphics& g) { g.fill_rect({1, 1, 5, 5}, odd_color.get(), kCopy); });
    operations.push_back([](Graphics& g) { g.fill_rect({1, 1, 5, 5}, nullptr, kCopy); });
    operations.push_back([](Graphics& g) { g.fill_rect({5, 5, -4, -4}, kRed.get(), kCopy); });
    operations.push_back([](Graphics& g) { g.draw_image(nullptr, {1, 1}, kCopy, 1.0); });
    operations.push_back([](Graphics& g) { g.stroke(line({1, 1}, {8, 8}, 0.0), kRed.get()); });
    operations.push_back([](Graphics& g) { g.stroke(line({1, 1}, {8, 8}, 1.0), nullptr); });
    operations.push_back([](Graphics& g) { g.fill(Path(), kRed.get()); });

    const auto paint_last = [](Graphics& g) {
        g.fill(line({0, 0}, {9, 0}, 1), kRed.get());
        g.fill_rect({9, 9, 1, 1}, kRed.get(), kOver);
    };
    const auto untouched = Canvas(10, 10, paint_last).pixels();
    for (std::size_t i = 0; i < operations.size(); ++i) {
        const Canvas canvas(10, 10, [&](Graphics& g) {
            {
                const Graphics::SavedState state(g);
                operations[i](g);
            }
            paint_last(g);
        });
        EXPECT_EQ(canvas.pixels(), untouched) << "operation " << i;
    }
}

TEST(Graphics, APathLeavesOutWhatIsNotFinite)
{
    Path gap = line({2, 5}, {8, 5}, 2);
    gap.line_to({kNaN, 9});
    gap.line_to({14, 5}); // joined to (8, 5)
    gap.move_to({kInfinity, 0});
    gap.line_to({2, 15}); // begins here instead
    gap.line_to({14, 15});
    const Canvas canvas(20, 20, [&](Graphics& g) { g.stroke(gap, kRed.get()); });
    EXPECT_EQ(canvas.alpha(11, 5), 255);
    EXPECT_EQ(canvas.alpha(8, 15), 255);
    EXPECT_EQ(canvas.alpha(8, 10), 0) << "nothing leads from one subpath to the other";
}

TEST(Graphics, LinesAreDrawnHoweverLongTheyAre)
{
    for (const double reach : {1e2, 1e4, 1e5, 1e6, 1e30}) {
        Path triangle = line({-reach, -reach}, {reach, reach}, 2);
        const Canvas stroked(60, 60, 2.0, [&](Graphics& g) { g.stroke(triangle, kRed.get()); });
        triangle.line_to({reach, -reach});
        const Canvas filled(60, 60, 2.0, [&](Graphics& g) { g.fill(triangle, kRed.get()); });
        for (int i = 4; i < 116; ++i) {
            EXPECT_EQ(stroked.alpha(i, i), 255) << reach;
            EXPECT_EQ(stroked.alpha(i, i - 4), 0) << reach;
            EXPECT_EQ(filled.alpha(i, i - 2), 255) << reach;
            EXPECT_EQ(filled.alpha(i, i + 2), 0) << reach;
        }
    }
}

TEST(Graphics, GarbageIsPaintedQuicklyAndLeavesPixelsValid)
{
    std::mt19937 random(20260722);
    const auto garbage = [&] {
        const double values[] = {kNaN, kInfinity, -kInfinity, 1e38, -1e38, 1e6, -1e6, 1e-38, 0.0};
        if (random() % 8 == 0) return values[random() % std::size(values)];
        const double reach = std::pow(10.0, std::uniform_real_distribution(0.0, 7.0)(random));
        return std::uniform_real_distribution(-reach, reach)(random);
    };
    const auto point = [&] { return Point{garbage(), garbage()}; };
    Canvas canvas(480, 300);
    for (int round = 0; round < 150; ++round) {
        Path path;
        for (int i = 0; i < 100; ++i) {
            switch (random() % 8) {
            case 0:
                path.move_to(point());
                break;
            case 1:
                path.curve_to(point(), point(), point());
                break;
            case 2:
                path.append_arc(point(), garbage(), garbage(), garbage(), Path::Direction::clockwise);
                break;
            case 3:
                path.append_oval({garbage(), garbage(), garbage(), garbage()});
                break;
            case 4:
                path.close();
                break;
            default:
                path.line_to(point());
            }
        }
        path.line_width = random() % 2 ? 2.0 : garbage();
        const auto before = std::chrono::steady_clock::now();
        canvas.graphics().stroke(path, kHalfBlue.get());
        canvas.graphics().fill(path, kRed.get());
        const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - before;
        EXPECT_LT(taken.count(), 2.0) << "round " << round; // about 0.01; this is a check for hangs
    }
    for (int x = 0; x < canvas.width(); ++x)
        for (int y = 0; y < canvas.height(); ++y) {
            const Pixel p = canvas.at(x, y);
            ASSERT_LE(std::max({p.red, p.green, p.blue}), p.alpha);
        }
    canvas.graphics().fill_rect({7, 7, 1, 1}, kWhite.get(), kCopy);
    EXPECT_EQ(canvas.at(7, 7), (Pixel{255, 255, 255, 255}));
}

TEST(Graphics, DroppedVerticesChangeNoPixelVisibly)
{
    Path path;
    path.line_width = 2.0;
    for (int i = 0; i < 512; ++i) {
        const double x = i * 0.4, y = 60 + 50 * std::tanh(2 * std::sin(x * 0.06)) + 5 * std::sin(x * 0.9);
        i ? path.line_to({x, y}) : path.move_to({x, y});
    }
    const Canvas canvas(210, 120, [&](Graphics& g) { g.stroke(path, kWhite.get()); });

    const SurfaceRef whole = make_picture({210, 120}, 1.0);
    cairo_t* const cairo = cairo_create(whole.get());
    for (const Path::Element& element : path.elements())
        cairo_line_to(cairo, element.end().x, 120 - element.end().y);
    cairo_stroke(cairo);
    cairo_destroy(cairo);
    for (int y = 0; y < 120; ++y) {
        const unsigned char* row = cairo_image_surface_get_data(whole.get()) +
                                   (119 - y) * cairo_image_surface_get_stride(whole.get());
        for (int x = 0; x < 210; ++x) EXPECT_NEAR(canvas.alpha(x, y), row[4 * x + 3], 11) << x << ' ' << y;
    }
}

struct PartialRepaint : testing::Test {
    std::mt19937 random{20260722};
    double number(double from, double to) { return std::uniform_real_distribution(from, to)(random); }
    int below(int n) { return static_cast<int>(random() % static_cast<unsigned>(n)); }
    ColorRef color() { return Color::device_rgba(number(0, 1), number(0, 1), number(0, 1), number(0, 1)); }

    // Whether random parts, painted alone, have the pixels of the whole, and nothing else has any.
    void expect_parts_of(const Canvas& full, const Canvas::Painter& paint, double scale, int parts)
    {
        for (int i = 0; i < parts; ++i) {
            const PixelRect part{below(full.width()), below(full.height()), 1 + below(60), 1 + below(60)};
            Canvas partial(full.width() / scale, full.height() / scale, scale);
            partial.graphics().begin(part);
            paint(partial.graphics());
            for (int x = 0; x < full.width(); ++x)
                for (int y = 0; y < full.height(); ++y) {
                    const bool inside = !intersection(part, {x, full.height() - 1 - y, 1, 1}).is_empty();
                    ASSERT_EQ(partial.at(x, y), inside ? full.at(x, y) : Pixel{})
                        << "scale " << scale << ": " << x << ' ' << y;
                }
        }
    }
};

TEST_F(PartialRepaint, GivesThePixelsOfAFullOne)
{
    const auto point = [&] { return Point{number(-200, 400), number(-150, 300)}; };
    const auto rect = [&] {
        return Rect{number(-40, 200), number(-40, 130), number(0, 160), number(0, 100)};
    };
    const ImageRef image = stripes(7);
    const ColorRef pattern = Color::pattern(image);
    for (const double scale : {1.0, 1.37, 2.0}) {
        for (int round = 0; round < 12; ++round) {
            std::vector<Canvas::Painter> scene;
            for (int i = 0; i < 8; ++i) {
                Path path;
                path.line_width = number(0.2, 6);
                for (int k = 0; k < 9; ++k)
                    random() % 4 ? path.line_to(point()) : path.curve_to(point(), point(), point());
                const Rect r = rect();
                const ColorRef c = random() % 4 ? color() : pattern;
                const auto how = random() % 2 ? kCopy : kOver;
                const double fraction = random() % 2 ? 1.0 : number(0, 1);
                scene.push_back([=](Graphics& g) { g.fill_rect(r, c.get(), how); });
                scene.push_back([=](Graphics& g) { g.stroke(path, c.get()); });
                scene.push_back([=](Graphics& g) { g.draw_image_in_rect(image.get(), r, how, fraction); });
                scene.push_back([=](Graphics& g) { g.draw_image(image.get(), r.origin(), how, fraction); });
                scene.push_back([=](Graphics& g) { g.fill(path, c.get()); });
                scene.push_back([=](Graphics& g) {
                    g.draw_text("Frequency (Hz)", r, {14, TextAlignment::center, c});
                });
            }
            std::shuffle(scene.begin(), scene.end(), random);
            const auto paint = [&](Graphics& g) {
                for (const auto& operation : scene) operation(g);
            };
            expect_parts_of(Canvas(160, 100, scale, paint), paint, scale, 4);
        }
    }
}

TEST_F(PartialRepaint, GivesThePixelsOfALargeImageThatIsStretched)
{
    const ImageRef image = Image::painted({1000, 900}, [&](Graphics& g) {
        for (int i = 0; i < 3000; ++i) {
            const Rect rect{1.0 * below(1000), 1.0 * below(900), 1.0 + below(20), 1.0 + below(20)};
            g.fill_rect(rect, color().get(), kCopy);
        }
    });
    for (int round = 0; round < 10; ++round) {
        const Rect rect{number(-300, 100), number(-300, 100), number(300, 1500), number(300, 900)};
        const auto paint = [&](Graphics& g) { g.draw_image_in_rect(image.get(), rect, kCopy, 1.0); };
        expect_parts_of(Canvas(960, 600, paint), paint, 1.0, 4);
    }
}

TEST(CairoContext, AnErrorLosesNoLaterDrawing)
{
    CairoContext context(make_picture({4, 4}, 1.0));
    cairo_restore(context.limited_to({0, 0, 4, 4})); // nothing to restore
    cairo_paint(context.limited_to({1, 1, 2, 2}));
    cairo_surface_flush(context.surface());
    const auto* words =
        reinterpret_cast<const std::uint32_t*>(cairo_image_surface_get_data(context.surface()));
    EXPECT_EQ(words[5], 0xFF000000u);
    EXPECT_EQ(words[0], 0u);
}

} // namespace
} // namespace r7
