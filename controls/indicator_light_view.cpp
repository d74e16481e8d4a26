// What the lamps show.
#include "controls/indicator_light_view.h"

#include "controls/centered_image.h"

#include <algorithm>
#include <utility>

namespace r7 {

void QmIndicatorLightView::set_indicator_state(bool on)
{
    is_on_ = on;
    set_needs_display();
}

void QmIndicatorLightView::set_indicator_image_on_off(ImageRef on, ImageRef off)
{
    indicator_image_on_ = std::move(on);
    indicator_image_off_ = std::move(off);
    set_needs_display();
}

void QmIndicatorLightView::drawRect(Graphics& graphics, const Rect&)
{
    const ImageRef& image = is_on_ && indicator_image_on_ ? indicator_image_on_ : indicator_image_off_;
    draw_centered(graphics, image.get(), bounds());
}

void MultiStateLightView::set_indicator_state(std::int32_t state)
{
    state_ = state;
    set_needs_display();
}

void MultiStateLightView::set_images(std::initializer_list<ImageRef> images)
{
    std::ranges::transform(images, images_, images_.begin(),
                           [](const ImageRef& image, const ImageRef& held) { return image ? image : held; });
}

const Image* MultiStateLightView::image_shown() const
{
    if (state_ < 1) return nullptr;
    const auto index = static_cast<std::size_t>(state_) - 1;
    if (index >= images_.size()) return nullptr;
    // Meant: states 3 to 5 are shown only by a light that has an image for state 2.
    if (state_ >= 3 && state_ <= 5 && !images_[1]) return nullptr;
    return images_[index].get();
}

void MultiStateLightView::drawRect(Graphics& graphics, const Rect&)
{
    draw_centered(graphics, image_shown(), bounds());
}

} // namespace r7
