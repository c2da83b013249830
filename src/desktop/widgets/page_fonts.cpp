#include "desktop/widgets/page_fonts.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/text.h"
#include "forms/services.h"

namespace tarnwell::desktop {
namespace {

constexpr std::size_t kFontsKept = 64;

QFont Styled(const forms::Font& font) {
  QFont styled(FromCore(font.name));
  styled.setBold(font.bold);
  styled.setItalic(font.italic);
  styled.setUnderline(font.underline);
  styled.setStrikeOut(font.strike);
  return styled;
}

// Colours and lines through the letters take no room.
bool HaveOneFace(const forms::Font& a, const forms::Font& b) {
  return a.size == b.size && a.bold == b.bold && a.italic == b.italic && a.name == b.name;
}

// Whether a character is as wide in a text as by itself: it joins with no other one and is no half
// of a pair.
bool StandsAlone(QChar letter) {
  const char16_t code = letter.unicode();
  if (code < 0x300) return true;
  const bool is_european = (code >= 0x370 && code < 0x483) || (code >= 0x48A && code < 0x590);
  const bool is_sign = code >= 0x1E00 && code < 0x2C00 && (code < 0x20D0 || code > 0x20F0);
  const bool is_ideograph = code >= 0x3040 && code < 0xA000 && code != 0x3099 && code != 0x309A;
  return is_european || is_sign || is_ideograph || (code >= 0xAC00 && code < 0xD7A4);
}

}  // namespace

QFont ScreenFont(const forms::Font& font) {
  QFont screen = Styled(font);
  screen.setPointSizeF(font.size);
  return screen;
}

QFont PageFont(const forms::Font& font) {
  QFont page = Styled(font);
  page.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * forms::kTwipsPerPoint))));
  page.setHintingPreference(QFont::PreferNoHinting);
  page.setStyleStrategy(QFont::PreferNoShaping);
  page.setKerning(false);
  return page;
}

int PageMetrics::Width(const forms::Font& font, std::string_view text) {
  const std::vector<double>& advances = AdvancesOf(font);
  double width = 0;
  for (char letter : text) width += advances[static_cast<unsigned char>(letter)];
  return static_cast<int>(std::ceil(width));
}

double PageMetrics::Utf8Width(const forms::Font& font, std::string_view utf8) {
  const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
  if (!std::ranges::all_of(text, StandsAlone)) {
    return QFontMetricsF(PageFont(font)).horizontalAdvance(text);
  }
  auto& known = MeasuresOf(font).others;
  double width = 0;
  for (QChar letter : text) {
    const auto [advance, is_new] = known.try_emplace(letter.unicode(), 0.0);
    if (is_new) advance->second = QFontMetricsF(PageFont(font)).horizontalAdvance(letter);
    width += advance->second;
  }
  return width;
}

int PageMetrics::LineHeight(const forms::Font& font) { return MeasuresOf(font).line_height; }

int PageMetrics::Ascent(const forms::Font& font) { return MeasuresOf(font).ascent; }

const std::vector<double>& PageMetrics::AdvancesOf(const forms::Font& font) {
  std::vector<double>& advances = MeasuresOf(font).advances;
  if (!advances.empty()) return advances;
  const QFontMetricsF metrics(PageFont(font));
  for (int code = 0; code < 256; ++code) {
    const char letter = static_cast<char>(code);
    advances.push_back(metrics.horizontalAdvance(FromCore({&letter, 1})));
  }
  return advances;
}

PageMetrics::Measures& PageMetrics::MeasuresOf(const forms::Font& font) {
  const auto found = std::ranges::find_if(
      known_, [&](const Known& known) { return HaveOneFace(known.font, font); });
  if (found != known_.end()) {
    if (found != known_.begin()) std::rotate(known_.begin(), found, found + 1);
    return *known_.front().measures;
  }
  const QFontMetricsF metrics(PageFont(font));
  auto measures = std::make_unique<Measures>();
  measures->line_height = static_cast<int>(std::ceil(metrics.lineSpacing()));
  measures->ascent = static_cast<int>(std::lround(metrics.ascent()));
  if (known_.size() == kFontsKept) known_.pop_back();
  known_.insert(known_.begin(), {font, std::move(measures)});
  return *known_.front().measures;
}

}  // namespace tarnwell::desktop
