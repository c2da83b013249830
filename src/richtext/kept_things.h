// What a person would see of the RTF that is only kept.

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

enum class KeptKind {
  kNoteNumber,
  kNestedTable,
  kTextBox,
  kDrawing,
  kPicture,
  kObject,
  kField,
  kPageNumber,
  kComment,
  kHiddenText,
  kDeletedText,  // by a change that is tracked
};

struct KeptThing {
  KeptKind kind = KeptKind::kDrawing;
  std::string rtf;   // the text in it, for a PartReader; of a nested table the whole
  std::string name;  // the author of a comment, the first word of a field; may be empty
};

// In their order. Bookmarks, entries of an index and the like show nothing. `words` are those that
// the format of their run keeps.
std::vector<KeptThing> KeptThings(const Opaque& opaque, std::string_view words = {});

// What `rtf` shows as one line of UTF-8, at most `most` bytes of it.
std::string TextOfPart(std::string_view rtf, std::size_t most);

}  // namespace tarnwell::richtext
