#pragma once

#include <cstdint>
#include <optional>
#include <string>

namespace tarnwell::forms {

// The disks and sticks of the machine. A path is one of a FolderBrowser.
class Volumes {
 public:
  virtual ~Volumes() = default;

  // Bytes that a person may still write there; none where that can't be told.
  virtual std::optional<std::uint64_t> FreeBytes(const std::string& path) = 0;
  // Where the disk that holds `path` is mounted; empty where nothing is. A disk that was pulled out
  // may leave its folder behind, which then lies on another.
  virtual std::string MountOf(const std::string& path) = 0;
  // Whether `path` is `folder` or lies in it, whatever links lead there. Also true when that can't
  // be told.
  virtual bool LiesIn(const std::string& path, const std::string& folder) = 0;
};

}  // namespace tarnwell::forms
