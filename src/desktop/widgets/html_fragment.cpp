#include "desktop/widgets/html_fragment.h"

#include <QGuiApplication>
#include <QScreen>
#include <QTextBlock>
#include <QTextList>
#include <QTextTable>
#include <algorithm>
#include <cmath>

#include "desktop/widgets/closed_document.h"
#include "desktop/widgets/html_lists.h"
#include "forms/services.h"
#include "richtext/limits.h"

namespace tarnwell::desktop {
namespace {

constexpr int kTwipsPerLevel = 360;
constexpr int kTableWidth = 8640;  // twips, the text's width of a usual page
constexpr int kMostLevel = 8;

int Twips(double pixels) {
  return std::clamp(static_cast<int>(std::lround(pixels * forms::kTwipsPerPixel)), 0,
                    richtext::kLongestLength);
}

richtext::Color ColorOf(const QBrush& brush) {
  const QColor color = brush.color();
  const auto part = [](int value) { return static_cast<std::uint8_t>(value); };
  return {part(color.red()), part(color.green()), part(color.blue())};
}

int HalfPointsOf(const QTextCharFormat& format) {
  double points = format.fontPointSize();
  const QFont font = format.font();
  if (points <= 0 && format.hasProperty(QTextFormat::FontPixelSize)) {
    points = static_cast<double>(font.pixelSize() * forms::kTwipsPerPixel) / forms::kTwipsPerPoint;
  }
  if (points <= 0) points = 12;
  constexpr double kSteps[] = {0.7, 0.85, 1, 1.2, 1.5, 2, 2.4};
  const int adjustment = format.intProperty(QTextFormat::FontSizeAdjustment);
  points *= kSteps[std::clamp(adjustment + 2, 0, 6)];
  return std::clamp(static_cast<int>(std::lround(std::min(points, 1e4) * 2)), 1,
                    richtext::kLargestHalfPoints);
}

richtext::CharacterFormat FormatOf(const QTextCharFormat& format) {
  richtext::CharacterFormat out;
  const QStringList families = format.fontFamilies().toStringList();
  if (!families.isEmpty()) out.font = families.front().toStdString();
  out.half_points = HalfPointsOf(format);
  out.bold = format.fontWeight() >= QFont::DemiBold;
  out.italic = format.fontItalic();
  out.strike = format.fontStrikeOut();
  if (format.fontUnderline()) out.underline = richtext::Underline::kSingle;
  if (format.verticalAlignment() == QTextCharFormat::AlignSuperScript) {
    out.script = richtext::Script::kSuperscript;
  } else if (format.verticalAlignment() == QTextCharFormat::AlignSubScript) {
    out.script = richtext::Script::kSubscript;
  }
  if (format.hasProperty(QTextFormat::ForegroundBrush)) out.color = ColorOf(format.foreground());
  const bool has_ground = format.background().style() == Qt::SolidPattern;
  if (has_ground) out.highlight = ColorOf(format.background());
  return out;
}

std::optional<richtext::ListItem> ItemOf(const QTextBlock& block) {
  const QTextList* const list = block.textList();
  if (list == nullptr) return std::nullopt;
  richtext::ListItem item;
  item.level = std::clamp(list->format().indent() - 1, 0, kMostLevel);
  item.numbered = list->format().style() <= QTextListFormat::ListDecimal;
  item.marker = item.numbered ? MarkerOf(*list, block).toStdString() : "\u2022";
  return item;
}

// Whether the block's list was begun anew right before it, where the page's list just goes on.
bool GoesOn(const QTextBlock& block) {
  const QTextList* const list = block.textList();
  return list != nullptr && ItemsBefore(*list) > 0 && list->item(0) == block;
}

richtext::ParagraphFormat ParagraphOf(const QTextBlock& block) {
  const QTextBlockFormat format = block.blockFormat();
  richtext::ParagraphFormat out;
  const Qt::Alignment alignment = format.alignment();
  if (alignment & Qt::AlignHCenter) out.alignment = richtext::Alignment::kCenter;
  if (alignment & Qt::AlignRight) out.alignment = richtext::Alignment::kRight;
  if (alignment & Qt::AlignJustify) out.alignment = richtext::Alignment::kJustify;
  out.left_indent = Twips(format.leftMargin()) + format.indent() * 2 * kTwipsPerLevel;
  out.right_indent = Twips(format.rightMargin());
  out.space_before = GoesOn(block) ? 0 : Twips(format.topMargin());
  out.space_after = GoesOn(block.next()) ? 0 : Twips(format.bottomMargin());
  out.list = ItemOf(block);
  if (out.list) {
    out.left_indent = (out.list->level + 1) * 2 * kTwipsPerLevel;
    out.first_line_indent = -kTwipsPerLevel;
  }
  return out;
}

// Only what stands in the page itself, as "data:image/png;base64,…".
std::optional<richtext::Picture> PictureOf(const QTextImageFormat& format) {
  const QString name = format.name();
  const bool is_png = name.startsWith(QLatin1String("data:image/png;base64,"));
  if (!is_png && !name.startsWith(QLatin1String("data:image/jpeg;base64,"))) return std::nullopt;
  richtext::Picture picture;
  picture.kind = is_png ? richtext::Picture::Kind::kPng : richtext::Picture::Kind::kJpeg;
  const QByteArray base64 = name.mid(name.indexOf(QLatin1Char(',')) + 1).toLatin1();
  picture.bytes = QByteArray::fromBase64(base64).toStdString();
  if (picture.bytes.empty()) return std::nullopt;
  picture.width = Twips(format.width());
  picture.height = Twips(format.height());
  return picture;
}

void AddFragment(const QTextFragment& fragment, richtext::Paragraph& paragraph) {
  const QTextCharFormat format = fragment.charFormat();
  if (format.isImageFormat()) {
    if (auto picture = PictureOf(format.toImageFormat())) {
      paragraph.runs.push_back({FormatOf(format), std::move(*picture), richtext::kNoField});
    }
    return;
  }
  QString text = fragment.text();
  text.replace(QChar::LineSeparator, QLatin1Char('\n'));
  text.remove(QChar::ObjectReplacementCharacter);
  if (text.isEmpty()) return;
  paragraph.runs.push_back({FormatOf(format), text.toStdString(), richtext::kNoField});
}

richtext::Paragraph ParagraphFrom(const QTextBlock& block) {
  richtext::Paragraph paragraph;
  paragraph.format = ParagraphOf(block);
  paragraph.mark = FormatOf(block.charFormat());
  for (auto part = block.begin(); !part.atEnd(); ++part) AddFragment(part.fragment(), paragraph);
  return paragraph;
}

void AddBlocks(QTextFrame::iterator begin, std::vector<richtext::Block>& blocks);

richtext::Cell CellFrom(const QTextTableCell& cell, bool has_border) {
  richtext::Cell out;
  std::vector<richtext::Block> blocks;
  AddBlocks(cell.begin(), blocks);
  for (richtext::Block& block : blocks) {
    // A table inside a cell has no place in a document; its texts stay.
    if (auto* const inner = std::get_if<richtext::Table>(&block)) {
      for (richtext::TableRow& row : inner->rows) {
        for (richtext::Cell& part : row.cells) {
          std::ranges::move(part.paragraphs, std::back_inserter(out.paragraphs));
        }
      }
    } else {
      out.paragraphs.push_back(std::move(std::get<richtext::Paragraph>(block)));
    }
  }
  if (out.paragraphs.empty()) out.paragraphs.emplace_back();
  if (has_border) {
    richtext::Border border;
    border.style = "brdrs";
    border.width = forms::kTwipsPerPixel;
    out.top = out.left = out.bottom = out.right = border;
  }
  return out;
}

richtext::Table TableFrom(const QTextTable& table) {
  richtext::Table out;
  const bool has_border = table.format().border() > 0;
  const int width = kTableWidth / std::max(1, table.columns());
  for (int row = 0; row < table.rows(); ++row) {
    richtext::TableRow& cells = out.rows.emplace_back();
    cells.half_gap = 108;
    for (int column = 0; column < table.columns();) {
      const QTextTableCell cell = table.cellAt(row, column);
      const int span = std::max(1, cell.column() + cell.columnSpan() - column);
      richtext::Cell part = CellFrom(cell, has_border);
      if (cell.rowSpan() > 1) part.other = cell.row() == row ? "\\clvmgf" : "\\clvmrg";
      // A cell that reaches down from a row above is empty here.
      if (cell.row() != row) part.paragraphs.assign(1, {});
      column += span;
      part.right_edge = column * width;
      cells.cells.push_back(std::move(part));
    }
  }
  return out;
}

void AddBlocks(QTextFrame::iterator it, std::vector<richtext::Block>& blocks) {
  for (; !it.atEnd(); ++it) {
    if (const auto* const table = qobject_cast<QTextTable*>(it.currentFrame())) {
      blocks.emplace_back(TableFrom(*table));
    } else if (const QTextFrame* const frame = it.currentFrame()) {
      AddBlocks(frame->begin(), blocks);
    } else if (it.currentBlock().isValid()) {
      blocks.emplace_back(ParagraphFrom(it.currentBlock()));
    }
  }
}

// Qt needs a block on either side of a table, which the page didn't have.
void DropEmptyEnds(std::vector<richtext::Block>& blocks) {
  const auto is_empty = [](const richtext::Block& block) {
    const auto* const paragraph = std::get_if<richtext::Paragraph>(&block);
    return paragraph != nullptr && paragraph->runs.empty();
  };
  if (blocks.size() > 1 && is_empty(blocks.front())) blocks.erase(blocks.begin());
  if (blocks.size() > 1 && is_empty(blocks.back())) blocks.pop_back();
}

}  // namespace

richtext::RichDocument HtmlFragment(const QString& html) {
  ClosedDocument page;
  page.setHtml(WithShortLists(html));
  richtext::RichDocument fragment;
  AddBlocks(page.rootFrame()->begin(), fragment.blocks);
  DropEmptyEnds(fragment.blocks);
  return fragment;
}

}  // namespace tarnwell::desktop
