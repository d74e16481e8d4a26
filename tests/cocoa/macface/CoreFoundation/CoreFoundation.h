// What the panel uses of a Mac's Core Foundation.
#pragma once

extern "C" {

typedef signed int SInt32;
typedef unsigned int UInt32;
typedef unsigned long long UInt64;
typedef float Float32;
typedef SInt32 OSStatus;

typedef const struct __CFString* CFStringRef;
typedef struct __CFRunLoop* CFRunLoopRef;
typedef CFStringRef CFRunLoopMode;

extern const CFRunLoopMode kCFRunLoopDefaultMode;
CFRunLoopRef CFRunLoopGetCurrent(void);
}
