#include "desktop/widgets/rich_text_positions.h"

#include <algorithm>

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

int ToUtf16Offset(std::string_view utf8, int offset) {
  int units = 0;
  for (const char byte : utf8.substr(0, static_cast<std::size_t>(std::max(offset, 0)))) {
    units += UnitsOf(byte);
  }
  return units;
}

int ToUtf8Offset(std::string_view utf8, int utf16_offset) {
  int bytes = 0;
  for (const char byte : utf8) {
    const int units = UnitsOf(byte);
    if (units > 0 && utf16_offset <= 0) break;
    utf16_offset -= units;
    ++bytes;
  }
  return bytes;
}

}  // namespace tarnwell::desktop
