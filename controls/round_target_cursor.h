// Mouse cursors drawn in code: a round target, plain or with a progress arc.
#pragma once

#include "platform/cursor.h"

#include <optional>

namespace r7 {

class Graphics;

/// The cursors, each made on first use and kept for the life of the process, so that two of the same look can
/// be compared by identity. Null only where the back end cannot make images. To be used from one thread.
class QM_R7_Cursors final {
public:
    QM_R7_Cursors() = delete;

    /// A translucent disc, 24 points wide, with a black ring and a small black ring around its hot spot.
    static CursorRef round_target_cursor();
    /// The target with a red arc that grows clockwise from straight down, in eleven steps from none (below
    /// 0.05, or NaN) to a full turn but one degree (from 0.95 on).
    static CursorRef round_target_cursor_at_fraction(float fraction);
};

/// Paints the target into (0, 0, 24, 24), with its arc where a fraction is given.
void paint_round_target(Graphics& graphics, std::optional<float> fraction);

} // namespace r7
