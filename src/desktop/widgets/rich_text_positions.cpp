#include "desktop/widgets/rich_text_positions.h"

#include <algorithm>

#include "desktop/widgets/rich_text_formats.h"

namespace tarnwell::desktop {
namespace {

// UTF-16 units of the character that begins with this byte; 0 for a byte that continues one.
int UnitsOf(char byte) {
  const auto lead = static_cast<unsigned char>(byte);
  if ((lead & 0xC0) == 0x80) return 0;
  return lead >= 0xF0 ? 2 : 1;
}

// Characters that Qt's text keeps for the ends of blocks and frames.
bool PartsBlocks(QChar c) {
  return c == QChar::ParagraphSeparator || c == QChar(0xFDD0) || c == QChar(0xFDD1) ||
         c == QLatin1Char('\r') || c == QChar::Null;
}

}  // namespace

QString ShownInBlock(std::string_view utf8) {
  QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  for (QChar& c : text) {
    if (c == QLatin1Char('\n') || c == QLatin1Char('\f')) {
      c = QChar::LineSeparator;
    } else if (PartsBlocks(c)) {
      c = QChar::ReplacementCharacter;
    }
  }
  return text;
}

std::vector<int> BreaksInWords(std::string_view paragraph) {
  std::vector<int> breaks;
  int letters = 0;
  for (std::size_t i = 0; i < paragraph.size(); ++i) {
    if (UnitsOf(paragraph[i]) == 0) continue;
    if (letters == kLongestWord) {
      breaks.push_back(static_cast<int>(i));
      letters = 0;
    }
    const bool ends_word =
        std::string_view(" \t\n\f-").find(paragraph[i]) != std::string_view::npos;
    letters = ends_word ? 0 : letters + 1;
  }
  return breaks;
}

std::vector<int> SignsIn(const QTextBlock& block) {
  std::vector<int> signs;
  for (auto part = block.begin(); !part.atEnd(); ++part) {
    const QTextFragment fragment = part.fragment();
    if (fragment.charFormat().objectType() != kKeptObject) continue;
    for (int i = 0; i < fragment.length(); ++i) {
      signs.push_back(fragment.position() - block.position() + i);
    }
  }
  return signs;
}

int ToUtf16Offset(std::string_view paragraph, int offset, std::span<const int> signs) {
  if (offset <= 0) return 0;
  int units = 0;
  for (const char byte : paragraph.substr(0, static_cast<std::size_t>(offset))) {
    units += UnitsOf(byte);
  }
  const std::vector<int> breaks = BreaksInWords(paragraph);
  const auto before = std::ranges::upper_bound(breaks, offset) - breaks.begin();
  units += static_cast<int>(before);
  for (const int sign : signs) {
    if (sign <= units) ++units;
  }
  return units;
}

int ToUtf8Offset(std::string_view paragraph, int utf16_offset, std::span<const int> signs) {
  utf16_offset -= static_cast<int>(std::ranges::lower_bound(signs, utf16_offset) - signs.begin());
  const std::vector<int> breaks = BreaksInWords(paragraph);
  auto next_break = breaks.begin();
  int bytes = 0;
  for (const char byte : paragraph) {
    if (next_break != breaks.end() && *next_break == bytes) {
      ++next_break;
      --utf16_offset;
    }
    const int units = UnitsOf(byte);
    if (units > 0 && utf16_offset <= 0) break;
    utf16_offset -= units;
    ++bytes;
  }
  return bytes;
}

}  // namespace tarnwell::desktop
