// Who may include whom in src/. docs/architecture.md draws the picture.

#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace tarnwell::architecture {

struct SourceFile {
  std::string path;  // below src/, with slashes: "planner/day_store.h"
  std::string text;
};

// Every .h and .cpp file below `root`, in the order of their paths.
std::vector<SourceFile> ReadTree(const std::filesystem::path& root);

// One line for each breach, as "file:line: what is wrong". Empty for a house in order.
std::vector<std::string> Breaches(const std::vector<SourceFile>& files);

}  // namespace tarnwell::architecture
