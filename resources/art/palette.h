// The colours of the unit.
#pragma once

#include "resources/art/light.h"

namespace r7::art {

// The plate, and what is cut into it.
inline const Tint kPlateTop = srgb(0x24292F);
inline const Tint kPlateBottom = srgb(0x1A1E23);
inline const Tint kRecess = srgb(0x15181C);
inline const Tint kEdgeLight = srgb(0x4A535D);
inline const Tint kEdgeDark = srgb(0x08090B);
inline const Tint kShadow = srgb(0x000000);
inline const Tint kSky = srgb(0x9DB4CC);

// Print on the plate.
inline const Tint kTitle = srgb(0xE4E1DA);
inline const Tint kLabel = srgb(0xBFBDB7);
inline const Tint kTickMajor = srgb(0xD6D3CC);
inline const Tint kTickMinor = srgb(0x8C8B87);

// The name.
inline const Tint kNameTop = srgb(0xF4F2EE);
inline const Tint kNameBottom = srgb(0xA8ABAE);
inline const Tint kNumberTop = srgb(0xF0494E);
inline const Tint kNumberBottom = srgb(0xA3141E);

// Knobs.
inline const Tint kAluminium = srgb(0xD3D7DB);
inline const Tint kRed = srgb(0xA2161F);
inline const Tint kRedGlare = srgb(0xFFB0A0);
inline const Tint kRubber = srgb(0x1D2024);
inline const Tint kBlueDot = srgb(0x7CC2FF);
inline const Tint kBlueGlow = srgb(0x4FB4FF);
inline const Tint kBlueHot = srgb(0xF2FAFF);

// Glass.
inline const Tint kGlassTop = srgb(0x0A0E13);
inline const Tint kGlassBottom = srgb(0x0F161D);
inline const Tint kGridLine = srgb(0x5E86AE);
inline const Tint kGridLetter = srgb(0x7F98B2);

// Switches.
inline const Tint kBezel = srgb(0x1C1F23);
inline const Tint kCharcoal = srgb(0x474D55);
inline const Tint kSwitchRed = srgb(0xA61F27);
inline const Tint kInk = srgb(0xE6EBF0);

} // namespace r7::art
