// A host of the view bundle: an embedded unit, its view in a window, and what somebody asks of them by the
// line.
#pragma once

#import <AppKit/AppKit.h>

#include "app/transcript.h"
#include "unit/embedded_unit.h"

#include <memory>
#include <optional>
#include <string>
#include <string_view>

namespace r7 {

/// Knows of the bundle what every host knows: that its principal class is a view factory. Prints what the
/// view does to the unit and which windows it opens, in the words of docs/sessions.md; the editors are all
/// called `editor`.
class PanelHost final {
public:
    /// @param origin  of the view's window on the screen, in points
    PanelHost(NSBundle* bundle, NSPoint origin);
    ~PanelHost();

    /// Performs a command, with all events before it, and gives the answer: `done`, or `failed` and why.
    ///
    ///     open                 a fresh unit if there is none, and its view in a window
    ///     settle               nothing more
    ///     automate ID VALUE    the unit takes a parameter, on another thread
    ///     events               calls of the view's listener are printed from here on
    ///     picture FILE         the view as a PNG file
    ///     release view         and its window
    ///     release unit
    ///     quit
    std::string perform(std::string_view command);
    bool is_over() const { return is_over_; }

private:
    // Each gives what is wrong, or nothing.
    std::string open();
    std::string automate(std::string_view id, std::string_view value);
    std::string write_picture(std::string_view file) const;
    std::string release_view();

    // Of all windows, lest one that has lost its parent is overlooked.
    static std::optional<OpenOverlay> overlay();

    NSBundle* const bundle_;
    const NSPoint origin_;
    Transcript transcript_{stdout};
    std::shared_ptr<EmbeddedUnit> unit_;
    NSWindow* window_ = nil; // with the view; null when there is none
    bool is_over_ = false;
};

} // namespace r7
