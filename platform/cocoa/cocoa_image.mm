// Images: pictures read from files, and drawing that is done anew for every size.
#include "platform/cocoa/cocoa_image.h"

#include "platform/cocoa/cocoa_graphics.h"
#include "platform/cocoa/conversions.h"
#include "platform/png_file.h"
#include "platform/recording.h"

/// Draws a recording, at whatever size it is wanted.
@interface QmR7DrawnImageRep : NSImageRep {
@private
    std::shared_ptr<const r7::Recording> recording_;
}
- (id)initWithRecording:(std::shared_ptr<const r7::Recording>)recording size:(NSSize)size;
@end

@implementation QmR7DrawnImageRep

- (id)initWithRecording:(std::shared_ptr<const r7::Recording>)recording size:(NSSize)size
{
    self = [super init];
    if (!self) return nil;
    recording_ = std::move(recording);
    [self setSize:size];
    [self setAlpha:YES];
    return self;
}

- (BOOL)draw
{
    r7::CocoaGraphics graphics;
    recording_->replay_on(graphics);
    return YES;
}

// It never changes. (The inherited copy is one of bytes, which a C++ member does not survive.)
- (id)copyWithZone:(NSZone*)zone
{
    (void)zone;
    return [self retain];
}

@end

namespace r7 {

namespace {

// The picture of a file, one pixel a point whatever resolution the file claims, or null.
ObjCPtr<NSBitmapImageRep> read_png(const std::filesystem::path& path)
{
    if (!open_png_file(path)) return {};
    NSData* const data = [NSData dataWithContentsOfFile:to_native(path.native())];
    if (!data) return {};
    auto picture = ObjCPtr<NSBitmapImageRep>::share([NSBitmapImageRep imageRepWithData:data]);
    [picture.get() setSize:NSMakeSize(static_cast<CGFloat>([picture.get() pixelsWide]),
                                      static_cast<CGFloat>([picture.get() pixelsHigh]))];
    return picture;
}

bool has_twice_the_pixels(const NSBitmapImageRep* twin, const NSBitmapImageRep* picture)
{
    return [twin pixelsWide] == 2 * [picture pixelsWide] && [twin pixelsHigh] == 2 * [picture pixelsHigh];
}

ImageRef image_of(NSImageRep* picture, NSImageRep* larger)
{
    const auto image = ObjCPtr<NSImage>::adopt([[NSImage alloc] initWithSize:[picture size]]);
    [image.get() addRepresentation:picture];
    if (larger) {
        [larger setSize:[picture size]];
        [image.get() addRepresentation:larger];
    }
    return std::make_shared<CocoaImage>(image);
}

} // namespace

ImageRef Image::from_png_file(const std::filesystem::path& path)
{
    const auto picture = read_png(path);
    if (!picture) return nullptr;
    // GNUstep draws one pixel a point, and would shrink the larger picture to it.
    auto larger = kOnGNUstep ? ObjCPtr<NSBitmapImageRep>() : read_png(twice_as_large(path));
    if (larger && !has_twice_the_pixels(larger.get(), picture.get())) larger = {};
    return image_of(picture.get(), larger.get());
}

ImageRef Image::painted(Size size, const std::function<void(Graphics&)>& paint)
{
    const auto acceptable = [](double side) { return side > 0.0 && side <= kMostImagePixels; };
    if (!acceptable(size.width) || !acceptable(size.height)) return nullptr;
    auto recording = std::make_shared<Recording>();
    paint(*recording);
    const auto drawn = ObjCPtr<QmR7DrawnImageRep>::adopt([[QmR7DrawnImageRep alloc]
        initWithRecording:std::move(recording)
                     size:NSMakeSize(size.width, size.height)]);
    return image_of(drawn.get(), nil);
}

} // namespace r7
