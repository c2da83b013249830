// Pictures anywhere on the machine, each read as what its first bytes say it is and as that alone:
// BMP, GIF, ICO, JPEG, PNG, TIFF or WebP.

#pragma once

#include <QByteArray>
#include <QImage>
#include <QSize>
#include <string>

#include "storage/fault.h"

namespace tarnwell::desktop {

inline constexpr std::uint64_t kMostPictureBytes = 128u << 20;
inline constexpr std::int64_t kMostMachinePixels = 64'000'000;

struct MachinePicture {
  // Why the file couldn't be read, kTooLarge for one of more bytes or pixels than are read; kNone
  // where it was read, also where it is no picture or a damaged one.
  storage::Fault fault = storage::Fault::kNone;
  QByteArray type;  // "jpeg"; empty for no picture
  QSize whole;      // of the picture as a person sees it, in pixels; empty for none
  QImage image;     // null for none
};

// At an absolute path (code page 1252), as large as it is or as fits into `most`, turned upright.
MachinePicture ReadMachinePicture(const std::string& path, QSize most);

// Likewise, with nothing decoded and no image.
MachinePicture LookAtMachinePicture(const std::string& path);

}  // namespace tarnwell::desktop
