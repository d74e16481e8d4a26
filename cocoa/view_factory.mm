// The view factory of the bundle.
#include "cocoa/view_factory.h"

#include "cocoa/panel_view.h"
#include "host/view_factory.h"
#include "platform/cocoa/conversions.h"

namespace {

// One for the process, so that all panels share their images.
r7::QmR7ViewFactory& shared_factory()
{
    static r7::QmR7ViewFactory factory(std::make_shared<const r7::Bundle>(
        r7::from_native([[NSBundle bundleForClass:[QmR7ViewFactory class]] resourcePath])));
    return factory;
}

} // namespace

@implementation QmR7ViewFactory

- (unsigned)interfaceVersion
{
    return shared_factory().interfaceVersion();
}

- (NSString*)description
{
    return r7::to_native(shared_factory().description());
}

- (NSView*)uiViewForAudioUnit:(AudioUnit)unit withSize:(NSSize)preferredSize
{
    const auto panel =
        shared_factory().uiViewForAudioUnit_withSize(unit, {preferredSize.width, preferredSize.height});
    return panel ? [[[QmR7View alloc] initWithPanel:panel] autorelease] : nil;
}

@end
