#include "architecture/house.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <optional>
#include <regex>
#include <set>
#include <sstream>
#include <string_view>

namespace tarnwell::architecture {
namespace {

// The lowest floor first. A room may use itself and every floor below its own.
const std::vector<std::set<std::string>> kFloors = {
    {"text"},
    {"storage", "richtext"},
    {"settings"},
    {"forms"},
    {"print", "proofing"},
    {"parts"},
    {"year_sheet", "record_book"},
    {"shell", "workarea", "planner", "budget", "contacts", "employees", "images", "leave",
     "vehicles", "backup", "reference"},
    {"program"},
    {"desktop"},
};

// The rules of one area that another area builds on.
const std::set<std::pair<std::string, std::string>> kPassages = {
    {"shell", "planner/day_store.h"},
    {"images", "workarea/areas.h"},
    {"backup", "vehicles/vehicle_slots.h"},
};

// Only storage's door to the disk speaks to the operating system.
const std::string kSystemRoom = "storage";

// But for a file that converts bytes by the tables of the C library, which no disk comes into.
const std::set<std::pair<std::string, std::string>> kSystemFiles = {
    {"text/system_code_pages.cpp", "iconv.h"},
};

// The list of every file name that the program owns, settings included: a header and its source.
const std::string kFileNames = "storage/file_names.";

std::string RoomOf(std::string_view path) { return std::string(path.substr(0, path.find('/'))); }

std::optional<std::ptrdiff_t> FloorOf(const std::string& room) {
  const auto floor =
      std::ranges::find_if(kFloors, [&](auto& rooms) { return rooms.contains(room); });
  if (floor == kFloors.end()) return std::nullopt;
  return floor - kFloors.begin();
}

// What is wrong with `room` including "header"; empty if nothing is.
std::string FaultOfOurs(const std::string& room, const std::string& header) {
  const std::string other = RoomOf(header);
  const auto here = FloorOf(room);
  const auto there = FloorOf(other);
  if (!there) return "\"" + header + "\" is in no room of the house";
  if (room == other || *there < *here || kPassages.contains({room, header})) return "";
  return room + " may not use " + header + ", which isn't below it";
}

// Likewise for <header>. Outside the desktop that is the C++ standard library: no capital, no dot.
std::string FaultOfForeign(const std::string& path, const std::string& header) {
  const std::string room = RoomOf(path);
  if (room == "desktop") return "";
  if (header.starts_with('Q')) return "only the desktop may include Qt: <" + header + ">";
  const bool standard = std::ranges::all_of(
      header, [](char c) { return ('a' <= c && c <= 'z') || ('0' <= c && c <= '9') || c == '_'; });
  if (standard || room == kSystemRoom || kSystemFiles.contains({path, header})) return "";
  return "the core uses the standard library alone, not <" + header + ">";
}

std::string FaultOf(const SourceFile& file, const std::string& line) {
  static const std::regex kInclude(R"(^\s*#\s*include\s*([<"])([^>"]+)[>"])");
  const std::string room = RoomOf(file.path);
  std::smatch match;
  if (std::regex_search(line, match, kInclude)) {
    return match[1] == "<" ? FaultOfForeign(file.path, match[2]) : FaultOfOurs(room, match[2]);
  }
  static const std::regex kSettingsFile("GColor|Gcolor");
  const std::string code = line.substr(0, line.find("//"));
  if (room != "settings" && !file.path.starts_with(kFileNames) &&
      std::regex_search(code, kSettingsFile)) {
    return "only the settings room spells the settings files";
  }
  return "";
}

}  // namespace

std::vector<SourceFile> ReadTree(const std::filesystem::path& root) {
  std::vector<SourceFile> files;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
    const auto extension = entry.path().extension();
    if (extension != ".h" && extension != ".cpp") continue;
    std::ifstream stream(entry.path(), std::ios::binary);
    files.push_back({std::filesystem::relative(entry.path(), root).generic_string(),
                     std::string(std::istreambuf_iterator<char>(stream), {})});
  }
  std::ranges::sort(files, {}, &SourceFile::path);
  return files;
}

std::vector<std::string> Breaches(const std::vector<SourceFile>& files) {
  std::vector<std::string> breaches;
  for (const SourceFile& file : files) {
    if (!FloorOf(RoomOf(file.path))) {
      breaches.push_back(file.path + ":1: this folder has no floor in the house");
      continue;
    }
    std::istringstream lines(file.text);
    int number = 0;
    for (std::string line; std::getline(lines, line);) {
      ++number;
      const std::string fault = FaultOf(file, line);
      if (!fault.empty()) {
        breaches.push_back(file.path + ":" + std::to_string(number) + ": " + fault);
      }
    }
  }
  return breaches;
}

}  // namespace tarnwell::architecture
