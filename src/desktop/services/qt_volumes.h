#pragma once

#include "forms/volumes.h"

namespace tarnwell::desktop {

class QtVolumes : public forms::Volumes {
 public:
  std::optional<std::uint64_t> FreeBytes(const std::string& path) override;
  std::string MountOf(const std::string& path) override;
  bool LiesIn(const std::string& path, const std::string& folder) override;
};

}  // namespace tarnwell::desktop
