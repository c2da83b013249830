#include "richtext/script_words.h"

#include <algorithm>
#include <initializer_list>
#include <utility>
#include <vector>

#include "richtext/kept_words.h"

namespace tarnwell::richtext {
namespace {

// A switch and the words behind it; without a name the words before the first switch.
struct Part {
  std::string_view name;
  std::string words;
};

std::string_view NameOf(std::string_view word) {
  word.remove_prefix(1);
  const auto* const end = std::ranges::find_if_not(
      word, [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
  return word.substr(0, static_cast<std::size_t>(end - word.begin()));
}

// The names stay as long as `kept`.
std::vector<Part> PartsOf(std::string_view kept) {
  std::vector<Part> parts(1);
  while (!kept.empty()) {
    const std::string_view word = kept.substr(0, kept.find('\\', 1));
    kept.remove_prefix(word.size());
    const std::string_view name = NameOf(word);
    if (IsScriptSwitch(name)) {
      parts.push_back({name, std::string(word)});
    } else {
      parts.back().words += word;
    }
  }
  return parts;
}

bool IsDirection(std::string_view name) { return name == "rtlch" || name == "ltrch"; }

// The last of the parts that name a direction, or of the others; empty if there is none.
std::string_view LastName(const std::vector<Part>& parts, bool of_direction) {
  std::string_view last;
  for (const Part& part : parts) {
    if (!part.name.empty() && IsDirection(part.name) == of_direction) last = part.name;
  }
  return last;
}

}  // namespace

bool IsScriptSwitch(std::string_view name) {
  const std::initializer_list<std::string_view> names = {"rtlch", "ltrch", "loch", "hich", "dbch"};
  return std::ranges::find(names, name) != names.end();
}

bool IsOfScript(std::string_view name) {
  const std::initializer_list<std::string_view> names = {
      "ab",     "acaps", "acf",     "adn", "aexpnd", "af",    "afs",     "ai",   "alang", "aoutl",
      "ascaps", "ashad", "astrike", "aul", "auld",   "auldb", "aulnone", "aulw", "aup",   "fcs"};
  return std::ranges::find(names, name) != names.end();
}

bool HoldsScripts(std::string_view kept) { return PartsOf(kept).size() > 1; }

std::size_t LastScript(std::string_view kept) {
  const std::vector<Part> parts = PartsOf(kept);
  return kept.size() - parts.back().words.size();
}

void TurnToScript(std::string_view name, std::string& kept) {
  std::string rest;
  std::string turned;
  for (const Part& part : PartsOf(kept)) (part.name == name ? turned : rest) += part.words;
  if (turned.empty()) {
    KeepWord("\\" + std::string(name), rest);
  }
  kept = rest + turned;
}

FontPlace FontPlaceIn(std::string_view kept) {
  const std::string_view script = LastName(PartsOf(kept), false);
  FontPlace place;
  for (const std::string_view name : {"loch", "hich", "dbch"}) {
    if (name == script) place.script = name;
  }
  place.is_behind_rtlch = LastName(PartsOf(kept), true) == "rtlch";
  return place;
}

void SettleScripts(const FontPlace& font, std::string& kept) {
  if (kept.find("ch") == std::string::npos) return;
  RemoveKept("f", kept);
  const std::vector<Part> parts = PartsOf(kept);
  if (parts.size() == 1) return;
  const std::string_view script = font.script.empty() ? "loch" : font.script;
  const bool is_rtl = LastName(parts, true) == "rtlch";
  std::string settled;
  const auto add = [&](std::string_view name) {
    for (const Part& part : parts) {
      if (part.name == name) settled += part.words;
    }
  };
  add({});
  if (!is_rtl) add("rtlch");
  add("ltrch");
  for (const std::string_view name : {"hich", "dbch", "loch"}) {
    if (name != script) add(name);
  }
  const std::size_t before = settled.size();
  add(script);
  const bool names_scripts = !LastName(parts, false).empty();
  if (names_scripts && settled.size() == before) settled += "\\" + std::string(script);
  if (is_rtl && !font.is_behind_rtlch) settled += kFontStandsHere;
  if (is_rtl) add("rtlch");
  kept = std::move(settled);
}

}  // namespace tarnwell::richtext
