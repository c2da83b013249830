#pragma once

#include <memory>
#include <string>

#include "storage/fault.h"

namespace tarnwell::forms {

struct LoadedPicture {
  // A PNG file of the picture; null for none. `fault` says why the file couldn't be read, kTooLarge
  // for one of more bytes or pixels than are read; kNone where it was read and isn't a picture, or
  // a damaged one.
  std::shared_ptr<const std::string> png;
  storage::Fault fault = storage::Fault::kNone;
  // Of the whole picture as a person sees it, in pixels; 0 for none.
  int width = 0;
  int height = 0;
};

// What a picture's file says of it; nothing of it is decoded.
struct PictureHead {
  // Why it couldn't be read, kTooLarge for what Load doesn't read; kNone with a size of 0 where it
  // is no picture.
  storage::Fault fault = storage::Fault::kNone;
  int width = 0;  // as a person sees it, in pixels
  int height = 0;

  bool is_picture() const { return width > 0; }
};

// Pictures from anywhere on the machine, for a forms::Picture or a page.
class Pictures {
 public:
  virtual ~Pictures() = default;

  // The picture at an absolute path (code page 1252), as large as it is or as fits into
  // `most_width` by `most_height` pixels, in its own proportions. One that the camera took on its
  // side is turned upright. BMP, GIF (the first of a moving one), ICO, JPEG, PNG, TIFF and WebP are
  // read, known by their first bytes and not by their names.
  virtual LoadedPicture Load(const std::string& path, int most_width, int most_height) = 0;
  virtual PictureHead Look(const std::string& path) = 0;
};

}  // namespace tarnwell::forms
