#pragma once

#include "forms/volumes.h"

namespace tarnwell::desktop {

class QtVolumes : public forms::Volumes {
 public:
  // Without disks every folder counts as the program's own.
  explicit QtVolumes(bool has_disks = true) : has_disks_(has_disks) {}

  std::optional<std::uint64_t> FreeBytes(const std::string& path) override;
  std::string MountOf(const std::string& path) override;
  bool LiesIn(const std::string& path, const std::string& folder) override;

 private:
  bool has_disks_;
};

}  // namespace tarnwell::desktop
