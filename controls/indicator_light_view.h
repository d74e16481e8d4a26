// The lamps: of two, five and ten states, each shown by an image of its own.
#pragma once

#include "platform/image.h"
#include "platform/view.h"

#include <cstdint>
#include <initializer_list>
#include <vector>

namespace r7 {

/// Shows one of two images, unscaled, in the middle of the view. Takes no events.
class QmIndicatorLightView final : public View {
public:
    explicit QmIndicatorLightView(const Rect& frame) : View(frame) {}

    /// Whether the light is on; a new one is off.
    bool indicator_state() const { return is_on_; }

    void set_indicator_state(bool on);
    /// Replaces both images; a null one empties its slot. A light without `on` shows `off` instead, one
    /// without `off` shows nothing while it is off.
    void set_indicator_image_on_off(ImageRef on, ImageRef off);

    void drawRect(Graphics& graphics, const Rect& dirty) override;

private:
    ImageRef indicator_image_on_;
    ImageRef indicator_image_off_;
    bool is_on_ = false;
};

/// What the lamps of several states have in common: one image a state, shown unscaled in the middle of the
/// view. Takes no events.
class MultiStateLightView : public View {
public:
    /// States are numbered from 1, where a new light starts.
    std::int32_t indicator_state() const { return state_; }

    /// Any number; a light paints nothing in a state that it does not have, nor in states 3 to 5 while it has
    /// no image for state 2.
    void set_indicator_state(std::int32_t state);

    void drawRect(Graphics& graphics, const Rect& dirty) override;

protected:
    MultiStateLightView(const Rect& frame, std::size_t states) : View(frame), images_(states) {}

    /// Stores the images from state 1 on; a null one leaves its state's image as it is. Requests no redraw.
    void set_images(std::initializer_list<ImageRef> images);

private:
    const Image* image_shown() const;

    std::vector<ImageRef> images_;
    std::int32_t state_ = 1;
};

class QmR7FiveStateIndicatorLightView final : public MultiStateLightView {
public:
    explicit QmR7FiveStateIndicatorLightView(const Rect& frame) : MultiStateLightView(frame, 5) {}

    /// A null image leaves its state's image as it is. Requests no redraw.
    void set_indicator_image_one_two_three_four_five(const ImageRef& one, const ImageRef& two,
                                                     const ImageRef& three, const ImageRef& four,
                                                     const ImageRef& five)
    {
        set_images({one, two, three, four, five});
    }
};

class QmR7TenStateIndicatorLightView final : public MultiStateLightView {
public:
    explicit QmR7TenStateIndicatorLightView(const Rect& frame) : MultiStateLightView(frame, 10) {}

    /// A null image leaves its state's image as it is. Requests no redraw.
    void set_indicator_image_one_two_three_four_five_six_seven_eight_nine_ten(
        const ImageRef& one, const ImageRef& two, const ImageRef& three, const ImageRef& four,
        const ImageRef& five, const ImageRef& six, const ImageRef& seven, const ImageRef& eight,
        const ImageRef& nine, const ImageRef& ten)
    {
        set_images({one, two, three, four, five, six, seven, eight, nine, ten});
    }
};

} // namespace r7
