#pragma once

#include "forms/pictures.h"

namespace tarnwell::desktop {

class QtPictures : public forms::Pictures {
 public:
  forms::LoadedPicture Load(const std::string& path, int most_width, int most_height) override;
  forms::PictureHead Look(const std::string& path) override;
};

}  // namespace tarnwell::desktop
