#include "print/text_wrap.h"

#include <algorithm>

namespace tarnwell::print {
namespace {

// How many characters of `text` fit, at least 1 of a text that isn't empty.
std::size_t FittingLength(forms::TextMetrics& metrics, const forms::Font& font,
                          std::string_view text, int width) {
  std::size_t fits = std::min<std::size_t>(text.size(), 1);
  std::size_t least_too_long = text.size() + 1;
  while (fits + 1 < least_too_long) {
    const std::size_t middle = fits + (least_too_long - fits) / 2;
    (metrics.Width(font, text.substr(0, middle)) <= width ? fits : least_too_long) = middle;
  }
  return fits;
}

// Ends a line behind `length` characters, or at a blank before it. Never at the blanks with which
// the line begins.
std::size_t BreakBefore(std::string_view text, std::size_t length) {
  if (length == text.size() || text[length] == ' ') return length;
  const std::size_t first_word = text.find_first_not_of(' ');
  const std::size_t blank = text.rfind(' ', length);
  return blank == std::string_view::npos || blank < first_word ? length : blank;
}

}  // namespace

std::vector<std::string> WrapText(forms::TextMetrics& metrics, const forms::Font& font,
                                  std::string_view text, int width) {
  // A line longer than this is broken in any case, so that each step measures a bounded text.
  constexpr std::size_t kLongestLine = 2000;
  std::vector<std::string> lines;
  while (true) {
    const std::size_t line_end = std::min(text.find('\n'), text.size());
    std::string_view line = text.substr(0, line_end);
    if (line.ends_with('\r')) line.remove_suffix(1);
    do {
      const std::size_t fits = FittingLength(metrics, font, line.substr(0, kLongestLine), width);
      const std::size_t end = BreakBefore(line, fits);
      lines.emplace_back(line.substr(0, end));
      line.remove_prefix(end);
      if (line.starts_with(' '))
        line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
    } while (!line.empty());
    if (line_end == text.size()) return lines;
    text.remove_prefix(line_end + 1);
  }
}

}  // namespace tarnwell::print
