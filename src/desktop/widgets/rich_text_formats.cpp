#include "desktop/widgets/rich_text_formats.h"

#include <QFontMetricsF>
#include <algorithm>

namespace tarnwell::desktop {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kSingleSpacing = 240;
constexpr int kMarkerGap = 120;  // twips

QColor ColorOf(const richtext::Color& color) { return {color.red, color.green, color.blue}; }

QTextCharFormat::UnderlineStyle StyleOf(richtext::Underline underline) {
  using richtext::Underline;
  switch (underline) {
    case Underline::kNone:
      return QTextCharFormat::NoUnderline;
    case Underline::kDotted:
    case Underline::kThickDotted:
      return QTextCharFormat::DotLine;
    case Underline::kWave:
    case Underline::kHeavyWave:
    case Underline::kDoubleWave:
      return QTextCharFormat::WaveUnderline;
    case Underline::kDash:
    case Underline::kLongDash:
    case Underline::kThickDash:
    case Underline::kThickLongDash:
      return QTextCharFormat::DashUnderline;
    case Underline::kDashDot:
    case Underline::kThickDashDot:
      return QTextCharFormat::DashDotLine;
    case Underline::kDashDotDot:
    case Underline::kThickDashDotDot:
      return QTextCharFormat::DashDotDotLine;
    default:
      return QTextCharFormat::SingleUnderline;
  }
}

Qt::Alignment AlignmentOf(richtext::Alignment alignment) {
  switch (alignment) {
    case richtext::Alignment::kCenter:
      return Qt::AlignHCenter;
    case richtext::Alignment::kRight:
      return Qt::AlignRight | Qt::AlignAbsolute;
    case richtext::Alignment::kJustify:
      return Qt::AlignJustify;
    case richtext::Alignment::kLeft:
      break;
  }
  return Qt::AlignLeft | Qt::AlignAbsolute;
}

QTextOption::TabType TypeOf(richtext::TabStop::Kind kind) {
  switch (kind) {
    case richtext::TabStop::Kind::kCenter:
      return QTextOption::CenterTab;
    case richtext::TabStop::Kind::kRight:
      return QTextOption::RightTab;
    case richtext::TabStop::Kind::kDecimal:
      return QTextOption::DelimiterTab;
    default:
      return QTextOption::LeftTab;
  }
}

QTextFrameFormat::BorderStyle StyleOf(const richtext::Border& border) {
  if (border.style.empty() || border.style == "brdrnone" || border.style == "brdrnil") {
    return QTextFrameFormat::BorderStyle_None;
  }
  if (border.style == "brdrdb") return QTextFrameFormat::BorderStyle_Double;
  if (border.style == "brdrdot") return QTextFrameFormat::BorderStyle_Dotted;
  if (border.style.starts_with("brdrdash")) return QTextFrameFormat::BorderStyle_Dashed;
  return QTextFrameFormat::BorderStyle_Solid;
}

}  // namespace

RichTextFormats::RichTextFormats(const QPaintDevice& device, double zoom, const std::string& font)
    : pixels_per_twip_(device.logicalDpiX() / kTwipsPerInch * zoom),
      zoom_(zoom),
      font_(QString::fromStdString(font.empty() ? richtext::kUsualFont : font)) {}

QTextCharFormat RichTextFormats::Of(const richtext::CharacterFormat& format) const {
  QTextCharFormat out;
  out.setFontFamilies({format.font.empty() ? font_ : QString::fromStdString(format.font)});
  out.setFontPointSize(format.half_points / 2.0 * zoom_);
  // Lines then break at the same words at any zoom.
  out.setFontHintingPreference(QFont::PreferNoHinting);
  if (format.bold) out.setFontWeight(QFont::Bold);
  if (format.italic) out.setFontItalic(true);
  if (format.strike) out.setFontStrikeOut(true);
  if (format.underline != richtext::Underline::kNone) {
    out.setUnderlineStyle(StyleOf(format.underline));
  }
  if (format.script == richtext::Script::kSuperscript) {
    out.setVerticalAlignment(QTextCharFormat::AlignSuperScript);
  } else if (format.script == richtext::Script::kSubscript) {
    out.setVerticalAlignment(QTextCharFormat::AlignSubScript);
  }
  if (format.color) out.setForeground(ColorOf(*format.color));
  if (format.highlight) out.setBackground(ColorOf(*format.highlight));
  return out;
}

QTextBlockFormat RichTextFormats::Of(const richtext::Paragraph& paragraph) const {
  const richtext::ParagraphFormat& format = paragraph.format;
  QTextBlockFormat out;
  out.setAlignment(AlignmentOf(format.alignment));
  out.setLeftMargin(Pixels(format.left_indent));
  out.setRightMargin(Pixels(format.right_indent));
  out.setTextIndent(Pixels(format.first_line_indent));
  out.setTopMargin(Pixels(format.space_before));
  out.setBottomMargin(Pixels(format.space_after));
  const int spacing = format.line_spacing;
  if (format.line_spacing_is_multiple && spacing > 0) {
    out.setLineHeight(spacing * 100.0 / kSingleSpacing, QTextBlockFormat::ProportionalHeight);
  } else if (spacing > 0) {
    out.setLineHeight(Pixels(spacing), QTextBlockFormat::MinimumHeight);
  } else if (spacing < 0) {
    out.setLineHeight(Pixels(-spacing), QTextBlockFormat::FixedHeight);
  }
  QList<QTextOption::Tab> tabs;
  for (const richtext::TabStop& tab : format.tabs) {
    if (tab.kind == richtext::TabStop::Kind::kBar) continue;
    // Qt counts from where the line begins.
    const double position = Pixels(tab.position - format.left_indent);
    if (position > 0) tabs.append(QTextOption::Tab(position, TypeOf(tab.kind), QLatin1Char('.')));
  }
  if (!tabs.isEmpty()) out.setTabPositions(tabs);
  if (format.page_break_before) out.setProperty(kPageBreakBeforeProperty, true);
  if (!paragraph.section_break.empty() &&
      paragraph.section_break.find("\\sbknone") == std::string::npos) {
    out.setProperty(kPageBreakBehindProperty, true);
  }
  AddMarker(paragraph, out);
  return out;
}

void RichTextFormats::AddMarker(const richtext::Paragraph& paragraph,
                                QTextBlockFormat& format) const {
  if (!paragraph.format.list || paragraph.format.list->marker.empty()) return;
  const QString marker = QString::fromStdString(paragraph.format.list->marker);
  QFont font = Of(paragraph.mark).font();
  font.setUnderline(false);
  const double place = Pixels(paragraph.format.first_line_indent);
  const double width = QFontMetricsF(font).horizontalAdvance(marker) + Pixels(kMarkerGap);
  format.setTextIndent(std::max(0.0, place + width));
  format.setProperty(kMarkerProperty, marker);
  format.setProperty(kMarkerPlaceProperty, place);
}

QTextTableCellFormat RichTextFormats::Of(const richtext::Cell& cell, int half_gap) const {
  QTextTableCellFormat out;
  out.setLeftPadding(Pixels(half_gap));
  out.setRightPadding(Pixels(half_gap));
  const auto thickness = [this](const richtext::Border& border) {
    return std::max(1.0, Pixels(border.width));
  };
  const auto brush = [](const richtext::Border& border) {
    return QBrush(border.color ? ColorOf(*border.color) : QColor(Qt::black));
  };
  out.setTopBorderStyle(StyleOf(cell.top));
  out.setTopBorder(thickness(cell.top));
  out.setTopBorderBrush(brush(cell.top));
  out.setLeftBorderStyle(StyleOf(cell.left));
  out.setLeftBorder(thickness(cell.left));
  out.setLeftBorderBrush(brush(cell.left));
  out.setBottomBorderStyle(StyleOf(cell.bottom));
  out.setBottomBorder(thickness(cell.bottom));
  out.setBottomBorderBrush(brush(cell.bottom));
  out.setRightBorderStyle(StyleOf(cell.right));
  out.setRightBorder(thickness(cell.right));
  out.setRightBorderBrush(brush(cell.right));
  if (cell.fill) out.setBackground(ColorOf(*cell.fill));
  return out;
}

}  // namespace tarnwell::desktop
