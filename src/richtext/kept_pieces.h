// The words and groups of RTF that is only kept, one by one.

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace tarnwell::richtext {

struct KeptPiece {
  std::string_view name = {};    // of the word, or of the first word of the group
  std::string_view source = {};  // with what ends it
  std::string_view body = {};    // of a group, behind that word
  bool is_group = false;
  bool has_number = false;
  int number = 0;        // of the word
  int unicode_skip = 1;  // how many bytes stand for a character of Unicode in the group
};

// The pieces are parts of `rtf`. Texts between them are left out.
std::vector<KeptPiece> KeptPieces(std::string_view rtf);

}  // namespace tarnwell::richtext
