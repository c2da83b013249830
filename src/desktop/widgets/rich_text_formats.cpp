#include "desktop/widgets/rich_text_formats.h"

#include <QFontMetricsF>
#include <algorithm>

#include "richtext/capitals.h"
#include "richtext/paragraph_frame.h"
#include "richtext/paragraphs.h"

namespace tarnwell::desktop {
namespace {

constexpr double kTwipsPerInch = 1440;
constexpr int kSingleSpacing = 240;
constexpr int kMarkerGap = 120;  // twips

QColor ColorOf(const richtext::Color& color) { return {color.red, color.green, color.blue}; }

// What Qt draws itself; empty for the view's own.
std::optional<QTextCharFormat::UnderlineStyle> StyleOf(richtext::Underline underline) {
  using richtext::Underline;
  switch (underline) {
    case Underline::kNone:
      return QTextCharFormat::NoUnderline;
    case Underline::kSingle:
      return QTextCharFormat::SingleUnderline;
    case Underline::kDotted:
      return QTextCharFormat::DotLine;
    case Underline::kWave:
      return QTextCharFormat::WaveUnderline;
    case Underline::kDash:
      return QTextCharFormat::DashUnderline;
    case Underline::kDashDot:
      return QTextCharFormat::DashDotLine;
    case Underline::kDashDotDot:
      return QTextCharFormat::DashDotDotLine;
    default:
      return std::nullopt;
  }
}

QFont::Capitalization CapitalizationOf(const richtext::CharacterFormat& format) {
  switch (richtext::CapitalsOf(format)) {
    case richtext::CapitalLetters::kAll:
      return QFont::AllUppercase;
    case richtext::CapitalLetters::kSmall:
      return QFont::SmallCaps;
    default:
      return QFont::MixedCase;
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

bool IsLine(const richtext::Border& border) {
  return StyleOf(border) != QTextFrameFormat::BorderStyle_None;
}

Qt::PenStyle PenOf(const richtext::Border& border) {
  if (StyleOf(border) == QTextFrameFormat::BorderStyle_Dotted) return Qt::DotLine;
  return StyleOf(border) == QTextFrameFormat::BorderStyle_Dashed ? Qt::DashLine : Qt::SolidLine;
}

QString UsualFontOf(const richtext::RichDocument& document) {
  const std::string font = richtext::DefaultFontName(document);
  return QString::fromStdString(font.empty() ? richtext::kUsualFont : font);
}

}  // namespace

QVariant ShownFrame::ToVariant() const {
  QVariantList list{fill};
  for (const Side& side : sides) {
    list << side.width << side.distance << side.color << static_cast<int>(side.style)
         << side.is_double;
  }
  return list;
}

ShownFrame ShownFrame::Of(const QTextBlockFormat& format) {
  ShownFrame frame;
  const QVariantList list = format.property(kFrameProperty).toList();
  if (list.isEmpty()) return frame;
  frame.fill = list[0].value<QColor>();
  qsizetype next = 1;
  for (Side& side : frame.sides) {
    side.width = list[next].toDouble();
    side.distance = list[next + 1].toDouble();
    side.color = list[next + 2].value<QColor>();
    side.style = static_cast<Qt::PenStyle>(list[next + 3].toInt());
    side.is_double = list[next + 4].toBool();
    next += 5;
  }
  return frame;
}

RichTextFormats::RichTextFormats(const QPaintDevice& device, double zoom,
                                 const richtext::RichDocument& document)
    : pixels_per_twip_(device.logicalDpiX() / kTwipsPerInch * zoom),
      zoom_(zoom),
      font_(UsualFontOf(document)),
      colors_(document.colors) {}

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
    const auto style = StyleOf(format.underline);
    if (style) out.setUnderlineStyle(*style);
    if (!style) out.setProperty(kUnderlineProperty, static_cast<int>(format.underline));
  }
  if (!format.other.empty()) {
    const QFont::Capitalization capitals = CapitalizationOf(format);
    if (capitals != QFont::MixedCase) out.setFontCapitalization(capitals);
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
  if (!format.tabs.empty()) AddTabs(format, out);
  if (!format.other.empty()) AddFrame(format, out);
  if (format.page_break_before) {
    out.setProperty(kPageBreakBeforeProperty, true);
    out.setPageBreakPolicy(QTextFormat::PageBreak_AlwaysBefore);
  }
  if (!paragraph.section_break.empty() &&
      paragraph.section_break.find("\\sbknone") == std::string::npos) {
    out.setProperty(kPageBreakBehindProperty, true);
    out.setPageBreakPolicy(out.pageBreakPolicy() | QTextFormat::PageBreak_AlwaysAfter);
  }
  AddMarker(paragraph, out);
  return out;
}

void RichTextFormats::AddTabs(const richtext::ParagraphFormat& format,
                              QTextBlockFormat& out) const {
  QList<QTextOption::Tab> tabs;
  QVariantList leaders;
  bool has_leader = false;
  for (const richtext::TabStop& tab : format.tabs) {
    if (tab.kind == richtext::TabStop::Kind::kBar) continue;
    // Qt counts from where the line begins.
    const double position = Pixels(tab.position - format.left_indent);
    if (position <= 0) continue;
    tabs.append(QTextOption::Tab(position, TypeOf(tab.kind), QLatin1Char('.')));
    leaders << position << static_cast<int>(tab.leader);
    has_leader = has_leader || tab.leader != richtext::TabStop::Leader::kNone;
  }
  if (!tabs.isEmpty()) out.setTabPositions(tabs);
  if (has_leader) out.setProperty(kLeadersProperty, leaders);
}

// The frame's lines and what they keep off the text stand between two paragraphs.
void RichTextFormats::AddFrame(const richtext::ParagraphFormat& format,
                               QTextBlockFormat& out) const {
  const richtext::ParagraphFrame frame = richtext::FrameOf(format, colors_);
  if (frame.is_empty()) return;
  ShownFrame shown;
  if (frame.fill) shown.fill = ColorOf(*frame.fill);
  std::size_t next = 0;
  for (const auto* given : {&frame.top, &frame.left, &frame.bottom, &frame.right, &frame.between}) {
    ShownFrame::Side& line = shown.sides[next++];
    line.distance = Pixels(given->distance);
    if (!IsLine(given->border)) continue;
    line.width = std::max(1.0, Pixels(given->border.width));
    line.color = given->border.color ? ColorOf(*given->border.color) : QColor(Qt::black);
    line.style = PenOf(given->border);
    line.is_double = given->border.style == "brdrdb";
  }
  out.setProperty(kFrameProperty, shown.ToVariant());
  const auto room = [&shown](std::size_t i) {
    return shown.sides[i].width > 0 ? shown.sides[i].distance + shown.sides[i].width : 0;
  };
  out.setTopMargin(out.topMargin() + room(0));
  out.setBottomMargin(out.bottomMargin() + room(2));
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
