#include "SharedPalette.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>
#include <unordered_map>
#include <vector>

namespace fh::fhart {

namespace {

// A colour of the pictures and how many pixels have it.
struct Swatch {
  QRgb colour;
  quint64 count;
};

// At most this many entries go to area colours; the rest are left for blends, so that edges and
// text stay clean even in a house of many colours. Half and half, then six rounds of refining the
// blends, gave the house's pictures the fewest visibly wrong edge pixels.
constexpr int kMostAreaColours = 128;
constexpr int kRefiningRounds = 6;
// An area colour covers at least this many pixels in all pictures together (a small highlight does).
constexpr quint64 kSmallestArea = 32;

QRgb opaque(QRgb colour) { return colour | 0xff000000u; }

int channel(QRgb colour, int which) { return which == 0 ? qRed(colour) : which == 1 ? qGreen(colour) : qBlue(colour); }

// Squared distance with green weighed most and blue least, as the eye does.
int distance(QRgb a, QRgb b) {
  const int red = qRed(a) - qRed(b);
  const int green = qGreen(a) - qGreen(b);
  const int blue = qBlue(a) - qBlue(b);
  return 3 * red * red + 4 * green * green + 2 * blue * blue;
}

int nearestIndex(QRgb colour, const QList<QRgb>& palette) {
  int best = 0;
  int bestDistance = std::numeric_limits<int>::max();
  for (int i = 0; i < palette.size(); ++i) {
    const int d = distance(colour, palette[i]);
    if (d < bestDistance) {
      best = i;
      bestDistance = d;
    }
  }
  return best;
}

// All colours of all pictures, most frequent first (ties by colour, so the order never varies).
std::vector<Swatch> countColours(const QList<QImage>& pictures) {
  std::unordered_map<QRgb, quint64> counts;
  for (const QImage& picture : pictures) {
    const QImage rgb = picture.convertToFormat(QImage::Format_RGB32);
    for (int y = 0; y < rgb.height(); ++y) {
      const auto* line = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
      for (int x = 0; x < rgb.width(); ++x) ++counts[opaque(line[x])];
    }
  }
  std::vector<Swatch> swatches;
  swatches.reserve(counts.size());
  for (const auto& [colour, count] : counts) swatches.push_back({colour, count});
  std::sort(swatches.begin(), swatches.end(),
            [](const Swatch& a, const Swatch& b) { return a.count != b.count ? a.count > b.count : a.colour < b.colour; });
  return swatches;
}

// A box of median cut: colours close together in RGB.
struct Box {
  std::vector<Swatch> swatches;
  quint64 count = 0;
  int widest = 0;  // the channel with the largest range
  int range = 0;

  explicit Box(std::vector<Swatch> content) : swatches(std::move(content)) {
    int low[3] = {255, 255, 255};
    int high[3] = {0, 0, 0};
    for (const Swatch& swatch : swatches) {
      count += swatch.count;
      for (int c = 0; c < 3; ++c) {
        low[c] = std::min(low[c], channel(swatch.colour, c));
        high[c] = std::max(high[c], channel(swatch.colour, c));
      }
    }
    for (int c = 0; c < 3; ++c) {
      if (high[c] - low[c] > range) {
        range = high[c] - low[c];
        widest = c;
      }
    }
  }

  // Boxes with many pixels spread over a wide range are split first.
  quint64 priority() const { return swatches.size() > 1 ? count * static_cast<quint64>(range) : 0; }

  QRgb meanColour() const {
    quint64 sum[3] = {0, 0, 0};
    for (const Swatch& swatch : swatches)
      for (int c = 0; c < 3; ++c) sum[c] += swatch.count * static_cast<quint64>(channel(swatch.colour, c));
    auto mean = [&](int c) { return static_cast<int>((sum[c] + count / 2) / count); };
    return qRgb(mean(0), mean(1), mean(2));
  }

  // Splits at the pixel-weighted median of the widest channel; both halves keep at least one colour.
  std::pair<Box, Box> split() {
    const int c = widest;
    std::sort(swatches.begin(), swatches.end(), [c](const Swatch& a, const Swatch& b) {
      const int ca = channel(a.colour, c);
      const int cb = channel(b.colour, c);
      return ca != cb ? ca < cb : a.colour < b.colour;
    });
    quint64 below = 0;
    size_t cut = 1;
    for (; cut < swatches.size() - 1; ++cut) {
      below += swatches[cut - 1].count;
      if (below * 2 >= count) break;
    }
    std::vector<Swatch> low(swatches.begin(), swatches.begin() + static_cast<std::ptrdiff_t>(cut));
    std::vector<Swatch> high(swatches.begin() + static_cast<std::ptrdiff_t>(cut), swatches.end());
    return {Box(std::move(low)), Box(std::move(high))};
  }
};

QList<QRgb> medianCut(std::vector<Swatch> swatches, int entries) {
  QList<QRgb> colours;
  if (swatches.empty() || entries <= 0) return colours;
  std::vector<Box> boxes;
  boxes.emplace_back(std::move(swatches));
  while (static_cast<int>(boxes.size()) < entries) {
    auto widest = std::max_element(boxes.begin(), boxes.end(),
                                   [](const Box& a, const Box& b) { return a.priority() < b.priority(); });
    if (widest->priority() == 0) break;
    auto [low, high] = widest->split();
    *widest = std::move(low);
    boxes.push_back(std::move(high));
  }
  for (const Box& box : boxes) colours << box.meanColour();
  return colours;
}

// Lloyd's rounds over the blend entries: each moves to the pixel-weighted mean of the colours that
// are nearest to it. Area colours (the first `fixed` entries) stay where they are.
void refine(QList<QRgb>& palette, int fixed, const std::vector<Swatch>& colours, int rounds) {
  for (int round = 0; round < rounds; ++round) {
    std::vector<std::array<quint64, 4>> sums(static_cast<size_t>(palette.size()), {0, 0, 0, 0});
    for (const Swatch& swatch : colours) {
      auto& sum = sums[static_cast<size_t>(nearestIndex(swatch.colour, palette))];
      for (int c = 0; c < 3; ++c) sum[static_cast<size_t>(c)] += swatch.count * static_cast<quint64>(channel(swatch.colour, c));
      sum[3] += swatch.count;
    }
    for (int i = fixed; i < palette.size(); ++i) {
      const auto& sum = sums[static_cast<size_t>(i)];
      if (sum[3] == 0) continue;
      auto mean = [&](int c) { return static_cast<int>((sum[static_cast<size_t>(c)] + sum[3] / 2) / sum[3]); };
      palette[i] = qRgb(mean(0), mean(1), mean(2));
    }
  }
}

}  // namespace

QList<QRgb> sharedPalette(const QList<QImage>& pictures) {
  const std::vector<Swatch> swatches = countColours(pictures);
  QList<QRgb> palette;
  if (swatches.size() <= static_cast<size_t>(kPaletteSize)) {
    for (const Swatch& swatch : swatches) palette << swatch.colour;
  } else {
    quint64 pixels = 0;
    for (const Swatch& swatch : swatches) pixels += swatch.count;
    const quint64 smallestArea = std::max(kSmallestArea, pixels / 20000);
    size_t areaColours = 0;
    while (areaColours < static_cast<size_t>(kMostAreaColours) && swatches[areaColours].count >= smallestArea) ++areaColours;
    for (size_t i = 0; i < areaColours; ++i) palette << swatches[i].colour;

    // Blends within a step or two of an area colour are drawn well enough by it.
    constexpr int kCloseEnough = 36;
    std::vector<Swatch> blends;
    for (size_t i = areaColours; i < swatches.size(); ++i) {
      if (palette.isEmpty() || distance(swatches[i].colour, palette[nearestIndex(swatches[i].colour, palette)]) > kCloseEnough)
        blends.push_back(swatches[i]);
    }
    palette << medianCut(blends, kPaletteSize - static_cast<int>(palette.size()));
    refine(palette, static_cast<int>(areaColours), blends, kRefiningRounds);
  }
  std::sort(palette.begin(), palette.end());
  palette.erase(std::unique(palette.begin(), palette.end()), palette.end());
  // Unused entries are black. Qt would write a picture with 16 colours or fewer as a 4-bit BMP, and
  // every file must carry the whole palette.
  while (palette.size() < kPaletteSize) palette << qRgb(0, 0, 0);
  return palette;
}

QImage inPalette(const QImage& picture, const QList<QRgb>& palette) {
  const QImage rgb = picture.convertToFormat(QImage::Format_RGB32);
  QImage indexed(rgb.size(), QImage::Format_Indexed8);
  // Lines are padded to 4 bytes, and Qt's BMP writer copies the padding too: left as it was
  // allocated, an unchanged picture would come out as different bytes on every build.
  std::memset(indexed.bits(), 0, static_cast<size_t>(indexed.sizeInBytes()));
  indexed.setColorTable(palette);
  std::unordered_map<QRgb, uchar> nearest;
  for (int i = static_cast<int>(palette.size()) - 1; i >= 0; --i) nearest[palette[i]] = static_cast<uchar>(i);
  for (int y = 0; y < rgb.height(); ++y) {
    const auto* in = reinterpret_cast<const QRgb*>(rgb.constScanLine(y));
    uchar* out = indexed.scanLine(y);
    for (int x = 0; x < rgb.width(); ++x) {
      const QRgb colour = opaque(in[x]);
      auto found = nearest.find(colour);
      if (found == nearest.end()) found = nearest.emplace(colour, static_cast<uchar>(nearestIndex(colour, palette))).first;
      out[x] = found->second;
    }
  }
  return indexed;
}

}  // namespace fh::fhart
