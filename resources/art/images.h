// Every image of the panel and of the program, by name.
#pragma once

#include "platform/interface_description.h"
#include "resources/art/canvas.h"

#include <functional>
#include <string>
#include <vector>

namespace r7::art {

struct ImageRow {
    std::string name; ///< of the file, without ".png"
    Size size;
    Canvas::Ground ground;
    std::function<void(Canvas&)> paint;
};

/// The images for a panel of that description, which has to outlive the rows.
std::vector<ImageRow> all_images(const InterfaceDescription& description);

/// The sizes of the program's icon, at one pixel a point.
std::vector<ImageRow> all_icons();

/// One image, drawn.
Canvas drawn(const ImageRow& row, int scale);

} // namespace r7::art
