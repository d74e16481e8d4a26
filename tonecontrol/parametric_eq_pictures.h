// The pictures that the tone control's editor is composed of, painted once.
#pragma once

#include "platform/image.h"
#include "tonecontrol/tone_mapping.h"

namespace r7 {

/// A cross and a dash on blue plates of 30 by 15 points.
ImageRef close_button_picture();
ImageRef reset_button_picture();

/// The margins of a view of that size, with the labels of both axes where `mapping` puts them.
ImageRef graph_body_picture(Size size, const ToneMapping& mapping);

} // namespace r7
