// The documents in tests/data/rtf and the worked example of the page on their format.

#pragma once

#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "richtext/rich_text_reader.h"

namespace tarnwell::richtext {

inline std::string FileBytes(const std::string& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

inline std::string TestBytes(const std::string& name) {
  return FileBytes(TARNWELL_TEST_DATA "/rtf/" + name);
}

inline RichDocument TestDocument(const std::string& name) { return ReadRichText(TestBytes(name)); }

inline const Paragraph& ParagraphAt(const RichDocument& document, std::size_t index) {
  return std::get<Paragraph>(document.blocks.at(index));
}

// The format of the run whose text is `text`; a default one of size 0 if there is none.
inline CharacterFormat FormatOf(const Paragraph& paragraph, const std::string& text) {
  for (const Run& run : paragraph.runs) {
    const auto* const own = std::get_if<std::string>(&run.content);
    if (own != nullptr && *own == text) return run.format;
  }
  CharacterFormat none;
  none.half_points = 0;
  return none;
}

inline std::vector<Picture> PicturesOf(const Paragraph& paragraph) {
  std::vector<Picture> pictures;
  for (const Run& run : paragraph.runs) {
    if (const auto* const picture = std::get_if<Picture>(&run.content)) {
      pictures.push_back(*picture);
    }
  }
  return pictures;
}

}  // namespace tarnwell::richtext
