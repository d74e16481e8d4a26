// An OpenGL context that draws nothing and keeps a row of every call.
#pragma once

#include "platform/cairo/image_pixels.h"
#include "platform/gl_state.h"

#include <sstream>
#include <string>

namespace r7 {

/// What the context does, and what has been done with it.
struct GLScript {
    bool can_be_current = true;
    bool can_be_updated = true;
    std::string calls{}; ///< each with "; " behind it
    int contexts = 0;    ///< that are open
};

class RecordingGLState final : public GLState {
public:
    explicit RecordingGLState(GLScript& script) : script_(script) { ++script_.contexts; }
    ~RecordingGLState() override { --script_.contexts; }

    bool make_current() override { return add("current"), script_.can_be_current; }
    void resign_current() override { add("resign"); }
    void set_swap_interval(int refreshes) override { add("swap ", refreshes); }
    void set_surface_opacity(int opacity) override { add("opacity ", opacity); }
    bool update(int w, int h) override { return add("update ", w, "x", h), script_.can_be_updated; }
    void enable(GLCapability capability) override { add("enable ", capability); }
    void disable(GLCapability capability) override { add("disable ", capability); }
    void set_color_mask(bool r, bool g, bool b, bool a) override { add("color mask ", r, g, b, a); }
    void set_depth_mask(bool enabled) override { add("depth mask ", enabled); }
    void set_stencil_mask(unsigned bits) override { add("stencil mask ", bits); }
    void set_clear_color(float r, float g, float b, float a) override { add("clear color ", r, g, b, a); }
    void hint_fastest_transform() override { add("fastest transform"); }
    void set_viewport(const Rect& rect) override { add("viewport ", rect); }
    void load_orthographic_projection(double left, double right, double bottom, double top, double near,
                                      double far) override
    {
        add("ortho ", left, " ", right, " ", bottom, " ", top, " ", near, " ", far);
    }
    void reset_model_view() override { add("model view"); }
    void set_scissor(const Rect& rect) override { add("scissor ", rect); }
    void clear_color_buffer() override { add("clear"); }
    void draw_pixels(const ImagePixels& pixels, Point at, const Rect& from) override
    {
        add("draw ", pixels.width, "x", pixels.height, " at ", at.x, ",", at.y, " from ", from);
    }
    void flush() override { add("flush"); }
    ImagePixels read_pixels(const Rect& part) override
    {
        add("read ", part);
        const int w = static_cast<int>(part.width), h = static_cast<int>(part.height);
        return {w, h, std::vector<std::uint8_t>(static_cast<std::size_t>(4 * w * h))};
    }

private:
    static void write(std::ostream& out, const auto& part) { out << part; }
    static void write(std::ostream& out, const Rect& rect)
    {
        out << rect.x << ',' << rect.y << ',' << rect.width << ',' << rect.height;
    }
    static void write(std::ostream& out, GLCapability capability)
    {
        constexpr const char* kNames[] = {"alpha", "depth", "scissor", "blend", "dither", "cull"};
        out << kNames[static_cast<int>(capability)];
    }

    void add(const auto&... parts)
    {
        std::ostringstream out;
        (write(out, parts), ...);
        script_.calls += out.str() + "; ";
    }

    GLScript& script_;
};

} // namespace r7
