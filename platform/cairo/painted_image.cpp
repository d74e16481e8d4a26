// Images painted by code.
#include "platform/cairo/cairo_graphics.h"
#include "platform/cairo/cairo_image.h"
#include "platform/recording.h"

#include <mutex>

namespace r7 {

namespace {

// A recording, and its pixels at the scale that was asked for last.
class PaintedImage final : public CairoImage {
public:
    PaintedImage(Size size, const std::function<void(Graphics&)>& paint) : size_(size) { paint(recording_); }

    Size size() const override { return size_; }

    Raster raster(double pixels_per_point) const override
    {
        // An image stretched beyond all screens is none the better for more pixels.
        const double most = 2.0 * kMostImagePixels / std::max(size_.width, size_.height);
        const double wanted = std::min(pixels_per_point, most);
        const std::lock_guard lock(mutex_);
        if (!raster_.surface || raster_.pixels_per_point != wanted) raster_ = rendered(wanted);
        return raster_;
    }

private:
    Raster rendered(double pixels_per_point) const
    {
        const Raster raster{make_picture(size_, pixels_per_point), pixels_per_point};
        CairoGraphics graphics(raster.surface, pixels_per_point);
        recording_.replay_on(graphics);
        return raster;
    }

    Size size_;
    Recording recording_;
    mutable std::mutex mutex_;
    mutable Raster raster_; // a cache
};

} // namespace

ImageRef Image::painted(Size size, const std::function<void(Graphics&)>& paint)
{
    const auto acceptable = [](double side) { return side > 0.0 && side <= kMostImagePixels; };
    if (!acceptable(size.width) || !acceptable(size.height)) return nullptr;
    return std::make_shared<PaintedImage>(size, paint);
}

} // namespace r7
