#include "desktop/widgets/page_fonts.h"

#include <QFontMetricsF>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/text.h"

namespace tarnwell::desktop {
namespace {

constexpr double kTwipsPerPoint = 20;
constexpr std::size_t kFontsKept = 16;

QFont Styled(const forms::Font& font) {
  QFont styled(FromCore(font.name));
  styled.setBold(font.bold);
  styled.setItalic(font.italic);
  styled.setUnderline(font.underline);
  styled.setStrikeOut(font.strike);
  return styled;
}

}  // namespace

QFont ScreenFont(const forms::Font& font) {
  QFont screen = Styled(font);
  screen.setPointSizeF(font.size);
  return screen;
}

QFont PageFont(const forms::Font& font) {
  QFont page = Styled(font);
  page.setPixelSize(std::max(1, static_cast<int>(std::lround(font.size * kTwipsPerPoint))));
  page.setHintingPreference(QFont::PreferNoHinting);
  page.setStyleStrategy(QFont::PreferNoShaping);
  page.setKerning(false);
  return page;
}

int PageMetrics::Width(const forms::Font& font, std::string_view text) {
  const Measures& measures = MeasuresOf(font);
  double width = 0;
  for (char letter : text) width += measures.advances[static_cast<unsigned char>(letter)];
  return static_cast<int>(std::ceil(width));
}

int PageMetrics::LineHeight(const forms::Font& font) { return MeasuresOf(font).line_height; }

const PageMetrics::Measures& PageMetrics::MeasuresOf(const forms::Font& font) {
  const auto found = std::ranges::find(known_, font, &std::pair<forms::Font, Measures>::first);
  if (found != known_.end()) {
    std::rotate(known_.begin(), found, found + 1);
    return known_.front().second;
  }
  const QFontMetricsF metrics(PageFont(font));
  Measures measures;
  for (std::size_t i = 0; i < measures.advances.size(); ++i) {
    const char letter = static_cast<char>(i);
    measures.advances[i] = metrics.horizontalAdvance(FromCore({&letter, 1}));
  }
  measures.line_height = static_cast<int>(std::ceil(metrics.lineSpacing()));
  if (known_.size() == kFontsKept) known_.pop_back();
  known_.insert(known_.begin(), {font, measures});
  return known_.front().second;
}

}  // namespace tarnwell::desktop
