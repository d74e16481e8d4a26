// The view that a host is given.
#include "cocoa/panel_view.h"

#include "platform/cocoa/conversions.h"

#include <utility>

@interface QmR7View (Private)
- (void)showPanelAnew;
@end

@implementation QmR7View

- (id)initWithPanel:(std::shared_ptr<r7::QmR7View>)panel
{
    self = [super initWithFrame:r7::to_native(panel->frame())];
    if (!self) return nil;
    panel_ = std::move(panel);
    [self showPanelAnew];
    return self;
}

// The panel leaves its window while that still stands over its NSWindow, and closes its editor.
- (void)showPanelAnew
{
    const auto window = std::make_shared<r7::Window>(panel_->frame());
    window->set_content_view(panel_);
    [self showWindow:window];
}

- (void)viewWillMoveToWindow:(NSWindow*)window
{
    [super viewWillMoveToWindow:window];
    if (panel_) [self showPanelAnew];
}

- (void)dealloc
{
    // Before the C++ members go by themselves, which is after everything else of this object.
    [self showNothing];
    panel_.reset();
    [super dealloc];
}

@end
