// The editor that is open over a panel.
#pragma once

#include "app/transcript.h"

#include <optional>

namespace r7 {

class QmR7View;

/// The window that an editor is open in over `panel`, or nothing; a panel opens one at most.
std::optional<OpenOverlay> open_overlay(const QmR7View& panel);

} // namespace r7
