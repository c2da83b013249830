#pragma once

#include "forms/pictures.h"

namespace tarnwell::desktop {

class QtPictures : public forms::Pictures {
 public:
  static constexpr std::uint64_t kMostBytes = 128u << 20;
  static constexpr std::int64_t kMostPixels = 64'000'000;

  forms::LoadedPicture Load(const std::string& path, int most_width, int most_height) override;
};

}  // namespace tarnwell::desktop
