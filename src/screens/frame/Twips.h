#pragma once
#include <QColor>
#include <QRect>

#include <cstdint>

// The screens are laid out in twips, as the game's forms always were: 15 twips to a pixel
// at 96 DPI; Qt's device-independent pixels take care of high-DPI screens.
namespace zorvane::screens {

constexpr int twipsPerPixel = 15;
constexpr int px(int twips) {
    return twips / twipsPerPixel;
}
constexpr int twips(int pixels) {
    return pixels * twipsPerPixel;
}
inline QRect pxRect(int left, int top, int width, int height) {
    return {px(left), px(top), px(width), px(height)};
}

// The game keeps colours as blue, green, red in one integer (0xBBGGRR).
inline QColor fromBgr(std::uint32_t bgr) {
    return QColor(static_cast<int>(bgr & 0xFF), static_cast<int>((bgr >> 8) & 0xFF),
                  static_cast<int>((bgr >> 16) & 0xFF));
}

} // namespace zorvane::screens
