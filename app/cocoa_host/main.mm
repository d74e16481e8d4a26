// r7_cocoa_host -bundle PATH -origin "{X, Y}": shows the bundle's view, and obeys standard input
// (PanelHost::perform).
#include "app/cocoa_host/descriptor_watch.h"
#include "app/cocoa_host/panel_host.h"
#include "platform/run_loop_file.h"

#include <algorithm>
#include <cstdio>
#include <string>

#include <unistd.h>

using namespace r7;

namespace {

// The keys of a Mac; no icon, which without a window manager would lie in the way.
NSDictionary* settings()
{
    return [NSDictionary dictionaryWithObjectsAndKeys:@"YES", @"GSSuppressAppIcon", @"Alt_L",
                                                      @"GSFirstAlternateKey", @"Super_L",
                                                      @"GSFirstCommandKey", nil];
}

// Takes what can be read now; false at the end of it. Ends the wait for an event, lest the commands are
// performed inside of it.
bool read_commands(std::string& unread)
{
    char piece[4096];
    const auto count = ::read(STDIN_FILENO, piece, sizeof piece);
    unread.append(piece, static_cast<std::size_t>(std::max(count, ssize_t{0})));
    [NSApp postEvent:[NSEvent otherEventWithType:NSApplicationDefined
                                        location:NSZeroPoint
                                   modifierFlags:0
                                       timestamp:0.0
                                    windowNumber:0
                                         context:nil
                                         subtype:0
                                           data1:0
                                           data2:0]
             atStart:NO];
    return count > 0;
}

void serve_one_event()
{
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    [NSApp sendEvent:[NSApp nextEventMatchingMask:NSAnyEventMask
                                        untilDate:[NSDate distantFuture]
                                           inMode:NSDefaultRunLoopMode
                                          dequeue:YES]];
    [pool release];
}

// All of it goes before the pool does.
void run()
{
    NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
    [defaults registerDefaults:settings()];
    PanelHost host([NSBundle bundleWithPath:[defaults stringForKey:@"bundle"]],
                   NSPointFromString([defaults stringForKey:@"origin"]));
    [NSApplication sharedApplication];
    [NSApp finishLaunching];
    [NSApp activateIgnoringOtherApps:YES];

    RunLoopFile toolbox(RunLoop::current());
    const DescriptorWatch toolbox_watch(toolbox.descriptor(), [&] { toolbox.turn(); });
    bool more_to_come = true;
    std::string unread;
    const DescriptorWatch input_watch(STDIN_FILENO, [&] { more_to_come = read_commands(unread); });
    while (more_to_come && !host.is_over()) {
        serve_one_event();
        for (std::size_t end; (end = unread.find('\n')) != std::string::npos; unread.erase(0, end + 1))
            std::puts(host.perform(unread.substr(0, end)).c_str());
        std::fflush(stdout);
    }
}

} // namespace

int main()
{
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    run();
    [pool release];
}
