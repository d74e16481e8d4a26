// Every image of the panel, by name.
#pragma once

#include "resources/art/canvas.h"
#include "resources/art/description.h"

#include <functional>
#include <string>
#include <vector>

namespace r7::art {

struct ImageRow
{
    std::string name; ///< of the file, without ".png"
    Size size;
    Canvas::Ground ground;
    std::function<void(Canvas&)> paint;
};

/// The images for a panel of that description, which has to outlive the rows.
std::vector<ImageRow> all_images(const Description& description);

/// One image, drawn.
Canvas drawn(const ImageRow& row, int scale);

} // namespace r7::art
