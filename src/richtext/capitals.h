#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

enum class CapitalLetters { kNone, kAll, kSmall };

// How the text of a format is shown.
CapitalLetters CapitalsOf(const CharacterFormat& format);

// A part of a text for small capitals: letters that are capitals already stand large.
struct CapitalPart {
  std::string text;  // in capitals
  bool is_small = false;
};

// Of a text in UTF-8: Latin, Greek and Cyrillic letters; any other character stays as it is. A
// capital takes as many bytes as its small letter.
std::string Capitals(std::string_view utf8);
std::vector<CapitalPart> SmallCapitals(std::string_view utf8);

}  // namespace tarnwell::richtext
