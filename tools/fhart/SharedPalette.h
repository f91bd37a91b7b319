#pragma once

#include <QImage>
#include <QList>
#include <QRgb>

namespace fh::fhart {

inline constexpr int kPaletteSize = 256;
// The palette written as a picture: the size of the game's screen, which the windows hold as theirs.
inline constexpr int kPalettePictureWidth = 640;
inline constexpr int kPalettePictureHeight = 480;

// The one palette that all pictures share, built from all of them together. Colours that cover
// areas (the house's flat colours) get an entry of their own and so stay exact; the rest (the
// blends of antialiased edges, text, gradients) share the other entries: median cut, then a few
// rounds of k-means. Always kPaletteSize entries, sorted, so that the same pictures always give the
// same palette.
QList<QRgb> sharedPalette(const QList<QImage>& pictures);

// The picture in the palette, each pixel its nearest colour, without dithering (flat areas stay flat).
QImage inPalette(const QImage& picture, const QList<QRgb>& palette);

}  // namespace fh::fhart
