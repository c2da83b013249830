// The status words of the documents. docs/formats/stat1.md has the layout.

#pragma once

#include <array>
#include <span>
#include <string>
#include <string_view>

#include "storage/program_folder.h"

namespace tarnwell::workarea {

inline constexpr int kStatusRecords = 70;

// The words that a document's status is chosen from, and that of a worksheet.
std::span<const std::string_view> StatusWords();
std::span<const std::string_view> ComplianceWords();
inline constexpr std::string_view kNotImplemented = "Not Implemented";

// The record of a numbered document.
constexpr int StatusRecord(int document) { return document + 1; }
// And of a worksheet, by the number of its button.
constexpr int WorksheetRecord(int worksheet) { return worksheet + 48; }

// All words, as they were read last or put since.
class DocumentStatus {
 public:
  // A file that is missing gives empty words, and so does one that can't be read: the outcome
  // tells.
  storage::Outcome Read(storage::ProgramFolder& folder);
  // Writes one word. When the disk refuses, the old one stays.
  storage::Outcome Put(storage::ProgramFolder& folder, int record, std::string_view word);

  // Empty for a record that was never written, and for one outside 1 to 70.
  std::string_view operator[](int record) const;
  // The place among `words` of what is stored; the first one, a blank, for anything else.
  int PlaceOf(int record, std::span<const std::string_view> words) const;

 private:
  std::array<std::string, kStatusRecords + 1> words_;  // by record; place 0 isn't used
};

}  // namespace tarnwell::workarea
