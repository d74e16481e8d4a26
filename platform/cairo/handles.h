// Owners of Cairo's objects.
#pragma once

#include "platform/cairo/pixels.h"

#include <cairo.h>

#include <memory>
#include <utility>

namespace r7 {

/// Surfaces are shared; never null, but possibly in error.
using SurfaceRef = std::shared_ptr<cairo_surface_t>;

inline SurfaceRef make_surface(cairo_surface_t* owned)
{
    return {owned, cairo_surface_destroy};
}

struct PatternDeleter {
    void operator()(cairo_pattern_t* pattern) const { cairo_pattern_destroy(pattern); }
};
using PatternRef = std::unique_ptr<cairo_pattern_t, PatternDeleter>;

/// A context on a surface. One that is in error is replaced by a fresh one, so that nothing after it is lost:
/// users set whatever they need before each operation.
class CairoContext final {
public:
    explicit CairoContext(SurfaceRef surface)
        : surface_(std::move(surface)), context_(cairo_create(surface_.get()))
    {
    }

    cairo_surface_t* surface() const { return surface_.get(); }

    /// The context, in order, limited to `part` and without a path.
    cairo_t* limited_to(const PixelRect& part)
    {
        if (cairo_status(context_.get()) != CAIRO_STATUS_SUCCESS)
            context_.reset(cairo_create(surface_.get()));
        cairo_t* const cairo = context_.get();
        cairo_reset_clip(cairo);
        cairo_new_path(cairo);
        cairo_rectangle(cairo, part.x, part.y, part.width, part.height);
        cairo_clip(cairo);
        return cairo;
    }

private:
    struct Deleter {
        void operator()(cairo_t* cairo) const { cairo_destroy(cairo); }
    };

    SurfaceRef surface_;
    std::unique_ptr<cairo_t, Deleter> context_;
};

} // namespace r7
