// The painted text: a line of text that looks embossed and painted.
#pragma once

#include "controls/color_monochrome.h"
#include "controls/height_field.h"
#include "controls/image_context.h"
#include "controls/shaded_material.h"
#include "platform/bundle.h"
#include "platform/gl_state.h"
#include "platform/image.h"
#include "platform/view.h"

#include <limits>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace r7 {

/// All of a plane: what a redraw of the whole view is asked for with.
inline constexpr Rect kInfiniteRect{
    -std::numeric_limits<double>::infinity(), -std::numeric_limits<double>::infinity(),
    std::numeric_limits<double>::infinity(), std::numeric_limits<double>::infinity()};

/// Text, centred at the top of the view, that is rendered white, raised to a relief, lit by a picture of a
/// ball and tinted with one colour.
///
/// Every setter renders the text anew and builds the finished image at once, one pixel a point. The image is
/// drawn by an OpenGL context of the view's own, which is made at the first draw; where there is none to be
/// had, the image is painted as it is, with the same pixels, and nobody is told. Without the ball's picture,
/// or in a view that is empty or larger than kMostImagePixels a side, there is nothing to see. Bytes that are
/// no UTF-8 show as the font's missing-character box.
class QmR7PaintedTextView : public View {
public:
    /// The paint is blue, the text empty and its size 9 points. `bundle` has the ball: "lightball", a TIFF
    /// file, read here. `open_context` makes the view's OpenGL context.
    QmR7PaintedTextView(const Rect& frame, const Bundle& bundle, GLOpener open_context = open_gl_state);
    ~QmR7PaintedTextView() override;

    /// What contexts are made for, unless a view has a format of its own; one for the process.
    static const GLPixelFormat& defaultPixelFormat();
    void setPixelFormat(const GLPixelFormat& format) { pixel_format_ = format; }
    /// What lies below shows between the letters.
    bool isOpaque() const { return false; }

    /// The finished image, or none.
    const ImageRef& image() const { return image_; }
    const std::string& text_string() const { return paint_text_; }
    float font_size() const { return font_size_; }
    const Rgba& paint_color() const { return color_filter_.color; }
    float height_field_scale() const { return height_field_filter_.radius(); }
    float shaded_image_scale() const { return shaded_filter_.scale(); }

    /// All of them at once, and one new image. What is none or out of its range leaves what was there: the
    /// font size in points, above 0; the height scale above 0 and below 300; the shade scale above 0.001 and
    /// below 200.
    void set_text_font_size_paint_color_height_scale_shade_scale(std::optional<std::string_view> text,
                                                                 float font_size, const ColorRef& color,
                                                                 float height_scale, float shade_scale);
    /// None keeps the text; the image is built anew even so.
    void set_text_string(std::optional<std::string_view> text);
    /// In points; one that is not above 0 changes nothing, and nothing is built.
    void set_font_size(float font_size);
    /// None, and a pattern, keep the colour; the image is built anew even so.
    void set_paint_color(const ColorRef& color);
    /// The relief's radius: see HeightField. Any number.
    void set_height_field_scale(float scale);
    /// The relief's steepness: see ShadedMaterial. Any number.
    void set_shaded_image_scale(float scale);

    /// Renders the text, if it has to be rendered anew, and builds the finished image.
    void updateImage();
    /// setImage_dirtyRect() for the whole view.
    void setImage(ImageRef image) { setImage_dirtyRect(std::move(image), kInfiniteRect); }
    /// Shows another image, which may be none, and asks for the redraw of `dirty`. The same image again
    /// changes nothing and asks for nothing.
    void setImage_dirtyRect(ImageRef image, const Rect& dirty);

    /// Sets what stays the same in the OpenGL context, if there is one; it has to be current.
    void prepareOpenGL();
    /// Makes the OpenGL context, which has to be current, and the image follow the bounds, if those have
    /// changed.
    void updateMatrices();
    /// The image is built anew, from the text as it was rendered: for the size before.
    void viewBoundsDidChange(const Rect& bounds);

    void drawRect(Graphics& graphics, const Rect& dirty) override;

protected:
    /// For classes that draw something else than the image: whether they have drawn `rect` with `context`.
    virtual bool drawRect_inCIContext(const Rect& rect, ImageContext& context);

private:
    // After every change of what the text looks like.
    void render_anew();
    void render_text();
    // The text image after all three filters; none without a text image or a ball.
    ImageRef filtered();

    // Makes the view's OpenGL context current, making it first if nobody has tried to; afterwards there is a
    // current context and something to draw images with, or neither.
    void make_context_current();
    void give_up_context();
    // A view that is in no window is printed, or painted to be kept.
    bool is_drawing_to_screen() const { return window() != nullptr; }
    void draw_to_screen(Graphics& graphics, const Rect& ir);
    void draw_to_bitmap(Graphics& graphics, const Rect& ir);
    void draw_image_alone(Graphics& graphics, const Rect& ir);

    std::unique_ptr<GLState> gl_; // the view's OpenGL context; before what refers to it
    std::unique_ptr<ImageContext> context_;
    ImageRef image_;
    Rect lastBounds_;
    ImageRef text_image_; // none: to be rendered
    ColorMonochrome color_filter_;
    HeightField height_field_filter_;
    ShadedMaterial shaded_filter_;
    std::string paint_text_;
    float font_size_ = 9.0f;

    GLOpener open_context_; // empty once it has been called
    std::optional<GLPixelFormat> pixel_format_;
    // Storage of updateImage().
    Mask mask_;
    std::vector<Pixel> row_;
};

} // namespace r7
