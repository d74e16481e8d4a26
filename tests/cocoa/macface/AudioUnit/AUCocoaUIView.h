// A Mac's protocol of view factories.
#pragma once

#import <AppKit/AppKit.h>

#include <AudioToolbox/AudioToolbox.h>

@protocol AUCocoaUIBase
- (unsigned)interfaceVersion;
- (NSView*)uiViewForAudioUnit:(AudioUnit)inAudioUnit withSize:(NSSize)inPreferredSize;
@end
