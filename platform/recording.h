// Drawing that is kept, to be painted later at any scale.
#pragma once

#include "platform/graphics.h"

#include <functional>
#include <vector>

namespace r7 {

/// Notes what is painted on it. Colours, images and texts are kept along, so that nothing of whoever painted
/// needs to live on.
class Recording final : public Graphics {
public:
    Recording() : levels_(1) {}

    /// Paints all of it again.
    void replay_on(Graphics& graphics) const;

    void move_origin_to(Point origin) override;
    void anchor_patterns() override;
    void clip_to(const Rect& rect) override;
    void fill(const Path& path, const Color* color) override;
    void stroke(const Path& path, const Color* color) override;
    void fill_rect(const Rect& rect, const Color* color, Compositing how) override;
    void draw_image(const Image* image, Point origin, Compositing how, double fraction) override;
    void draw_image_in_rect(const Image* image, const Rect& rect, Compositing how, double fraction) override;
    void draw_text(std::string_view utf8, const Rect& rect, const TextAttributes& attributes) override;

protected:
    void save() override { levels_.emplace_back(); }
    void restore() override;

private:
    using Operation = std::function<void(Graphics&)>;
    using Operations = std::vector<Operation>;

    void add(Operation operation) { levels_.back().push_back(std::move(operation)); }

    std::vector<Operations> levels_; // a saved state that ends becomes one operation of the level below
};

} // namespace r7
