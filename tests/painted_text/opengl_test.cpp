// The picture by OpenGL itself. This test is run in several environments: see CMakeLists.txt.
#include "tests/painted_text/painted_text_rig.h"

#include <dlfcn.h>

#include <cstdlib>
#include <fstream>
#include <iterator>

namespace r7 {
namespace {

bool is_loaded(const char* library)
{
    std::ifstream maps("/proc/self/maps");
    const std::string text{std::istreambuf_iterator<char>(maps), {}};
    return text.find(library) != std::string::npos;
}

struct WatchedView final : QmR7PaintedTextView {
    using QmR7PaintedTextView::QmR7PaintedTextView;
    std::vector<Rect> drawn_by_opengl;
    bool draws_itself = false;

    // With the context current; its errors are those of the draws before, too.
    bool drawRect_inCIContext(const Rect& rect, ImageContext&) override
    {
        void* const function = dlsym(dlopen("libEGL.so.1", RTLD_NOW), "eglGetProcAddress");
        void* const get_error = reinterpret_cast<void* (*)(const char*)>(function)("glGetError");
        EXPECT_EQ(reinterpret_cast<unsigned (*)()>(get_error)(), 0u);
        drawn_by_opengl.push_back(rect);
        return draws_itself;
    }
};

// A red text, a part of which has been painted over in gold.
template <typename View>
std::vector<std::uint32_t> painted(PaintedTextRig<View>& rig)
{
    rig.view->set_text_font_size_paint_color_height_scale_shade_scale(
        "Painted", 40, Color::device_rgba(1, 0.7, 0.2, 0.9), 8, 18);
    const ImageRef gold = rig.view->image();
    rig.view->set_paint_color(Color::device_rgba(0.9, 0.1, 0.1, 1));
    rig.pixels();
    rig.pixels(); // the first asks for another, for the image follows the bounds
    rig.view->setImage_dirtyRect(gold, {60.5, 27, 60, 18});
    const auto pixels = rig.pixels();
    return {pixels.begin(), pixels.end()};
}

TEST(PaintedTextOpenGL, GivesThePictureOfTheImageAndIsLoadedLate)
{
    PaintedTextRig alone;
    const std::vector<std::uint32_t> expected = painted(alone);
    EXPECT_FALSE(is_loaded("libEGL") || is_loaded("libGL"));
    PaintedTextRig<WatchedView> rig({200, 60}, open_gl_state);
    testing::internal::CaptureStderr();
    const std::vector<std::uint32_t> drawn = painted(rig);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    const bool has_driver = !std::getenv("__EGL_VENDOR_LIBRARY_FILENAMES");
    // The rounding of colours is OpenGL's own affair.
    for (std::size_t i = 0; i < expected.size(); ++i)
        for (const int shift : {0, 8, 16, 24})
            ASSERT_NEAR(static_cast<double>(drawn[i] >> shift & 0xFF),
                        static_cast<double>(expected[i] >> shift & 0xFF), 1.0)
                << "pixel " << i;

    rig.view->draws_itself = true;
    rig.view->set_needs_display();
    EXPECT_EQ(rig.shows_something(), !has_driver) << "leaves all to the view's class";
    rig.view->remove_from_superview();
    RecordingGraphics graphics;
    rig.view->drawRect(graphics, {5, 5, 1, 1});
    EXPECT_EQ(graphics.calls.empty(), has_driver);
    // A part in the window is one point larger all around, but not larger than the view.
    const Rect all = rig.view->bounds();
    const std::vector<Rect> rects{all, all, {59, 26, 63, 20}, all, {5, 5, 1, 1}};
    EXPECT_EQ(rig.view->drawn_by_opengl, has_driver ? rects : std::vector<Rect>{});
}

} // namespace
} // namespace r7
