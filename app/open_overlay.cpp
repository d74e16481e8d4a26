// The editor that is open over a panel.
#include "app/open_overlay.h"

#include "host/panel_view.h"
#include "platform/window.h"

namespace r7 {

std::optional<OpenOverlay> open_overlay(const QmR7View& panel)
{
    const Window* window = panel.window();
    if (!window || window->child_windows().empty()) return std::nullopt;
    const Window& overlay = *window->child_windows().front();
    for (const OutletRow& row : outlet_rows())
        if (view_in(panel, row) == overlay.content_view()) return OpenOverlay{row.name, overlay.frame()};
    return std::nullopt;
}

} // namespace r7
