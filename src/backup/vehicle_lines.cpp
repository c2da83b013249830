#include "backup/vehicle_lines.h"

#include <algorithm>

#include "storage/sequential_file.h"

namespace tarnwell::backup {
namespace {

constexpr char kMark = 3;
constexpr std::string_view kEnd = "DXEnd";
constexpr std::string_view kBehindEnd = "\3 ";

}  // namespace

std::string LineOf(std::string_view content) {
  std::string line;
  storage::SequentialReader values{std::string(content)};
  while (!values.AtEnd()) line.append(values.Next()) += kMark;
  line.append(kEnd) += kMark;
  return line;
}

VehicleLine ReadLine(std::string_view line) {
  VehicleLine read;
  // The last one ends the line: those before are a user's words.
  const std::size_t end = line.rfind(kEnd);
  read.is_whole =
      end != std::string_view::npos &&
      line.substr(end + kEnd.size()).find_first_not_of(kBehindEnd) == std::string_view::npos;
  std::string_view rest = line.substr(0, end);
  while (!rest.empty()) {
    if (read.values.size() == kMostValues) {
      read.is_cut = true;
      break;
    }
    const std::size_t mark = std::min(rest.find(kMark), rest.size());
    read.values.emplace_back(rest.substr(0, mark));
    rest.remove_prefix(std::min(mark + 1, rest.size()));
  }
  return read;
}

std::string ContentOf(const VehicleLine& line) {
  storage::SequentialWriter file;
  for (const std::string& value : line.values) file.WriteText(value == " " ? "" : value);
  return file.content();
}

}  // namespace tarnwell::backup
