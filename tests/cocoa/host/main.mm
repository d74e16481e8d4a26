// r7_cocoa_host -bundle PATH -origin "X Y": shows the bundle's view, and obeys standard input
// (PanelHost::perform).
#include "platform/run_loop_file.h"
#include "tests/cocoa/host/descriptor_watch.h"
#include "tests/cocoa/host/panel_host.h"

#include <cstdio>

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

// What can be read now, of which whole lines are performed. False at the end of it.
bool obey(PanelHost& host, std::string& unread)
{
    char piece[4096];
    const auto count = ::read(STDIN_FILENO, piece, sizeof piece);
    if (count <= 0) return false;
    unread.append(piece, static_cast<std::size_t>(count));
    for (std::size_t end; (end = unread.find('\n')) != std::string::npos; unread.erase(0, end + 1))
        std::puts(host.perform(unread.substr(0, end)).c_str());
    std::fflush(stdout);
    return !host.is_over();
}

} // namespace

int main()
{
    NSAutoreleasePool* pool = [NSAutoreleasePool new];
    NSUserDefaults* const defaults = [NSUserDefaults standardUserDefaults];
    [defaults registerDefaults:settings()];
    PanelHost host([NSBundle bundleWithPath:[defaults stringForKey:@"bundle"]],
                   NSPointFromString([defaults stringForKey:@"origin"]));
    [NSApplication sharedApplication];
    [NSApp finishLaunching];
    [NSApp activateIgnoringOtherApps:YES];

    RunLoopFile toolbox(RunLoop::current());
    const DescriptorWatch toolbox_watch(toolbox.descriptor(), [&] { toolbox.turn(); });
    bool over = false;
    std::string unread;
    const DescriptorWatch input_watch(STDIN_FILENO, [&] { over = !obey(host, unread); });
    while (!over) {
        [pool release];
        pool = [NSAutoreleasePool new];
        // An event, or nothing for a while: what is watched is served meanwhile, and ends no wait.
        NSEvent* const event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                                  untilDate:[NSDate dateWithTimeIntervalSinceNow:0.1]
                                                     inMode:NSDefaultRunLoopMode
                                                    dequeue:YES];
        if (event) [NSApp sendEvent:event];
    }
    [pool release];
}
