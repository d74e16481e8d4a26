// A host of the view bundle.
#include "app/cocoa_host/panel_host.h"

#include "app/number_text.h"
#include "cocoa/audio_unit_ui.h"

#include <sstream>
#include <thread>

namespace r7 {

namespace {

Transcript* log_receiver = nullptr;

// One line of NSLog: the time and the process in front are nobody's concern here, nor is the absence of a
// window manager.
void receive_log(NSString* message)
{
    std::string text([message UTF8String]);
    text.erase(0, text.find("] ") + 2);
    text.erase(text.find_last_not_of('\n') + 1);
    if (!text.starts_with("Failed to determine offsets")) log_receiver->line("log " + text);
}

// A question to the display: when it is answered, the display has done what it was asked to, and all events
// that it sent before are here.
void ask_display()
{
    [NSEvent mouseLocation];
}

void handle_waiting_events()
{
    ask_display();
    while (NSEvent* event = [NSApp nextEventMatchingMask:NSAnyEventMask
                                               untilDate:[NSDate distantPast]
                                                  inMode:NSDefaultRunLoopMode
                                                 dequeue:YES])
        [NSApp sendEvent:event];
}

} // namespace

PanelHost::PanelHost(NSBundle* bundle, NSPoint origin) : bundle_([bundle retain]), origin_(origin)
{
    transcript_.begin(overlay);
    log_receiver = &transcript_;
    _NSLog_printf_handler = receive_log;
}

PanelHost::~PanelHost()
{
    release_view();
    [bundle_ release];
    _NSLog_printf_handler = nullptr;
}

std::string PanelHost::perform(std::string_view command)
{
    std::istringstream words{std::string(command)};
    std::string verb, first, second, problem;
    words >> verb >> first >> second;
    NSAutoreleasePool* const pool = [NSAutoreleasePool new];
    handle_waiting_events();
    if (verb == "open")
        problem = open();
    else if (verb == "automate")
        problem = automate(first, second);
    else if (verb == "events")
        transcript_.set_prints_events(true);
    else if (verb == "picture")
        problem = write_picture(first);
    else if (verb == "release" && first == "view")
        problem = release_view();
    else if (verb == "release" && first == "unit")
        unit_.reset();
    else if (verb == "quit")
        is_over_ = true;
    else if (verb != "settle")
        problem = "there is no such command";
    [pool release];
    transcript_.note_overlay();
    ask_display();
    return problem.empty() ? "done" : "failed " + problem;
}

std::string PanelHost::open()
{
    if (window_) return "a view is open";
    if (!unit_) unit_ = EmbeddedUnit::create(&transcript_);
    NSObject<AUCocoaUIBase>* const factory = [[[[bundle_ principalClass] alloc] init] autorelease];
    if (!factory) return "the bundle has no principal class";
    if ([factory interfaceVersion] != 0) return "the interface is of another version";
    NSView* const view = [factory uiViewForAudioUnit:unit_->handle() withSize:NSMakeSize(0.0, 0.0)];
    if (!view) return "there is no view";
    window_ = [[NSWindow alloc] initWithContentRect:NSMakeRect(origin_.x, origin_.y, [view bounds].size.width,
                                                               [view bounds].size.height)
                                          styleMask:NSTitledWindowMask
                                            backing:NSBackingStoreBuffered
                                              defer:NO];
    [window_ setReleasedWhenClosed:NO];
    [window_ setTitle:[factory description]];
    [window_ setContentView:view];
    [window_ makeKeyAndOrderFront:nil];
    // Longer than a view waits for the values that it asked the unit to announce.
    [[NSRunLoop currentRunLoop] runUntilDate:[NSDate dateWithTimeIntervalSinceNow:0.1]];
    return {};
}

std::string PanelHost::automate(std::string_view id, std::string_view value)
{
    const auto parameter = number_from<AudioUnitParameterID>(id);
    const auto taken = number_from<float>(value);
    if (!unit_ || !parameter || !taken) return "there is no unit, or no such parameter or value";
    std::thread([&] { unit_->automate(*parameter, *taken); }).join();
    return {};
}

std::string PanelHost::write_picture(std::string_view file) const
{
    NSView* const view = [window_ contentView];
    NSBitmapImageRep* const picture = [view bitmapImageRepForCachingDisplayInRect:[view bounds]];
    [view cacheDisplayInRect:[view bounds] toBitmapImageRep:picture];
    NSString* const path = [NSString stringWithUTF8String:std::string(file).c_str()];
    NSData* const data = [picture representationUsingType:NSPNGFileType properties:nil];
    return [data writeToFile:path atomically:NO] ? "" : "the picture cannot be written";
}

std::string PanelHost::release_view()
{
    [window_ close];
    [window_ release];
    window_ = nil;
    return {};
}

std::optional<OpenOverlay> PanelHost::overlay()
{
    std::optional<OpenOverlay> open;
    NSAutoreleasePool* const pool = [NSAutoreleasePool new]; // the list holds its windows
    NSArray* const windows = [NSApp windows];
    for (NSUInteger i = 0; i < [windows count]; ++i) {
        NSWindow* const window = [windows objectAtIndex:i];
        if (![NSStringFromClass([window class]) isEqual:@"QM_R7_Overlay_Window"] || ![window isVisible])
            continue;
        const NSRect frame = [window frame];
        open = {"editor", {frame.origin.x, frame.origin.y, frame.size.width, frame.size.height}};
    }
    [pool release];
    return open;
}

} // namespace r7
