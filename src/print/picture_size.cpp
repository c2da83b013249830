#include "print/picture_size.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

namespace tarnwell::print {
namespace {

constexpr int kTwipsPerPixel = 15;
constexpr int kMostPixels = 65535;

std::uint32_t BigEndian(std::string_view file, std::size_t at, std::size_t bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = at; i < at + bytes; ++i) {
    value = value << 8 | static_cast<unsigned char>(file[i]);
  }
  return value;
}

PictureSize MakeSize(std::uint32_t width, std::uint32_t height) {
  if (width == 0 || height == 0 || width > kMostPixels || height > kMostPixels) return {};
  return {static_cast<int>(width), static_cast<int>(height)};
}

bool IsFrameHeader(unsigned char marker) {
  return marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
}

// Walks the segments up to the one that begins the frame.
PictureSize JpegPixels(std::string_view file) {
  std::size_t at = 2;
  while (at + 9 <= file.size() && file[at] == '\xFF') {
    const auto marker = static_cast<unsigned char>(file[at + 1]);
    if (marker == 0xFF) {
      ++at;
      continue;
    }
    if (IsFrameHeader(marker)) {
      return MakeSize(BigEndian(file, at + 7, 2), BigEndian(file, at + 5, 2));
    }
    at += 2 + std::max<std::size_t>(BigEndian(file, at + 2, 2), 2);
  }
  return {};
}

double Scaled(int length, int percent) { return length * std::max(percent, 0) / 100.0; }

}  // namespace

PictureSize PixelsOf(std::string_view file) {
  constexpr std::string_view kPngStart = "\x89PNG\r\n\x1A\n";
  if (file.starts_with(kPngStart) && file.size() >= 24) {
    return MakeSize(BigEndian(file, 16, 4), BigEndian(file, 20, 4));
  }
  return file.starts_with("\xFF\xD8") ? JpegPixels(file) : PictureSize{};
}

PictureSize FittedInto(PictureSize box, PictureSize picture) {
  if (picture.width < 1 || picture.height < 1) return {};
  const double scale = std::min(static_cast<double>(box.width) / picture.width,
                                static_cast<double>(box.height) / picture.height);
  return {static_cast<int>(std::lround(picture.width * scale)),
          static_cast<int>(std::lround(picture.height * scale))};
}

PictureSize SizeOnPage(const richtext::Picture& picture, int most_width, int most_height) {
  const PictureSize pixels = PixelsOf(picture.bytes);
  if (pixels.width == 0) {
    const int side = std::max(1, std::min({richtext::kBrokenPicture, most_width, most_height}));
    return {side, side};
  }
  const int width = picture.width > 0 ? picture.width : pixels.width * kTwipsPerPixel;
  const int height = picture.height > 0 ? picture.height : pixels.height * kTwipsPerPixel;
  const double wide = std::max(Scaled(width, picture.scale_x), 1.0);
  const double high = std::max(Scaled(height, picture.scale_y), 1.0);
  const double shrink = std::min({1.0, most_width / wide, most_height / high});
  return {std::max(1, static_cast<int>(std::lround(wide * shrink))),
          std::max(1, static_cast<int>(std::lround(high * shrink)))};
}

}  // namespace tarnwell::print
