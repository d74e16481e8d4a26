// Drawing: what is lit, and what is not.
#include "tests/support/canvas.h"

#include <chrono>
#include <limits>
#include <random>
#include <tuple>

namespace r7 {
namespace {

constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr auto kOver = Compositing::source_over;
constexpr auto kCopy = Compositing::copy;

const ColorRef kRed = Color::device_rgba(1, 0, 0, 1);
const ColorRef kHalfBlue = Color::device_rgba(0, 0, 1, 0.5);
const ColorRef kWhite = Color::device_white(1, 1);
constexpr Pixel kRedPixel{255, 0, 0, 255}, kGreenPixel{0, 255, 0, 255}, kBluePixel{0, 0, 255, 255},
    kWhitePixel{255, 255, 255, 255}, kHalfBluePixel{0, 0, 128, 128};
constexpr Pixel kStripes[] = {kRedPixel, kGreenPixel, kBluePixel};

// A column of each colour.
ImageRef stripes()
{
    return Image::painted({3, 2}, [&](Graphics& graphics) {
        for (int i = 0; i < 3; ++i) {
            const auto& [red, green, blue, alpha] = kStripes[i];
            const Color color(Rgba{red / 255.0, green / 255.0, blue / 255.0, 1.0});
            graphics.fill_rect({i * 1.0, 0, 1, 2}, &color, kCopy);
        }
    });
}

Path line(Point from, Point to, double width)
{
    Path path;
    path.line_width = width;
    path.move_to(from);
    path.line_to(to);
    return path;
}

TEST(Graphics, RectanglesCoverTheirPixelsYUpwardAndCopyReplacesWhereOverBlends)
{
    const Canvas parts(4, 4, [](Graphics& g) { g.fill_rect({0.5, 1, 2, 1.25}, kRed.get(), kOver); });
    EXPECT_NEAR(parts.alpha(0, 1), 128, 2);
    EXPECT_NEAR(parts.alpha(1, 2), 64, 4);
    EXPECT_EQ(parts.alpha(1, 1), 255);

    const Canvas canvas(5, 1, [](Graphics& g) {
        g.fill_rect({0, 0, 5, 1}, kRed.get(), kOver);
        g.fill_rect({1, 0, 1, 1}, kHalfBlue.get(), kOver);
        g.fill_rect({2, 0, 1, 1}, kHalfBlue.get(), kCopy);
        g.fill_rect({3.5, 0, 1, 1}, kHalfBlue.get(), kCopy);
    });
    EXPECT_EQ(canvas.at(0, 0), kRedPixel);
    EXPECT_EQ(canvas.at(1, 0), (Pixel{127, 0, 128, 255}));
    EXPECT_EQ(canvas.at(2, 0), kHalfBluePixel);
    EXPECT_NEAR(canvas.at(3, 0).red, 128, 2) << "at its edge a copy replaces what it covers";
    EXPECT_NEAR(canvas.at(3, 0).alpha, 192, 2);
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
        g.fill_rect({19, 19, 1, 1}, kRed.get(), kOver);
    });
    expect_lit(canvas,
               {{{6, 5, 4, 2}, kRedPixel}, {{19, 19, 1, 1}, kRedPixel}, {{4, 3, 1, 6}, kHalfBluePixel}});
}

TEST(Graphics, PathsAreFilledAndStrokedToTheEdge)
{
    Path filled, corner = line({4, 4}, {14, 4}, 4), sharp = line({20, 4}, {40, 5}, 4), square, gap;
    filled.append_rect({42, 20, 9, 9});
    filled.append_rect({44, 22, 3, 3}); // the same way round: no hole
    filled.move_to({42, 30});
    filled.line_to({56, 30});
    filled.line_to({56, 38});
    corner.line_to({14, 14});
    sharp.line_to({20, 6}); // an angle of 6 degrees: its mitre would be 19 widths long
    square.append_rect({24, 20, 10, 10});
    square.line_to({24, 38}); // from where the square was closed
    square.line_width = 4;
    gap = line({2, 20}, {8, 20}, 2);
    gap.line_to({kNaN, 9}); // left out, and with it nothing else
    gap.line_to({14, 20});
    gap.move_to({kInfinity, 0}); // the next point begins the subpath instead
    gap.line_to({2, 26});
    gap.line_to({14, 26});
    const std::tuple<Point, int, const char*> rows[] = {
        {{4, 2}, 255, "width"},       {{4, 5.5}, 255, "width"},     {{4, 1.5}, 0, "width"},
        {{4, 6}, 0, "width"},         {{3.5, 4}, 0, "butt cap"},    {{15.5, 2}, 255, "mitre"},
        {{16, 2}, 0, "mitre"},        {{38, 5}, 255, "sharp end"},  {{43, 5}, 0, "beyond the mitre limit"},
        {{22, 18}, 255, "join"},      {{35.5, 18}, 255, "join"},    {{35.5, 31.5}, 255, "join"},
        {{22, 31.5}, 255, "join"},    {{29, 25}, 0, "inside"},      {{24, 37}, 255, "after a close"},
        {{0, 35}, 255, "reaches in"}, {{11, 20}, 255, "not a gap"}, {{8, 26}, 255, "second subpath"},
        {{8, 23}, 0, "between"},      {{45, 23}, 255, "winding"},   {{54, 32}, 255, "open, filled"},
        {{44, 35}, 0, "open, filled"}};
    for (const int scale : {1, 2}) {
        const Canvas canvas(60, 40, scale, [&](Graphics& g) {
            for (const Path& path : {corner, sharp, square, gap, line({-1, 30}, {-1, 60}, 4)})
                g.stroke(path, kRed.get());
            g.fill(filled, kRed.get());
        });
        for (const auto& [at, alpha, what] : rows)
            EXPECT_EQ(canvas.alpha(static_cast<int>(at.x * scale), static_cast<int>(at.y * scale)), alpha)
                << what;
    }
}

TEST(Graphics, PatternsRepeatFromTheLowerLeftCorner)
{
    const ColorRef pattern = Color::pattern(stripes());
    for (const int scale : {1, 2, 3}) {
        const Canvas canvas(12, 6, scale, [&](Graphics& g) {
            Path path;
            path.append_rect({0, 0, 6, 3});
            g.move_origin_to({1, 2}); // patterns do not move along
            g.fill(path, pattern.get());
            g.fill_rect({7, 0, 2, 3}, pattern.get(), kCopy);
        });
        std::vector<Lit> columns;
        for (const int x : {1, 2, 3, 4, 5, 6, 8, 9}) columns.push_back({{x * 1.0, 2, 1, 3}, kStripes[x % 3]});
        expect_lit(canvas, columns, scale);
    }
}

TEST(Graphics, ImagesOnWholePixelsAreExactAndBetweenThemBlended)
{
    const ImageRef image = stripes();
    const Canvas exact(12, 9, [&](Graphics& g) {
        g.draw_image(image.get(), {2, 1}, kOver, 1.0);
        g.draw_image_in_rect(image.get(), {2, 4, 6, 4}, kOver, 1.0);
    });
    std::vector<Lit> columns;
    for (int i = 0; i < 3; ++i) {
        columns.push_back({{2.0 + i, 1, 1, 2}, kStripes[i]});
        columns.push_back({{2.0 + 2 * i, 4, 2, 4}, kStripes[i]});
    }
    expect_lit(exact, columns);
    const Canvas blended(12, 3, [&](Graphics& g) { g.draw_image(image.get(), {2.5, 0}, kOver, 1.0); });
    const Pixel wanted[] = {{}, {128, 0, 0, 128}, {128, 128, 0, 255}, {0, 128, 128, 255}, {0, 0, 128, 128},
                            {}};
    for (int i = 0; i < 6; ++i) EXPECT_LE(step_between(blended.at(1 + i, 1), wanted[i]), 2) << i;
}

TEST(Graphics, WhatIsNotFiniteOrMissingPaintsNothingAndHarmsNothing)
{
    const ImageRef image = stripes();
    const ColorRef odd_color = Color::device_rgba(1, kNaN, 0, 1);
    const auto expect_nothing = [](const Canvas::Painter& paint) {
        const Canvas canvas(10, 10, [&](Graphics& g) {
            {
                const Graphics::SavedState state(g);
                paint(g);
            }
            g.fill_rect({9, 9, 1, 1}, kRed.get(), kOver);
        });
        expect_lit(canvas, {{{9, 9, 1, 1}, kRedPixel}});
    };
    expect_nothing([&](Graphics& g) {
        g.fill_rect({1, 1, 5, 5}, odd_color.get(), kCopy);
        g.fill_rect({1, 1, 5, 5}, nullptr, kCopy);
        g.fill_rect({5, 5, -4, -4}, kRed.get(), kCopy);
        g.draw_image(nullptr, {1, 1}, kCopy, 1.0);
        g.stroke(line({1, 1}, {8, 8}, 0.0), kRed.get());
        g.stroke(line({1, 1}, {8, 8}, 1.0), nullptr);
        g.fill(Path(), kRed.get());
        g.draw_text("t", {0, 0, 9, 9}, {9, TextAlignment::left, nullptr});
        g.draw_text("t", {0, 0, 9, 9}, {-9, TextAlignment::left, kRed});
    });
    for (const double bad : {kNaN, kInfinity, -kInfinity}) {
        for (const Rect& rect : {Rect{bad, 1, 5, 5}, {1, bad, 5, 5}, {1, 1, bad, 5}, {1, 1, 5, bad}})
            expect_nothing([&](Graphics& g) {
                g.draw_image(image.get(), {1, 1}, kCopy, bad);
                g.draw_image_in_rect(image.get(), rect, kCopy, 1.0);
                g.fill_rect(rect, kRed.get(), kCopy);
                g.draw_text("t", rect, {9, TextAlignment::center, kRed});
                g.draw_text("t", {0, 0, 9, 9}, {bad, TextAlignment::left, kRed});
                g.stroke(line({bad, 1}, {5, 5}, 2), kRed.get());
                g.stroke(line({1, 1}, {5, 5}, bad), kRed.get());
                g.clip_to(rect);
                g.fill_rect({0, 0, 9, 9}, kRed.get(), kCopy);
            });
        for (const Point origin : {Point{bad, 1}, {1, bad}})
            expect_nothing([&](Graphics& g) {
                g.draw_image(image.get(), origin, kCopy, 1.0);
                g.move_origin_to(origin);
                g.fill_rect({0, 0, 9, 9}, kRed.get(), kCopy);
            });
    }
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
    const Canvas canvas(480, 300, [&](Graphics& g) {
        for (int round = 0; round < 100; ++round) {
            Path path;
            path.line_width = random() % 2 ? 2.0 : garbage();
            for (int i = 0; i < 100; ++i) {
                const auto kind = random() % 8;
                if (kind == 0) path.move_to(point());
                if (kind == 1) path.curve_to(point(), point(), point());
                if (kind == 2)
                    path.append_arc(point(), garbage(), garbage(), garbage(), Path::Direction::clockwise);
                if (kind == 3) path.close();
                if (kind >= 4) path.line_to(point());
            }
            const auto before = std::chrono::steady_clock::now();
            g.stroke(path, kHalfBlue.get());
            g.fill(path, kRed.get());
            const std::chrono::duration<double> taken = std::chrono::steady_clock::now() - before;
            EXPECT_LT(taken.count(), 2.0) << "round " << round; // about 0.01; this is a check for hangs
        }
        g.fill_rect({7, 7, 1, 1}, kWhite.get(), kCopy);
    });
    EXPECT_EQ(canvas.at(7, 7), kWhitePixel);
    for (int x = 0; x < canvas.width(); ++x)
        for (int y = 0; y < canvas.height(); ++y) {
            const Pixel p = canvas.at(x, y);
            ASSERT_LE(std::max({p.red, p.green, p.blue}), p.alpha);
        }
}

TEST(CairoContext, AnErrorLosesNoLaterDrawing)
{
    const SurfaceRef picture = make_picture({4, 4}, 1.0);
    CairoContext context(picture);
    cairo_restore(context.limited_to({0, 0, 4, 4})); // nothing to restore
    cairo_paint(context.limited_to({1, 0, 2, 2}));
    expect_lit(Canvas(picture), {{{1, 2, 2, 2}, {0, 0, 0, 255}}});
}

} // namespace
} // namespace r7
