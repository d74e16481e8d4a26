// What the painted text does with its OpenGL context, call by call.
#include "tests/painted_text/painted_text_rig.h"
#include "tests/painted_text/recording_gl_state.h"

namespace r7 {
namespace {

constexpr char kPrepared[] =
    "current; swap 1; opacity 0; disable alpha; disable depth; disable scissor; disable blend; disable "
    "dither; "
    "disable cull; color mask 1111; depth mask 0; stencil mask 0; clear color 0000; fastest transform; ";

template <typename PaintedText = QmR7PaintedTextView>
struct GLRig {
    GLScript script;
    int openings = 0;
    PaintedTextRig<PaintedText> rig{{100, 40}, [this](const GLPixelFormat& format) {
                                        ++openings;
                                        EXPECT_TRUE(format.accelerated && format.no_recovery);
                                        EXPECT_EQ(format.color_size, 32);
                                        return std::make_unique<RecordingGLState>(script);
                                    }};
    std::string painted; // by the last draw

    std::string calls_of_draw(const Rect& dirty)
    {
        RecordingGraphics graphics;
        rig.view->drawRect(graphics, dirty);
        painted = graphics.words();
        return std::exchange(script.calls, {});
    }
};

TEST(PaintedTextGL, DrawsInTheOrderOfItsSteps)
{
    GLRig gl;
    gl.rig.view->set_text_string("text");
    EXPECT_EQ(gl.openings, 0) << "before anything is drawn";
    EXPECT_EQ(gl.calls_of_draw({0, 0, 100, 40}).substr(sizeof kPrepared - 1),
              "update 100x40; viewport 0,0,100,40; ortho 0 100 0 40 -1 1; model view; scissor 0,0,100,40; "
              "enable scissor; clear; draw 100x40 at 0,0 from 0,0,100,40; disable scissor; flush; "
              "read 0,0,100,40; resign; ");
    EXPECT_EQ(gl.painted, "draw_image 100x40 at 0,0 over 1");
    // A part is rounded outward; what is drawn is one point larger, but not larger than the view.
    EXPECT_EQ(gl.calls_of_draw({10.5, 20, 4, 19.75}),
              "current; scissor 10,20,5,20; enable scissor; clear; draw 100x40 at 9,19 from 9,19,7,21; "
              "disable scissor; flush; read 10,20,5,20; resign; ");
    EXPECT_EQ(gl.painted, "draw_image 5x20 at 10,20 over 1");
    gl.rig.view->set_frame({0, 0, 50.5, 20});
    EXPECT_EQ(
        gl.calls_of_draw({0, 0, 1, 1}),
        "current; update 51x20; viewport 0,0,51,20; ortho 0 50.5 0 20 -1 1; model view; scissor 0,0,1,1; "
        "enable scissor; clear; draw 100x40 at 0,0 from 0,0,2,2; disable scissor; flush; read 0,0,1,1; "
        "resign; ");
    gl.rig.view->setImage(Image::painted({5, 5}, [](Graphics&) {}));
    EXPECT_NE(gl.calls_of_draw({2, 2, 9, 9}).find("draw 5x5 at 1,1 from 1,1,4,4; "), std::string::npos);
    gl.rig.view->setImage(nullptr);
    EXPECT_EQ(gl.calls_of_draw({2, 2, 9, 9}).find("draw"), std::string::npos);
    EXPECT_EQ(gl.openings, 1);
}

struct SelfDrawingView final : QmR7PaintedTextView {
    using QmR7PaintedTextView::QmR7PaintedTextView;
    std::vector<Rect> rects;
    bool drawRect_inCIContext(const Rect& rect, ImageContext&) override
    {
        return rects.push_back(rect), true;
    }
};

TEST(PaintedTextGL, LetsAClassOfItsOwnDraw)
{
    GLRig<SelfDrawingView> gl;
    gl.calls_of_draw({0, 0, 100, 40});
    EXPECT_EQ(gl.calls_of_draw({5, 5, 1, 1}), "current; scissor 5,5,1,1; enable scissor; clear; "
                                              "disable scissor; flush; read 5,5,1,1; resign; ");
    gl.rig.view->remove_from_superview();
    EXPECT_EQ(gl.calls_of_draw({5, 5, 1, 1}), "current; resign; ");
    EXPECT_EQ(gl.painted, "");
    EXPECT_EQ(gl.rig.view->rects, (std::vector<Rect>{{0, 0, 100, 40}, {4, 4, 3, 3}, {5, 5, 1, 1}}));
}

// Outside of any window, and where the context fails, which is then given up.
TEST(PaintedTextGL, PaintsTheImageAloneWhereItDoesNotDraw)
{
    const struct {
        bool in_window, can_be_current, can_be_updated;
        std::string first_draw, later_draws;
    } cases[] = {
        {false, true, true, std::string(kPrepared) + "resign; ", "current; resign; "},
        {true, false, true, "current; ", ""},
        {true, true, false, std::string(kPrepared) + "update 100x40; resign; ", ""},
    };
    for (const auto& c : cases) {
        GLRig gl;
        if (!c.in_window) gl.rig.view->remove_from_superview();
        gl.script.can_be_current = c.can_be_current;
        gl.script.can_be_updated = c.can_be_updated;
        gl.rig.view->set_text_string("text");
        for (const std::string& calls : {c.first_draw, c.later_draws}) {
            EXPECT_EQ(gl.calls_of_draw({1.5, 2, 3, 4}), calls);
            EXPECT_EQ(gl.painted, "save; clip_to 1,2,4,4; draw_image 100x40 at 0,0 over 1; restore");
        }
        EXPECT_EQ(gl.openings, 1);
        EXPECT_EQ(gl.script.contexts, c.in_window ? 0 : 1);
    }
}

} // namespace
} // namespace r7
