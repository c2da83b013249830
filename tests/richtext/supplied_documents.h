// The templates and texts in data/, as the tests read them.

#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <string>
#include <variant>
#include <vector>

#include "richtext/rich_text_files.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::richtext {

inline constexpr char kData[] = TARNWELL_SOURCE_DIR "/data/";
inline constexpr std::size_t kMarkLength = 45;

inline RichDocument Supplied(const std::string& name) {
  return ReadRichText(FileBytes(kData + name));
}

// Their bytes by name.
inline std::map<std::string, std::string> SuppliedFiles() {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(kData)) {
    const std::string name = entry.path().filename().string();
    const std::string extension = entry.path().extension().string();
    if (extension != ".Fl1" && extension != ".Fl2" && name != "SamplePol.Dat") continue;
    files[name] = FileBytes(entry.path().string());
  }
  return files;
}

inline std::vector<const Paragraph*> AllParagraphs(const RichDocument& document) {
  std::vector<const Paragraph*> all;
  for (const Block& block : document.blocks) {
    if (const auto* const paragraph = std::get_if<Paragraph>(&block)) {
      all.push_back(paragraph);
      continue;
    }
    for (const TableRow& row : std::get<Table>(block).rows) {
      for (const Cell& cell : row.cells) {
        for (const Paragraph& paragraph : cell.paragraphs) all.push_back(&paragraph);
      }
    }
  }
  return all;
}

}  // namespace tarnwell::richtext
