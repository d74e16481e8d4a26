// The bar below the panel.
#include "app/status_view.h"

#include "platform/graphics.h"

#include <utility>

namespace r7 {

namespace {

constexpr double kFontSize = 11.0; // as the labels on the plate
constexpr double kLeft = 24.0;     // where the plate's titles begin
constexpr double kGap = 10.0;
constexpr double kTextTop = 18.2; // puts the baseline on a whole point

} // namespace

StatusView::StatusView(const Rect& frame, const Bundle& bundle)
    : View(frame), bar_(bundle.image_resource("status-bar"))
{
}

void StatusView::set_text(StatusText text)
{
    if (text == text_) return;
    text_ = std::move(text);
    set_needs_display();
}

void StatusView::drawRect(Graphics& graphics, const Rect&)
{
    static const ColorRef name_color = Color::device_rgba(0.69, 0.68, 0.66, 1.0);
    static const ColorRef value_color = Color::device_rgba(0.93, 0.92, 0.89, 1.0);
    graphics.draw_image_in_rect(bar_.get(), bounds(), Compositing::copy, 1.0);
    double x = kLeft;
    const auto write = [&](const std::string& text, const ColorRef& color) {
        graphics.draw_text(text, {x, 0.0, bounds().width, kTextTop},
                           {.font_size = kFontSize, .color = color});
        x += width_of_text(text, kFontSize) + kGap;
    };
    write(text_.name, name_color);
    write(text_.value, value_color);
}

} // namespace r7
