#include "richtext/picture_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "richtext/picture_file.h"
#include "richtext/rtf_capture.h"
#include "richtext/rtf_tokenizer.h"

namespace tarnwell::richtext {
namespace {

constexpr std::array<signed char, 256> MakeHexValues() {
  std::array<signed char, 256> values{};
  values.fill(-1);
  for (int i = 0; i < 10; ++i)
    values[static_cast<std::size_t>('0' + i)] = static_cast<signed char>(i);
  for (int i = 10; i < 16; ++i) {
    values[static_cast<std::size_t>('a' + i - 10)] = static_cast<signed char>(i);
    values[static_cast<std::size_t>('A' + i - 10)] = static_cast<signed char>(i);
  }
  return values;
}

constexpr std::array<signed char, 256> kHexValues = MakeHexValues();

class PictureReader {
 public:
  explicit PictureReader(std::string_view body) : tokenizer_(body) {}

  std::optional<Picture> Read() {
    picture_.bytes.reserve(tokenizer_.source().size() / 2);
    for (Token token = tokenizer_.Next(); token.kind != TokenKind::kEnd;
         token = tokenizer_.Next()) {
      Take(token);
    }
    if (!kind_ || picture_.bytes.empty()) return std::nullopt;
    picture_.kind = *kind_;
    picture_.bytes.shrink_to_fit();
    if (picture_.width == 0) picture_.width = pixels_wide_ * kTwipsPerPixel;
    if (picture_.height == 0) picture_.height = pixels_high_ * kTwipsPerPixel;
    return std::move(picture_);
  }

 private:
  void Take(const Token& token) {
    switch (token.kind) {
      case TokenKind::kText:
        return AddHex(token.text);
      case TokenKind::kBinary:
        picture_.bytes += token.text;
        return;
      case TokenKind::kWord:
        return TakeWord(token);
      case TokenKind::kGroupStart:
        return KeepGroup(token);
      default:
        return;
    }
  }

  void TakeWord(const Token& token) {
    const int length = std::clamp(token.number, 0, kLongestLength);
    if (token.text == "pict") return;
    if (token.text == "pngblip") {
      kind_ = Picture::Kind::kPng;
    } else if (token.text == "jpegblip") {
      kind_ = Picture::Kind::kJpeg;
    } else if (token.text == "picwgoal") {
      picture_.width = length;
    } else if (token.text == "pichgoal") {
      picture_.height = length;
    } else if (token.text == "picscalex") {
      picture_.scale_x = length;
    } else if (token.text == "picscaley") {
      picture_.scale_y = length;
    } else {
      if (token.text == "picw") pixels_wide_ = std::min(length, kMostPixels);
      if (token.text == "pich") pixels_high_ = std::min(length, kMostPixels);
      picture_.other += WordSource(tokenizer_, token);
    }
  }

  void KeepGroup(const Token& start) {
    const auto group = CaptureGroup(tokenizer_, start.end);
    if (group) picture_.other += group->Rtf(1);
    tokenizer_.Next();
  }

  void AddHex(std::string_view digits) {
    for (const char digit : digits) {
      const int value = kHexValues[static_cast<unsigned char>(digit)];
      if (value < 0) continue;
      if (high_ < 0) {
        high_ = value;
      } else {
        picture_.bytes += static_cast<char>(std::exchange(high_, -1) * 16 + value);
      }
    }
  }

  static constexpr int kMostPixels = 32767;

  Tokenizer tokenizer_;
  Picture picture_;
  std::optional<Picture::Kind> kind_;
  int pixels_wide_ = 0;
  int pixels_high_ = 0;
  int high_ = -1;  // the first digit of a byte whose second is still to come
};

}  // namespace

std::optional<Picture> ReadPicture(std::string_view body) { return PictureReader(body).Read(); }

}  // namespace tarnwell::richtext
