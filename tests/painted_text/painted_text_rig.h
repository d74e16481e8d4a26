// A painted text in a window without a display.
#pragma once

#include "controls/painted_text_view.h"
#include "platform/offscreen/offscreen_window.h"
#include "tests/support/recording_graphics.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <span>

namespace r7 {

inline std::unique_ptr<GLState> no_context(const GLPixelFormat&)
{
    return nullptr;
}

/// The view at (10, 10) of the window, by default without an OpenGL context.
template <typename PaintedText = QmR7PaintedTextView>
struct PaintedTextRig {
    explicit PaintedTextRig(Size size = {200, 60}, GLOpener opener = no_context,
                            const std::filesystem::path& resources = R7_RESOURCES)
        : view(std::make_shared<PaintedText>(Rect{10, 10, size.width, size.height}, Bundle(resources),
                                             std::move(opener)))
    {
        const auto root = std::make_shared<View>(Rect{0, 0, 220, 80});
        root->add_subview(view);
        screen.window().set_content_view(root);
    }

    /// Whether anything was to be redrawn since the last question.
    bool redraw_requested() { return !screen.window().take_dirty_region().is_empty(); }

    /// The window's pixels as premultiplied ARGB, after everything that was asked to be redrawn.
    std::span<const std::uint32_t> pixels()
    {
        const auto bytes = screen.picture().pixels();
        return {reinterpret_cast<const std::uint32_t*>(bytes.data()), bytes.size() / 4};
    }
    bool shows_something()
    {
        return !std::ranges::all_of(pixels(), [](std::uint32_t p) { return p == 0xFF000000; });
    }

    OffscreenWindow screen{{0, 0, 220, 80}, 1.0};
    std::shared_ptr<PaintedText> view;
};

} // namespace r7
