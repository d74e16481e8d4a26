// What the panel lends to its controls to call back.
#pragma once

#include "host/panel_view.h"
#include "platform/action.h"

namespace r7 {

/// Leads to the panel while it exists. Controls retain their target; this one does not own the panel, so that
/// no cycle keeps it alive.
struct PanelHandle final : ActionTarget {
    explicit PanelHandle(QmR7View& owner) : panel(&owner) {}

    QmR7View* panel;
};

/// Calls an operation of the panel behind the handle, and keeps the panel until it returns.
template <void (QmR7View::*operation)(View& sender)>
void panel_action(ActionTarget& target, View& sender)
{
    QmR7View* panel = static_cast<PanelHandle&>(target).panel;
    if (!panel) return;
    const ViewRef kept = panel->shared_from_this();
    (panel->*operation)(sender);
}

inline constexpr Action kKnobCallback = &panel_action<&QmR7View::knob_callback>;
inline constexpr Action kToggleCallback = &panel_action<&QmR7View::toggle_callback>;

} // namespace r7
