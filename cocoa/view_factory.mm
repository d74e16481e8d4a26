// The view factory of the bundle.
#include "cocoa/view_factory.h"

#include "cocoa/panel_view.h"
#include "host/view_factory.h"
#include "platform/cocoa/conversions.h"

@implementation QmR7ViewFactory

- (unsigned)interfaceVersion
{
    return 0;
}

- (NSString*)description
{
    return r7::to_native("Quillmere: R7");
}

- (NSView*)uiViewForAudioUnit:(AudioUnit)unit withSize:(NSSize)preferredSize
{
    // One for the process, so that all panels share their images.
    static const auto resources = std::make_shared<const r7::Bundle>(
        [[[NSBundle bundleForClass:[self class]] resourcePath] UTF8String]);
    const auto panel = r7::QmR7ViewFactory(resources).uiViewForAudioUnit_withSize(
        unit, {preferredSize.width, preferredSize.height});
    return panel ? [[[QmR7View alloc] initWithPanel:panel] autorelease] : nil;
}

@end
