// Formats to control words.

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "richtext/rich_document.h"

namespace tarnwell::richtext {

// The fonts and colours of the document that is being written: its own, with their numbers, and
// behind them those that it lacks.
class WriterTables {
 public:
  explicit WriterTables(const RichDocument& document);

  int FontNumber(const std::string& name);
  int CodePageOf(const std::string& font) const;  // of bytes; an empty name is the default font's
  bool has_east_asian_fonts() const { return has_east_asian_fonts_; }
  int ColorNumber(const std::optional<Color>& color);
  bool HasOwnColor() const;  // an entry that stands for the view's own colour
  const std::string& default_font() const { return default_font_; }

  // Both groups, as far as they hold anything.
  std::string Rtf() const;

 private:
  int FreeNumber() const;

  std::vector<Font> fonts_;
  std::vector<std::optional<Color>> colors_;
  int code_page_;
  int default_number_;
  std::string default_font_;
  bool has_east_asian_fonts_ = false;
};

// The words that give this format behind any other.
std::string AllCharacterWords(const CharacterFormat& format, WriterTables& tables);

// The words that change one format to the other; empty if nothing changes.
std::string CharacterWords(const CharacterFormat& from, const CharacterFormat& to,
                           WriterTables& tables);

// The words behind \pard, without those of a list. In a paragraph with a style they name every
// property that either has, so that a reader needn't know the style; but \pagebb only where there
// is one, because others read \pagebb0 as a break too. `style` is null if the sheet doesn't list
// it.
std::string ParagraphWords(const ParagraphFormat& format, const ParagraphFormat* style);

}  // namespace tarnwell::richtext
