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
  std::string_view words;
};

std::string_view NameOf(std::string_view word) {
  word.remove_prefix(1);
  const auto* const end = std::ranges::find_if_not(
      word, [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); });
  return word.substr(0, static_cast<std::size_t>(end - word.begin()));
}

// They are parts of `kept`. There are seldom more than a handful.
std::vector<Part> PartsOf(std::string_view kept) {
  std::vector<Part> parts;
  parts.reserve(8);
  parts.emplace_back();
  std::size_t begin = 0;
  for (std::size_t at = 0; at < kept.size();) {
    const std::size_t next = std::min(kept.find('\\', at + 1), kept.size());
    const std::string_view name = NameOf(kept.substr(at, next - at));
    if (IsScriptSwitch(name)) {
      parts.back().words = kept.substr(begin, at - begin);
      parts.push_back({name, {}});
      begin = at;
    }
    at = next;
  }
  parts.back().words = kept.substr(begin);
  return parts;
}

// Until `visit`, which gets the name of a word and where it stands, returns false.
template <typename Visit>
void ForEachFromTheEnd(std::string_view kept, Visit visit) {
  for (std::size_t end = kept.size(); end > 0;) {
    const std::size_t at = kept.rfind('\\', end - 1);
    if (at == std::string_view::npos || !visit(NameOf(kept.substr(at, end - at)), at)) return;
    end = at;
  }
}

// The same name, which stays.
std::string_view NameOfScript(std::string_view script) {
  for (const std::string_view name : {"loch", "hich", "dbch"}) {
    if (name == script) return name;
  }
  return {};
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
  if (!name.ends_with("ch")) return false;
  const std::initializer_list<std::string_view> names = {"rtlch", "ltrch", "loch", "hich", "dbch"};
  return std::ranges::find(names, name) != names.end();
}

bool IsOfScript(std::string_view name) {
  if (!name.starts_with('a') && name != "fcs") return false;
  const std::initializer_list<std::string_view> names = {
      "ab",     "acaps", "acf",     "adn", "aexpnd", "af",    "afs",     "ai",   "alang", "aoutl",
      "ascaps", "ashad", "astrike", "aul", "auld",   "auldb", "aulnone", "aulw", "aup",   "fcs"};
  return std::ranges::find(names, name) != names.end();
}

bool HoldsScripts(std::string_view kept) { return PartsOf(kept).size() > 1; }

std::size_t LastScript(std::string_view kept) {
  std::size_t place = 0;
  ForEachFromTheEnd(kept, [&place](std::string_view name, std::size_t at) {
    if (!IsScriptSwitch(name)) return true;
    place = at;
    return false;
  });
  return place;
}

void TurnToScript(std::string_view name, std::string& kept) {
  std::string rest;
  std::string turned;
  const std::vector<Part> parts = PartsOf(kept);
  if (parts.back().name == name) return;
  for (const Part& part : parts) (part.name == name ? turned : rest) += part.words;
  if (turned.empty()) KeepWord("\\" + std::string(name), rest);
  kept = rest + turned;
}

FontPlace FontPlaceIn(std::string_view kept) {
  FontPlace place;
  bool has_direction = false;
  ForEachFromTheEnd(kept, [&](std::string_view name, std::size_t) {
    if (!IsScriptSwitch(name)) return true;
    if (IsDirection(name)) {
      if (!std::exchange(has_direction, true)) place.is_behind_rtlch = name == "rtlch";
    } else if (place.script.empty()) {
      place.script = NameOfScript(name);
    }
    return !has_direction || place.script.empty();
  });
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
