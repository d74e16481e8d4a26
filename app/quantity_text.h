// Quantities as the status line writes them: rounded for the eye, with their unit.
#pragma once

#include <string>

namespace r7 {

// Halves are rounded by the exact value of the number. What rounds to nothing has no sign. Numbers too large
// to be read are written as powers of ten, and those that are not finite as `nan`, `inf` and `-inf`.

/// A plain number, with two decimals, or three where the third says something.
std::string plain_text(double number);
/// Three digits, in Hz below 999.5 Hz, in kHz from there on.
std::string frequency_text(double hz);
/// One decimal and, unless it rounds to 0, its sign.
std::string level_text(double db);

} // namespace r7
