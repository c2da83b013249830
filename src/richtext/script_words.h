// Kept words that hold for one script alone. "\rtlch" and "\ltrch", "\hich", "\dbch" and "\loch"
// are switches: "\af2" behind one of them is the font of other characters than "\af2" behind
// another.

#pragma once

#include <string>
#include <string_view>

namespace tarnwell::richtext {

bool IsScriptSwitch(std::string_view name);
// Whether the word says something else behind each switch.
bool IsOfScript(std::string_view name);

bool HoldsScripts(std::string_view kept);
// Where the words behind the last switch of `kept` begin; 0 if it holds no switch.
std::size_t LastScript(std::string_view kept);
// What follows is of that switch; the words that it has already come to the end with it.
void TurnToScript(std::string_view name, std::string& kept);

// Behind which switches the last \f stood.
struct FontPlace {
  std::string_view script;  // "loch", "hich", "dbch"; empty: behind none of them
  bool is_behind_rtlch = false;
};
FontPlace FontPlaceIn(std::string_view kept);

// Puts `kept` into a fixed order that ends where the font belongs. Where the letters run from right
// to left and the font isn't theirs, kFontStandsHere says where it does.
void SettleScripts(const FontPlace& font, std::string& kept);

inline constexpr std::string_view kFontStandsHere = "\\f";

}  // namespace tarnwell::richtext
