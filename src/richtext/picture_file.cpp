#include "richtext/picture_file.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace tarnwell::richtext {
namespace {

constexpr std::string_view kPngBegins("\x89PNG\r\n\x1a\n", 8);

struct Pixels {
  long long wide = 0;
  long long high = 0;
};

// Big-endian; 0 past the end.
long long NumberAt(std::string_view bytes, std::size_t at, std::size_t size) {
  if (at + size > bytes.size()) return 0;
  long long number = 0;
  for (const char byte : bytes.substr(at, size)) {
    number = number * 256 + static_cast<unsigned char>(byte);
  }
  return number;
}

// Behind the marker of a segment with the frame: its length, the depth of colours, height, width.
Pixels PixelsOfJpeg(std::string_view bytes) {
  for (std::size_t at = 2; at + 4 <= bytes.size();) {
    if (bytes[at] != '\xFF') return {};
    const long long marker = NumberAt(bytes, at + 1, 1);
    const bool is_frame =
        marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
    if (is_frame) return {NumberAt(bytes, at + 7, 2), NumberAt(bytes, at + 5, 2)};
    at += marker == 0xFF ? 1 : 2 + static_cast<std::size_t>(NumberAt(bytes, at + 2, 2));
  }
  return {};
}

}  // namespace

std::optional<Picture> PictureFromFile(std::string bytes, int most_width, int most_height) {
  Picture picture;
  Pixels pixels;
  if (bytes.starts_with(kPngBegins)) {
    pixels = {NumberAt(bytes, 16, 4), NumberAt(bytes, 20, 4)};
  } else if (bytes.starts_with("\xFF\xD8")) {
    picture.kind = Picture::Kind::kJpeg;
    pixels = PixelsOfJpeg(bytes);
  }
  if (pixels.wide <= 0 || pixels.high <= 0 || pixels.wide > kMostPixels / pixels.high) return {};
  const double wide = static_cast<double>(pixels.wide * kTwipsPerPixel);
  const double high = static_cast<double>(pixels.high * kTwipsPerPixel);
  const double shrink = std::min({1.0, most_width / wide, most_height / high});
  picture.width = std::max(static_cast<int>(wide * shrink), 1);
  picture.height = std::max(static_cast<int>(high * shrink), 1);
  picture.bytes = std::move(bytes);
  return picture;
}

}  // namespace tarnwell::richtext
