// A file descriptor watched by the thread's NSRunLoop: GNUstep's way.
#include "app/cocoa_host/descriptor_watch.h"

#include <cstdint>
#include <memory>
#include <utility>

@interface R7HostWatcher : NSObject <RunLoopEvents> {
@public
    std::unique_ptr<std::function<void()>> readable_; // GCC can name no std::function in an object itself
}
@end

@implementation R7HostWatcher

- (void)receivedEvent:(void*)data type:(RunLoopEventType)type extra:(void*)extra forMode:(NSString*)mode
{
    (void)data, (void)type, (void)extra, (void)mode;
    (*readable_)();
}

@end

namespace r7 {

DescriptorWatch::DescriptorWatch(int descriptor, std::function<void()> readable)
    : descriptor_(reinterpret_cast<void*>(static_cast<std::intptr_t>(descriptor))),
      watcher_([R7HostWatcher new])
{
    static_cast<R7HostWatcher*>(watcher_)->readable_ =
        std::make_unique<std::function<void()>>(std::move(readable));
    [[NSRunLoop currentRunLoop] addEvent:descriptor_
                                    type:ET_RDESC
                                 watcher:watcher_
                                 forMode:NSDefaultRunLoopMode];
}

DescriptorWatch::~DescriptorWatch()
{
    [[NSRunLoop currentRunLoop] removeEvent:descriptor_ type:ET_RDESC forMode:NSDefaultRunLoopMode all:YES];
    [watcher_ release];
}

} // namespace r7
