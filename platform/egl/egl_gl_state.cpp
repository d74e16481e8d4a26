// OpenGL contexts by EGL, which draw into buffers of their own and need no display.
#include "platform/cairo/image_pixels.h"
#include "platform/egl/egl_library.h"
#include "platform/gl_state.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <utility>
#include <vector>

namespace r7 {

namespace {

constexpr std::ptrdiff_t kPixelBytes = 4;

unsigned name_of(GLCapability capability)
{
    switch (capability) {
    case GLCapability::alpha_test:
        return GL_ALPHA_TEST;
    case GLCapability::depth_test:
        return GL_DEPTH_TEST;
    case GLCapability::scissor_test:
        return GL_SCISSOR_TEST;
    case GLCapability::blend:
        return GL_BLEND;
    case GLCapability::dither:
        return GL_DITHER;
    case GLCapability::cull_face:
        return GL_CULL_FACE;
    }
    return 0;
}

// A rectangle of whole numbers.
struct WholeRect {
    explicit WholeRect(const Rect& rect)
        : x(static_cast<int>(rect.x)),
          y(static_cast<int>(rect.y)),
          width(static_cast<int>(rect.width)),
          height(static_cast<int>(rect.height))
    {
    }

    std::ptrdiff_t row_bytes() const { return width * kPixelBytes; }
    std::size_t bytes() const { return static_cast<std::size_t>(row_bytes() * height); }

    int x, y;
    int width, height;
};

// Where a row of a picture starts; its rows are kept from the top.
template <typename Pixels>
auto* row_from_bottom(Pixels& pixels, int row)
{
    return pixels.bytes.data() + (pixels.height - 1 - row) * pixels.width * kPixelBytes;
}

// What a thread has current.
struct CurrentContext {
    unsigned api = 0;
    EGLDisplay display = nullptr;
    EGLSurface draw = nullptr;
    EGLSurface read = nullptr;
    EGLContext context = nullptr;
};

class EglGLState final : public GLState {
public:
    // Owns the context; draws into a single pixel at first.
    EglGLState(const EglLibrary& egl, EGLConfig config, EGLContext context)
        : egl_(egl), config_(config), context_(context), surface_(new_surface(1, 1))
    {
    }

    ~EglGLState() override
    {
        if (has_surface()) egl_.eglDestroySurface(egl_.display, surface_);
        egl_.eglDestroyContext(egl_.display, context_);
    }

    bool has_surface() const { return surface_ != nullptr; }

    bool make_current() override
    {
        before_ = {egl_.eglQueryAPI(), egl_.eglGetCurrentDisplay(), egl_.eglGetCurrentSurface(EGL_DRAW),
                   egl_.eglGetCurrentSurface(EGL_READ), egl_.eglGetCurrentContext()};
        egl_.eglBindAPI(EGL_OPENGL_API);
        if (egl_.eglMakeCurrent(egl_.display, surface_, surface_, context_)) return true;
        egl_.eglBindAPI(before_.api);
        return false;
    }

    void resign_current() override
    {
        if (before_.context)
            egl_.eglMakeCurrent(before_.display, before_.draw, before_.read, before_.context);
        else
            egl_.eglMakeCurrent(egl_.display, nullptr, nullptr, nullptr);
        egl_.eglBindAPI(before_.api);
    }

    void set_swap_interval(int refreshes) override { egl_.eglSwapInterval(egl_.display, refreshes); }
    // The buffer has an alpha of its own, which whoever reads it respects or not.
    void set_surface_opacity(int) override {}

    bool update(int width, int height) override
    {
        EGLSurface surface = new_surface(width, height);
        if (!surface) return false;
        const bool is_usable = egl_.eglMakeCurrent(egl_.display, surface, surface, context_);
        if (is_usable) std::swap(surface, surface_);
        egl_.eglDestroySurface(egl_.display, surface);
        return is_usable;
    }

    void enable(GLCapability capability) override { egl_.glEnable(name_of(capability)); }
    void disable(GLCapability capability) override { egl_.glDisable(name_of(capability)); }
    void set_color_mask(bool red, bool green, bool blue, bool alpha) override
    {
        egl_.glColorMask(red, green, blue, alpha);
    }
    void set_depth_mask(bool enabled) override { egl_.glDepthMask(enabled); }
    void set_stencil_mask(unsigned bits) override { egl_.glStencilMask(bits); }
    void set_clear_color(float red, float green, float blue, float alpha) override
    {
        egl_.glClearColor(red, green, blue, alpha);
    }
    // There is no hint for transforms alone here.
    void hint_fastest_transform() override { egl_.glHint(GL_PERSPECTIVE_CORRECTION_HINT, GL_FASTEST); }

    void set_viewport(const Rect& rect) override
    {
        const WholeRect whole(rect);
        egl_.glViewport(whole.x, whole.y, whole.width, whole.height);
    }

    void load_orthographic_projection(double left, double right, double bottom, double top, double near,
                                      double far) override
    {
        egl_.glMatrixMode(GL_PROJECTION);
        egl_.glLoadIdentity();
        egl_.glOrtho(left, right, bottom, top, near, far);
    }

    void reset_model_view() override
    {
        egl_.glMatrixMode(GL_MODELVIEW);
        egl_.glLoadIdentity();
    }

    void set_scissor(const Rect& rect) override
    {
        const WholeRect whole(rect);
        egl_.glScissor(whole.x, whole.y, whole.width, whole.height);
    }

    void clear_color_buffer() override { egl_.glClear(GL_COLOR_BUFFER_BIT); }

    void draw_pixels(const ImagePixels& pixels, Point at, const Rect& from) override
    {
        const WholeRect part(from);
        rows_.resize(part.bytes());
        for (int y = 0; y < part.height; ++y) {
            const std::uint8_t* const row = row_from_bottom(pixels, part.y + y) + part.x * kPixelBytes;
            std::memcpy(rows_.data() + y * part.row_bytes(), row, static_cast<std::size_t>(part.row_bytes()));
        }
        egl_.glRasterPos2d(at.x, at.y);
        egl_.glDrawPixels(part.width, part.height, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV, rows_.data());
    }

    void flush() override { egl_.glFlush(); }

    ImagePixels read_pixels(const Rect& rect) override
    {
        const WholeRect part(rect);
        rows_.resize(part.bytes());
        egl_.glReadPixels(part.x, part.y, part.width, part.height, GL_BGRA, GL_UNSIGNED_INT_8_8_8_8_REV,
                          rows_.data());
        ImagePixels pixels{part.width, part.height, std::vector<std::uint8_t>(part.bytes())};
        for (int y = 0; y < part.height; ++y)
            std::memcpy(row_from_bottom(pixels, y), rows_.data() + y * part.row_bytes(),
                        static_cast<std::size_t>(part.row_bytes()));
        return pixels;
    }

private:
    EGLSurface new_surface(int width, int height) const
    {
        const std::int32_t size[] = {EGL_WIDTH, width, EGL_HEIGHT, height, EGL_NONE};
        return egl_.eglCreatePbufferSurface(egl_.display, config_, size);
    }

    const EglLibrary& egl_;
    EGLConfig config_;
    EGLContext context_;
    EGLSurface surface_;
    CurrentContext before_;
    std::vector<std::uint8_t> rows_; // from the bottom, as OpenGL has them
};

} // namespace

std::unique_ptr<GLState> open_gl_state(const GLPixelFormat& format)
{
    const EglLibrary* const library = EglLibrary::get();
    if (!library) return nullptr;
    const EglLibrary& egl = *library;
    const std::int32_t bits = format.color_size / 4;
    const std::int32_t wanted[] = {EGL_SURFACE_TYPE,
                                   EGL_PBUFFER_BIT,
                                   EGL_RENDERABLE_TYPE,
                                   EGL_OPENGL_BIT,
                                   EGL_RED_SIZE,
                                   bits,
                                   EGL_GREEN_SIZE,
                                   bits,
                                   EGL_BLUE_SIZE,
                                   bits,
                                   EGL_ALPHA_SIZE,
                                   bits,
                                   EGL_NONE};
    EGLConfig config = nullptr;
    std::int32_t found = 0;
    if (!egl.eglChooseConfig(egl.display, wanted, &config, 1, &found) || found == 0) return nullptr;

    // Which interface a thread's contexts are made for is the thread's own affair.
    const unsigned api = egl.eglQueryAPI();
    if (!egl.eglBindAPI(EGL_OPENGL_API)) return nullptr;
    const EGLContext context = egl.eglCreateContext(egl.display, config, nullptr, nullptr);
    egl.eglBindAPI(api);
    if (!context) return nullptr;
    auto state = std::make_unique<EglGLState>(egl, config, context);
    return state->has_surface() ? std::move(state) : nullptr;
}

} // namespace r7
