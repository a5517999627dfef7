#pragma once

// The screens are laid out in twips, as the game's forms always were: 15 twips a pixel.
namespace zorvane::screens {

constexpr int twipsPerPixel = 15;
constexpr int px(int twips) { return twips / twipsPerPixel; }

} // namespace zorvane::screens
