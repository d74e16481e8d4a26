// The two patterns that curves are painted with. Both tile without a seam.
#pragma once

#include "resources/art/canvas.h"

namespace r7::art {

inline constexpr Size kBlueBarTile{8.0, 48.0};
inline constexpr Size kLcdGridTile{12.0, 12.0};

/// A band of blues that comes round again at its upper edge.
void paint_blue_bar(Canvas& canvas);
/// The cells of a liquid crystal, translucent.
void paint_lcd_grid(Canvas& canvas);

} // namespace r7::art
