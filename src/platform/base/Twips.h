#pragma once

#include <QRect>

namespace fh {

// Dialog layouts are given in twips, 15 to the pixel.
constexpr int kTwipsPerPixel = 15;
constexpr int twipsToPixels(int twips) { return twips / kTwipsPerPixel; }
inline QRect twipsRect(int left, int top, int width, int height) {
  return {twipsToPixels(left), twipsToPixels(top), twipsToPixels(width), twipsToPixels(height)};
}

}  // namespace fh
