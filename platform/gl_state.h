// What a view asks of its OpenGL context: a handful of calls, and where the context comes from.
#pragma once

#include "platform/geometry.h"

#include <functional>
#include <memory>

namespace r7 {

struct ImagePixels;

enum class GLCapability { alpha_test, depth_test, scissor_test, blend, dither, cull_face };

/// The OpenGL context of one view, with the picture that it draws into: one pixel a point, y upward.
///
/// Needs to be current for every other call. An abstract class, so that tests can write down what is called.
class GLState {
public:
    virtual ~GLState() = default;
    GLState(const GLState&) = delete;
    GLState& operator=(const GLState&) = delete;

    /// Makes this the thread's context. False, with nothing changed, where that cannot be.
    [[nodiscard]] virtual bool make_current() = 0;
    /// Makes the context current again that was so before make_current(), or none.
    virtual void resign_current() = 0;

    /// Refreshes of the display to wait for before a picture is shown.
    virtual void set_swap_interval(int refreshes) = 0;
    /// 1 for an opaque surface, 0 for one that what lies below shows through.
    virtual void set_surface_opacity(int opacity) = 0;
    /// Tells the context that its view has another size, 1 to kMostImagePixels each way; the picture is undefined
    /// from here on. False, with the size before, where there is no picture of that size.
    [[nodiscard]] virtual bool update(int width, int height) = 0;

    virtual void enable(GLCapability capability) = 0;
    virtual void disable(GLCapability capability) = 0;
    virtual void set_color_mask(bool red, bool green, bool blue, bool alpha) = 0;
    virtual void set_depth_mask(bool enabled) = 0;
    virtual void set_stencil_mask(unsigned bits) = 0;
    virtual void set_clear_color(float red, float green, float blue, float alpha) = 0;
    /// Vertices may be transformed in the fastest way rather than in the best.
    virtual void hint_fastest_transform() = 0;

    /// In whole pixels, as the rectangles below are.
    virtual void set_viewport(const Rect& rect) = 0;
    virtual void load_orthographic_projection(double left, double right, double bottom, double top,
                                              double near, double far) = 0;
    virtual void reset_model_view() = 0;
    virtual void set_scissor(const Rect& rect) = 0;
    virtual void clear_color_buffer() = 0;
    /// Puts the part `from` of `pixels` (within it; in its own coordinates, y upward) where its lower left
    /// corner is at `at`.
    virtual void draw_pixels(const ImagePixels& pixels, Point at, const Rect& from) = 0;
    virtual void flush() = 0;
    /// A part of the picture, which must lie within it.
    virtual ImagePixels read_pixels(const Rect& part) = 0;

protected:
    GLState() = default;
};

/// What a view wants of its context.
struct GLPixelFormat {
    /// Hardware draws where there is some; on Linux software may have to.
    bool accelerated = true;
    /// No other renderer takes over from one that fails.
    bool no_recovery = true;
    int color_size = 32; ///< bits of a pixel's red, green, blue and alpha
};

/// Makes a context; null where there is none to be had.
using GLOpener = std::function<std::unique_ptr<GLState>(const GLPixelFormat&)>;

/// The platform's own opener: one of its own that needs no display. The libraries for it are loaded with the
/// first call, and stay. Reports nothing.
std::unique_ptr<GLState> open_gl_state(const GLPixelFormat& format);

} // namespace r7
