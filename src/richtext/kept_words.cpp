#include "richtext/kept_words.h"

#include <algorithm>
#include <cstddef>

#include "richtext/script_words.h"
#include "text/letters.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostKept = 512;

}  // namespace

void KeepWord(std::string_view source, std::string& kept) {
  if (kept.size() + source.size() <= kMostKept) kept += source;
}

void KeepProperty(std::string_view name, std::string_view source, std::string& kept) {
  if (IsScriptSwitch(name)) return TurnToScript(name, kept);
  const std::size_t begin = IsOfScript(name) ? LastScript(kept) : 0;
  std::string words = kept.substr(begin);
  RemoveKept(name, words);
  kept.replace(begin, std::string::npos, words);
  KeepWord(source, kept);
}

void RemoveBorder(std::string& kept) {
  for (const std::string_view beginning : {"\\brdr", "\\brsp"}) {
    for (std::size_t at = kept.find(beginning); at != std::string::npos;
         at = kept.find(beginning)) {
      kept.erase(at, std::min(kept.find('\\', at + 1), kept.size()) - at);
    }
  }
}

void RemoveKept(std::string_view name, std::string& kept) {
  const std::size_t place = FindKept(name, kept);
  if (place == std::string::npos) return;
  const std::size_t next = kept.find('\\', place + 1);
  kept.erase(place, next == std::string::npos ? next : next - place);
}

std::size_t FindKept(std::string_view name, std::string_view kept) {
  for (std::size_t place = 0; place < kept.size(); ++place) {
    if (kept[place] != '\\' || kept.substr(place + 1, name.size()) != name) continue;
    const std::size_t behind = place + 1 + name.size();
    if (behind >= kept.size() || !text::IsAsciiLetter(kept[behind])) return place;
  }
  return std::string_view::npos;
}

bool HoldsKept(std::string_view name, std::string_view kept) {
  return !kept.empty() && FindKept(name, kept) != std::string_view::npos;
}

bool IsHidden(std::string_view kept) { return HoldsKept("v", kept) || HoldsKept("deleted", kept); }

}  // namespace tarnwell::richtext
