#include "vehicles/makes.h"

#include <algorithm>

#include "storage/file_names.h"
#include "text/letters.h"

namespace tarnwell::vehicles {
namespace {

constexpr int kOldestYear = 1950;
constexpr int kFirstOf1900 = 90;  // of two digits

}  // namespace

std::vector<Make> ReadMakes(storage::ProgramFolder& folder) {
  const std::string content = folder.Read(storage::file_names::kMakes).content;
  std::vector<Make> makes;
  for (std::size_t begin = 0; begin < content.size();) {
    const std::size_t end = std::min(content.find('\n', begin), content.size());
    const std::string_view line(content.data() + begin, end - begin);
    begin = end + 1;
    const std::string name = text::Trim(line.substr(0, line.find('\r')));
    if (name.empty()) continue;
    if (line.front() != ' ') {
      makes.push_back({name, {}});
    } else if (!makes.empty()) {
      makes.back().models.push_back(name);
    }
  }
  return makes;
}

std::vector<std::string> ModelsOf(std::span<const Make> makes, std::string_view name) {
  const auto make = std::ranges::find(makes, name, &Make::name);
  return make == makes.end() ? std::vector<std::string>() : make->models;
}

std::vector<std::string> YearsOffered(text::Date today) {
  std::vector<std::string> years;
  for (int year = text::YearOf(today) + 1; year >= kOldestYear; --year) {
    years.push_back(std::to_string(year));
  }
  return years;
}

std::string FirstYear(text::Date today) {
  const int digits = text::YearOf(today) % 100;
  return std::to_string((digits >= kFirstOf1900 ? 1900 : 2000) + digits);
}

}  // namespace tarnwell::vehicles
