#include "richtext/kept_words.h"

#include <cstddef>

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostKept = 512;

bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// Where the word stands; npos if it doesn't.
std::size_t Find(std::string_view name, std::string_view kept) {
  for (std::size_t place = 0; place < kept.size(); ++place) {
    if (kept[place] != '\\' || kept.substr(place + 1, name.size()) != name) continue;
    const std::size_t behind = place + 1 + name.size();
    if (behind >= kept.size() || !IsLetter(kept[behind])) return place;
  }
  return std::string_view::npos;
}

}  // namespace

void KeepWord(std::string_view source, std::string& kept) {
  if (kept.size() + source.size() <= kMostKept) kept += source;
}

void KeepProperty(std::string_view name, std::string_view source, std::string& kept) {
  RemoveKept(name, kept);
  KeepWord(source, kept);
}

void RemoveKept(std::string_view name, std::string& kept) {
  const std::size_t place = Find(name, kept);
  if (place == std::string::npos) return;
  const std::size_t next = kept.find('\\', place + 1);
  kept.erase(place, next == std::string::npos ? next : next - place);
}

bool HoldsKept(std::string_view name, std::string_view kept) {
  return !kept.empty() && Find(name, kept) != std::string_view::npos;
}

}  // namespace tarnwell::richtext
