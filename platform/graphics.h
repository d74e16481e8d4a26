// What a view paints with.
#pragma once

#include "platform/color.h"
#include "platform/geometry.h"
#include "platform/image.h"
#include "platform/path.h"
#include "platform/text.h"

#include <string_view>

namespace r7 {

/// How painted pixels meet those that are there.
enum class Compositing { copy, source_over };

/// The drawing operations of one view for the time of one paint, in the view's coordinates (points, y
/// upward).
///
/// Implemented once for each drawing back end. Numbers that are not finite are harmless everywhere: a path
/// leaves out the points that are not finite, any other operation draws nothing. A null or absent colour or
/// image draws nothing. Coordinates are clamped to a million points before a rasteriser sees them.
class Graphics {
public:
    virtual ~Graphics() = default;
    Graphics(const Graphics&) = delete;
    Graphics& operator=(const Graphics&) = delete;

    /// Moves the origin of all later coordinates, until the enclosing SavedState ends.
    virtual void move_origin_to(Point origin) = 0;
    /// Patterns repeat from where the origin is now, until the enclosing SavedState ends.
    virtual void anchor_patterns() {}
    /// Narrows all later painting to `rect`, until the enclosing SavedState ends.
    virtual void clip_to(const Rect& rect) = 0;

    /// Fills the inside of the path (non-zero winding rule); open subpaths are closed by a straight line.
    virtual void fill(const Path& path, const Color* color) = 0;
    /// Strokes the path at its line width, with butt caps and mitre joins.
    virtual void stroke(const Path& path, const Color* color) = 0;
    virtual void fill_rect(const Rect& rect, const Color* color, Compositing how) = 0;

    /// The image at its own size, its lower left corner at `origin`; `fraction` is its opacity, 0 to 1.
    virtual void draw_image(const Image* image, Point origin, Compositing how, double fraction) = 0;
    /// The image stretched into `rect`.
    virtual void draw_image_in_rect(const Image* image, const Rect& rect, Compositing how,
                                    double fraction) = 0;

    /// Text from the top of `rect` downward, broken between words where a line is wider than the rectangle.
    /// Bytes that are no UTF-8 and characters that the font lacks show as its missing-character box.
    virtual void draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes) = 0;

    /// Keeps origin and clip, and restores them when it goes.
    class SavedState final {
    public:
        explicit SavedState(Graphics& graphics) : graphics_(graphics) { graphics_.save(); }
        ~SavedState() { graphics_.restore(); }
        SavedState(const SavedState&) = delete;
        SavedState& operator=(const SavedState&) = delete;

    private:
        Graphics& graphics_;
    };

protected:
    Graphics() = default;
    virtual void save() = 0;
    virtual void restore() = 0;
};

} // namespace r7
