// What the painted text does with its OpenGL context that no picture shows.
#include "platform/cairo/image_pixels.h"
#include "platform/gl_state.h"
#include "tests/painted_text/painted_text_rig.h"

namespace r7 {
namespace {

/// What the context does, and what has been done with it.
struct GLScript {
    bool can_be_current, can_be_updated;
    std::string calls{}; ///< each with "; " behind it
    int contexts = 0;    ///< that are open
};

class RecordingGLState final : public GLState {
public:
    explicit RecordingGLState(GLScript& script) : script_(script) { ++script_.contexts; }
    ~RecordingGLState() override { --script_.contexts; }

    bool make_current() override { return add("current"), script_.can_be_current; }
    void resign_current() override { add("resign"); }
    void set_swap_interval(int refreshes) override { add("swap " + text_of(refreshes)); }
    void set_surface_opacity(int opacity) override { add("opacity " + text_of(opacity)); }
    bool update(int width, int height) override
    {
        add("update " + text_of(width) + "x" + text_of(height));
        return script_.can_be_updated;
    }
    void flush() override { add("flush"); }
    ImagePixels read_pixels(const Rect& part) override
    {
        const int w = static_cast<int>(part.width), h = static_cast<int>(part.height);
        add("read " + text_of(w) + "x" + text_of(h));
        return {w, h, std::vector<std::uint8_t>(static_cast<std::size_t>(4 * w * h))};
    }

    // The picture shows what these do.
    void enable(GLCapability) override {}
    void disable(GLCapability) override {}
    void set_color_mask(bool, bool, bool, bool) override {}
    void set_depth_mask(bool) override {}
    void set_stencil_mask(unsigned) override {}
    void set_clear_color(float, float, float, float) override {}
    void hint_fastest_transform() override {}
    void set_viewport(const Rect&) override {}
    void load_orthographic_projection(double, double, double, double, double, double) override {}
    void reset_model_view() override {}
    void set_scissor(const Rect&) override {}
    void clear_color_buffer() override {}
    void draw_pixels(const ImagePixels&, Point, const Rect&) override {}

private:
    void add(const std::string& call) { script_.calls += call + "; "; }

    GLScript& script_;
};

// In a window, and where it paints the image alone: outside of any, and where the context fails or the bounds
// are none for it, which is then given up.
TEST(PaintedTextGL, OpensItsContextOnceAndGivesUpOneThatFails)
{
    const std::string prepared = "current; swap 1; opacity 0; ", unused = prepared + "resign; ";
    const char* const by_opengl = "draw_image 4x4 at 1,2 over 1";
    const char* const alone = "save; clip_to 1,2,4,4; draw_image 100x40 at 0,0 over 1; restore";
    const char* const none = "save; clip_to 1,2,4,4; draw_image none at 0,0 over 1; restore";
    const struct {
        double width;
        bool in_window, can_be_current, can_be_updated;
        std::string first_draw, later_draws;
        const char* painted;
        int contexts_kept;
    } cases[] = {
        {100, true, true, true, prepared + "update 100x40; flush; read 4x4; resign; ",
         "current; flush; read 4x4; resign; ", by_opengl, 1},
        {100, false, true, true, unused, "current; resign; ", alone, 1},
        {100, true, false, true, "current; ", "", alone, 0},
        {100, true, true, false, prepared + "update 100x40; resign; ", "", alone, 0},
        {4097, true, true, true, unused, "", none, 0},
    };
    for (const auto& c : cases) {
        GLScript script{c.can_be_current, c.can_be_updated};
        int openings = 0;
        PaintedTextRig rig({c.width, 40}, [&](const GLPixelFormat& format) {
            ++openings;
            EXPECT_TRUE(format.accelerated && format.no_recovery && format.color_size == 32);
            return std::make_unique<RecordingGLState>(script);
        });
        if (!c.in_window) rig.view->remove_from_superview();
        rig.view->set_text_string("text");
        EXPECT_EQ(openings, 0) << "before anything is drawn";
        for (const std::string& calls : {c.first_draw, c.later_draws, c.later_draws}) {
            RecordingGraphics graphics;
            rig.view->drawRect(graphics, {1.5, 2, 3, 4});
            EXPECT_EQ(std::exchange(script.calls, {}), calls);
            EXPECT_EQ(graphics.words(), c.painted);
        }
        EXPECT_EQ(openings, 1);
        EXPECT_EQ(script.contexts, c.contexts_kept);
    }
}

} // namespace
} // namespace r7
