// AppKit under one set of names: GNUstep has the older ones.
#pragma once

#import <AppKit/AppKit.h>

#if defined(GNUSTEP)
inline constexpr bool kOnGNUstep = true;

inline constexpr NSCompositingOperation NSCompositingOperationCopy = NSCompositeCopy;
inline constexpr NSCompositingOperation NSCompositingOperationSourceOver = NSCompositeSourceOver;
inline constexpr NSCompositingOperation NSCompositingOperationDestinationIn = NSCompositeDestinationIn;

inline constexpr NSUInteger NSEventTypeLeftMouseDown = NSLeftMouseDown;
inline constexpr NSUInteger NSEventTypeLeftMouseUp = NSLeftMouseUp;
inline constexpr NSUInteger NSEventTypeLeftMouseDragged = NSLeftMouseDragged;
inline constexpr NSUInteger NSEventTypeRightMouseDown = NSRightMouseDown;
inline constexpr NSUInteger NSEventTypeRightMouseUp = NSRightMouseUp;
inline constexpr NSUInteger NSEventTypeRightMouseDragged = NSRightMouseDragged;

inline constexpr NSUInteger NSEventModifierFlagShift = NSShiftKeyMask;
inline constexpr NSUInteger NSEventModifierFlagControl = NSControlKeyMask;
inline constexpr NSUInteger NSEventModifierFlagOption = NSAlternateKeyMask;
#else
inline constexpr bool kOnGNUstep = false;
#endif
