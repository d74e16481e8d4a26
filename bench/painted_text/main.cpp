// The painted text: what its image costs, against its pixels and against the relief's radius.
#include "controls/painted_text_view.h"
#include "controls/pixel_planes.h"
#include "platform/graphics.h"
#include "tests/painted_text/direct_relief.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>

namespace r7 {
namespace {

// A line of text that fills a picture five times as wide as it is high.
Mask text_mask(int height)
{
    const Size size{5.0 * height, 1.0 * height};
    const ImageRef text = Image::painted(size, [&](Graphics& graphics) {
        graphics.draw_text("Painted text", {0.0, 0.0, size.width, size.height},
                           {0.8 * height, TextAlignment::center, Color::device_white(1.0, 1.0)});
    });
    Mask mask;
    read_coverage(image_pixels(*text, 1.0), mask);
    return mask;
}

double seconds_of(const auto& action)
{
    const auto start = std::chrono::steady_clock::now();
    action();
    return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

void relief_by_pixels(benchmark::State& state)
{
    const Mask mask = text_mask(static_cast<int>(state.range(0)));
    HeightField field;
    for (auto _ : state) benchmark::DoNotOptimize(field.from_mask(mask).samples().data());
    state.SetComplexityN(static_cast<std::int64_t>(mask.samples().size()));
}
BENCHMARK(relief_by_pixels)->RangeMultiplier(2)->Range(30, 480)->Complexity(benchmark::oN);

// Once with the height field, once with its direct form, which looks as far as the radius; how many times as
// fast the former is.
void relief_by_radius(benchmark::State& state)
{
    const Mask mask = text_mask(60);
    HeightField field;
    field.set_radius(static_cast<float>(state.range(0)));
    for (auto _ : state) benchmark::DoNotOptimize(field.from_mask(mask).samples().data());
    state.SetComplexityN(state.range(0));
}
BENCHMARK(relief_by_radius)->RangeMultiplier(2)->Range(2, 256)->Complexity();

void direct_relief_by_radius(benchmark::State& state)
{
    const Mask mask = text_mask(60);
    const auto radius = static_cast<float>(state.range(0));
    const int reach = static_cast<int>(state.range(0));
    HeightField field;
    field.set_radius(radius);
    double direct = 0.0, ours = 0.0;
    for (auto _ : state) {
        direct += seconds_of([&] { benchmark::DoNotOptimize(direct_relief(mask, radius, reach)); });
        ours += seconds_of([&] { benchmark::DoNotOptimize(field.from_mask(mask).samples().data()); });
    }
    state.counters["plain/ours"] = direct / ours;
    state.SetComplexityN(state.range(0));
}
BENCHMARK(direct_relief_by_radius)->RangeMultiplier(2)->Range(2, 32)->Complexity();

void light_and_tint_by_pixels(benchmark::State& state)
{
    const Mask mask = text_mask(static_cast<int>(state.range(0)));
    HeightField field;
    const Plane<float>& heights = field.from_mask(mask);
    ShadedMaterial material;
    material.set_shading_image(Plane<Pixel>(128, 128));
    const ColorMonochrome tint;
    std::vector<Pixel> row(static_cast<std::size_t>(mask.width()));
    for (auto _ : state)
        for (int y = 0; y < mask.height(); ++y) {
            material.shade_row(heights, mask, y, row);
            tint.apply_to(row);
            benchmark::DoNotOptimize(row.data());
        }
    state.SetComplexityN(static_cast<std::int64_t>(mask.samples().size()));
}
BENCHMARK(light_and_tint_by_pixels)->RangeMultiplier(2)->Range(30, 480)->Complexity(benchmark::oN);

// All that a key pressed by the user costs until the image is there to be drawn.
void typing(benchmark::State& state)
{
    const double height = static_cast<double>(state.range(0));
    QmR7PaintedTextView view({0.0, 0.0, 5.0 * height, height}, Bundle(R7_RESOURCES));
    view.set_font_size(static_cast<float>(0.8 * height));
    bool odd = false;
    for (auto _ : state) view.set_text_string((odd = !odd) ? "Painted text" : "Painted tex");
}
BENCHMARK(typing)->Arg(60)->Arg(240);

} // namespace
} // namespace r7

BENCHMARK_MAIN();
