// What a host finds in the bundle: it asks the class `QmR7ViewFactory` for views.
#pragma once

#include "cocoa/audio_unit_ui.h"

@class QmR7View;

/// Makes panels, as r7::QmR7ViewFactory does, from the resources of the bundle that this class is in.
@interface QmR7ViewFactory : NSObject <AUCocoaUIBase>

/// "Quillmere: R7".
- (NSString*)description;

@end
