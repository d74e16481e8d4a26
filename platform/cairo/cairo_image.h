// Images as Cairo paints them.
#pragma once

#include "platform/cairo/handles.h"
#include "platform/image.h"

namespace r7 {

/// What every image of this back end is: pixels, for any scale that is asked for.
class CairoImage : public Image {
public:
    /// Pixels of the whole image, anchored at its lower left corner.
    struct Raster {
        SurfaceRef surface;
        double pixels_per_point = 1.0;

        int width() const { return cairo_image_surface_get_width(surface.get()); }
        int height() const { return cairo_image_surface_get_height(surface.get()); }
    };

    /// The pixels that suit a point which is `pixels_per_point` pixels wide on the screen. Their own number
    /// of pixels for a point may differ from it. Safe from any thread.
    virtual Raster raster(double pixels_per_point) const = 0;

    static const CairoImage& of(const Image& image) { return static_cast<const CairoImage&>(image); }
};

} // namespace r7
