// Drawing by Cairo on an image surface.
#pragma once

#include "platform/cairo/coverage_mask.h"
#include "platform/graphics.h"

#include <vector>

namespace r7 {

/// A transparent surface for a picture of `size` points; parts of pixels at its right and top count as whole.
SurfaceRef make_picture(Size size, double scale);

/// The drawing operations of one picture.
///
/// Clips are rounded to whole pixels. A partial repaint gives exactly the pixels of a full one, for nothing
/// that is computed depends on the part that was asked for. Once its storage has grown, painting allocates
/// nothing but what Cairo does.
class CairoGraphics final : public Graphics {
public:
    /// Paints on an image surface, `scale` pixels to a point.
    CairoGraphics(const SurfaceRef& picture, double scale);

    /// Starts a paint of these pixels alone, with the origin in the picture's lower left corner and no clip.
    void begin(const PixelRect& part);

    void move_origin_to(Point origin) override;
    void anchor_patterns() override { state_.pattern_origin = state_.origin; }
    void clip_to(const Rect& rect) override;
    void fill(const Path& path, const Color* color) override;
    void stroke(const Path& path, const Color* color) override;
    void fill_rect(const Rect& rect, const Color* color, Compositing how) override;
    void draw_image(const Image* image, Point origin, Compositing how, double fraction) override;
    void draw_image_in_rect(const Image* image, const Rect& rect, Compositing how, double fraction) override;
    void draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes) override;

protected:
    void save() override { saved_.push_back(state_); }
    void restore() override;

private:
    // In pixels of the picture.
    struct State {
        Point origin{};
        Point pattern_origin{};
        PixelRect clip{}; // what can be visible, whichever part is repainted
    };

    PixelTransform to_pixels() const { return {scale_, state_.origin}; }
    // What of these pixels is to be repainted.
    PixelRect visible(const PixelRect& rect) const;
    // The colour as a source; null where it paints nothing.
    PatternRef source_of(const Color& color) const;
    void paint_box(const Box& box, cairo_pattern_t* source, Compositing how, double opacity);
    // Empties the mask for a shape within `reached`. False where nothing of it is to be repainted.
    bool begin_mask(const PixelRect& reached);
    void paint_through_mask(cairo_pattern_t* source, Compositing how, double opacity);

    double scale_;
    PixelRect bounds_;
    CairoContext context_;
    CoverageMask mask_;
    PixelRect masked_{}; // where the mask holds the present shape
    PixelRect part_{};   // being repainted
    State state_;
    std::vector<State> saved_;
    Path text_;
};

} // namespace r7
