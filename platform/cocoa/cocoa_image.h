// Images as AppKit paints them.
#pragma once

#include "platform/cocoa/appkit_compat.h"
#include "platform/cocoa/objc_ptr.h"
#include "platform/image.h"

namespace r7 {

/// What every image of this back end is.
class CocoaImage final : public Image {
public:
    explicit CocoaImage(ObjCPtr<NSImage> native) : native_(std::move(native)) {}

    Size size() const override
    {
        const NSSize size = [native_.get() size];
        return {size.width, size.height};
    }
    NSImage* native() const { return native_.get(); }

    static const CocoaImage& of(const Image& image) { return static_cast<const CocoaImage&>(image); }

private:
    ObjCPtr<NSImage> native_;
};

} // namespace r7
