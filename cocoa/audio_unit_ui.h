// The protocol of a class that a host asks for views of Audio Units.
#pragma once

#include "platform/audio_toolbox.h"

#if __has_include(<AudioUnit/AUCocoaUIView.h>)
#import <AudioUnit/AUCocoaUIView.h>
#else
#import <AppKit/AppKit.h>

@protocol AUCocoaUIBase
- (unsigned)interfaceVersion;
- (NSView*)uiViewForAudioUnit:(AudioUnit)inAudioUnit withSize:(NSSize)inPreferredSize;
@end
#endif
