// A group's source, taken as it stands.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "richtext/rtf_tokenizer.h"

namespace tarnwell::richtext {

struct Captured {
  std::string_view body;  // up to the group's end, which is still to be read
  int missing_ends = 0;   // groups inside that the source breaks off in

  // The body as a group of its own. `unicode_skip` is what \uc was at its place: the group says so
  // itself unless it is 1, which is what a written document goes by.
  std::string Rtf(int unicode_skip) const;
};

// Takes everything from `begin` to the end of the group that is open at the tokenizer's place.
// Nothing if the source breaks off inside binary data.
std::optional<Captured> CaptureGroup(Tokenizer& tokenizer, std::size_t begin);

// A word's source without the blank that only ends it.
std::string_view WordSource(const Tokenizer& tokenizer, const Token& token);

}  // namespace tarnwell::richtext
