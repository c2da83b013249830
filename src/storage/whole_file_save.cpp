#include "storage/whole_file_save.h"

#include <array>
#include <atomic>
#include <charconv>
#include <cstdint>
#include <random>

#include "storage/file_names.h"

namespace tarnwell::storage {
namespace {

// A short name of fixed length, so that a target with the longest of names can be saved too. It
// begins at a random number lest orphans of earlier runs stand in the way.
std::string NextSiblingName() {
  static std::atomic<std::uint32_t> next = std::random_device{}();
  std::array<char, 8> digits;
  const auto end = std::to_chars(digits.begin(), digits.end(), next++, 16).ptr;
  std::string name(file_names::kSavePrefix);
  name.append(static_cast<std::size_t>(digits.end() - end), '0');
  return name.append(digits.begin(), end);
}

bool WriteSibling(File& sibling, std::string_view content) {
  const bool is_on_disk = sibling.WriteAt(0, content) && sibling.Flush();
  return sibling.Close() && is_on_disk;
}

}  // namespace

bool SaveWhole(FileSystem& files, const std::string& folder, const std::string& target_path,
               std::string_view content) {
  const std::string sibling_path = folder + "/" + NextSiblingName();
  const auto sibling = files.Open(sibling_path, OpenMode::kCreateFresh);
  if (!sibling) return false;
  files.CopyPermissions(target_path, sibling_path);  // before there is anything to read in it
  if (WriteSibling(*sibling, content) && files.Rename(sibling_path, target_path)) {
    return files.FlushFolder(folder);
  }
  files.Remove(sibling_path);
  return false;
}

void SweepSiblings(FileSystem& files, const std::string& folder) {
  const auto names = files.List(folder);
  if (!names) return;
  for (const std::string& name : *names) {
    if (name.starts_with(file_names::kSavePrefix)) files.Remove(folder + "/" + name);
  }
}

}  // namespace tarnwell::storage
