// Mouse cursors drawn in code: a round target, plain or with a progress arc.
#include "controls/round_target_cursor.h"

#include "platform/graphics.h"

#include <array>
#include <limits>
#include <utility>

namespace r7 {

namespace {

constexpr double kWidth = 24.0;
constexpr Point kCenter{12.0, 12.0};
constexpr double kStraightDown = 270.0; // degrees

// Fractions up to a bound, and the angle in degrees at which their arc ends.
struct Bucket {
    float below;
    double arc_end;
};

// The irregular angles are meant: the steps of 36 degrees are broken by two alike half rings (450 is 90), a
// step that goes too far, and a last one that leaves a degree open.
constexpr std::array<Bucket, 11> kBuckets{{
    {0.05f, 270.0},
    {0.15f, 234.0},
    {0.25f, 198.0},
    {0.35f, 162.0},
    {0.45f, 126.0},
    {0.55f, 450.0},
    {0.65f, 90.0},
    {0.75f, 54.0},
    {0.85f, 18.0},
    {0.95f, 324.0},
    {std::numeric_limits<float>::infinity(), 271.0},
}};

std::size_t bucket_of(float fraction)
{
    std::size_t bucket = 0;
    while (bucket + 1 < kBuckets.size() && fraction >= kBuckets[bucket].below) ++bucket;
    return bucket;
}

CursorRef make_cursor(std::optional<float> fraction)
{
    ImageRef image =
        Image::painted({kWidth, kWidth}, [=](Graphics& graphics) { paint_round_target(graphics, fraction); });
    return image ? std::make_shared<const Cursor>(Cursor{std::move(image), kCenter}) : nullptr;
}

} // namespace

void paint_round_target(Graphics& graphics, std::optional<float> fraction)
{
    Path disc;
    disc.append_oval({0.0, 0.0, kWidth, kWidth});
    graphics.fill(disc, Color::device_white(1.0, 0.33f).get());

    if (fraction) {
        Path arc;
        arc.line_width = 2.5;
        arc.append_arc(kCenter, 7.0, kStraightDown, kBuckets[bucket_of(*fraction)].arc_end,
                       Path::Direction::clockwise);
        graphics.stroke(arc, Color::device_rgba(1.0, 0.0, 0.0, 0.85).get());
    }

    Path rings;
    rings.line_width = 2.0;
    rings.append_arc(kCenter, 3.0, 0.0, 360.0, Path::Direction::counterclockwise);
    rings.move_to({kWidth, kCenter.y});
    rings.append_arc(kCenter, 11.0, 0.0, 360.0, Path::Direction::counterclockwise);
    graphics.stroke(rings, Color::device_white(0.0, 0.9f).get());
}

CursorRef QM_R7_Cursors::round_target_cursor()
{
    static const CursorRef cursor = make_cursor(std::nullopt);
    return cursor;
}

CursorRef QM_R7_Cursors::round_target_cursor_at_fraction(float fraction)
{
    static std::array<CursorRef, kBuckets.size()> cursors;
    CursorRef& cursor = cursors[bucket_of(fraction)];
    if (!cursor) cursor = make_cursor(fraction);
    return cursor;
}

} // namespace r7
