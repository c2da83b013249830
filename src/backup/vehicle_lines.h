// A vehicle's file as one line of a backup. docs/formats/backup-sets.md has the layout.

#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::backup {

// Values that a restore takes from a line.
inline constexpr std::size_t kMostValues = 30'001;

// The values of a sequential file with that content, each with a mark behind, and the end's mark.
std::string LineOf(std::string_view content);

struct VehicleLine {
  std::vector<std::string> values;
  bool is_cut = false;    // the line holds more values
  bool is_whole = false;  // it has its end
};

// Of a line's text. A slot without a file gives no values.
VehicleLine ReadLine(std::string_view line);

// The content of the file that a line was made of; a lone blank became an empty text.
std::string ContentOf(const VehicleLine& line);

}  // namespace tarnwell::backup
