#include "desktop/widgets/rich_text_renderer.h"

#include <QTextBlock>
#include <algorithm>
#include <limits>
#include <optional>
#include <ranges>
#include <utility>

#include "desktop/widgets/rich_text_pictures.h"
#include "desktop/widgets/rich_text_positions.h"
#include "richtext/paragraphs.h"
#include "richtext/table_grid.h"

namespace tarnwell::desktop {
namespace {

constexpr int kUsualTabDistance = 720;  // twips

using Paragraphs = std::vector<const richtext::Paragraph*>;

bool IsTable(const richtext::Block& block) {
  return std::holds_alternative<richtext::Table>(block);
}

bool EndsUnwritten(const richtext::RichDocument& document) {
  return document.blocks.empty() || IsTable(document.blocks.back());
}

// A block that stands only before a table takes hardly any room.
void MakeThin(QTextCursor& cursor) {
  QTextBlockFormat format;
  format.setLineHeight(1, QTextBlockFormat::FixedHeight);
  cursor.setBlockFormat(format);
}

// Qt keeps a cell's own format, its spans and its fill too, in the format of the cell's first
// block.
void SetMark(QTextCharFormat mark, const QTextTable* table, QTextCursor& cursor) {
  const QTextTableCell cell = table != nullptr ? table->cellAt(cursor) : QTextTableCell();
  if (cell.isValid() && cell.firstPosition() == cursor.block().position()) {
    mark.clearBackground();
    const QMap<int, QVariant> all = cell.format().properties();
    for (auto it = all.begin(); it != all.end(); ++it) {
      const bool is_of_table = it.key() >= QTextFormat::TableCellRowSpan &&
                               it.key() <= QTextFormat::TableCellRightBorderBrush;
      if (is_of_table || it.key() == QTextFormat::BackgroundBrush)
        mark.setProperty(it.key(), it.value());
    }
    mark.setObjectType(QTextFormat::TableCellObject);
  }
  cursor.setBlockCharFormat(mark);
}

// A paragraph of one line and one format is 1; letters and formats take time too.
constexpr std::size_t kTextOfLine = 100;
constexpr std::size_t kRunsOfLine = 4;
constexpr std::size_t kCellWork = 3;

std::size_t WorkOf(const richtext::Paragraph& paragraph) {
  std::size_t text = 0;
  for (const richtext::Run& run : paragraph.runs) text += richtext::ShownText(run).size();
  return 1 + text / kTextOfLine + paragraph.runs.size() / kRunsOfLine;
}

int EndOf(const QTextBlock& block) { return block.position() + block.length() - 1; }

Paragraphs ParagraphsOf(const richtext::Cell& cell) {
  Paragraphs paragraphs;
  for (const richtext::Paragraph& paragraph : cell.paragraphs) paragraphs.push_back(&paragraph);
  return paragraphs;
}

}  // namespace

void RichTextRenderer::Start(const richtext::RichDocument& document,
                             const RichTextFormats& formats) {
  target_.clear();
  pictures_.clear();
  QTextOption option = target_.defaultTextOption();
  option.setTabStopDistance(formats.Pixels(kUsualTabDistance));
  target_.setDefaultTextOption(option);
  document_ = &document;
  shown_ = ShownBlocks();
  fillers_ = FillersIn(document);
  next_ = 0;
  tables_ = {};
  next_row_ = 0;
  is_done_ = false;
  is_fresh_ = true;
}

void RichTextRenderer::RenderAll(const richtext::RichDocument& document,
                                 const RichTextFormats& formats) {
  Start(document, formats);
  RenderMore(document, formats, std::numeric_limits<std::size_t>::max());
}

void RichTextRenderer::RenderMore(const richtext::RichDocument& document,
                                  const RichTextFormats& formats, std::size_t work) {
  if (is_done_) return;
  document_ = &document;
  formats_ = &formats;
  QTextCursor cursor(&target_);
  cursor.beginEditBlock();
  cursor.movePosition(QTextCursor::End);
  const std::size_t written = document.blocks.size();
  for (std::size_t done = 0; next_ < written && done < work;) {
    if (IsTable(document.blocks[next_])) {
      done += RenderPart(cursor);
      continue;
    }
    if (!is_fresh_) cursor.insertBlock();
    const auto& paragraph = std::get<richtext::Paragraph>(document.blocks[next_++]);
    Fill(paragraph, nullptr, cursor);
    is_fresh_ = false;
    done += WorkOf(paragraph);
  }
  is_done_ = next_ >= written;
  if (is_done_ && EndsUnwritten(document)) Fill(ParagraphAt(written), nullptr, cursor);
  cursor.endEditBlock();
}

void RichTextRenderer::Update(const richtext::RichDocument& document,
                              const RichTextFormats& formats,
                              const std::vector<richtext::ChangedSpan>& spans) {
  if (spans.empty()) return;
  const Region region = Merged(spans);
  // What isn't rendered yet comes as it is by then.
  const bool is_amid = next_row_ > 0 || region.first + region.before > next_;
  if (!is_done_ && is_amid) return RenderAll(document, formats);
  document_ = &document;
  formats_ = &formats;
  QTextCursor edit(&target_);
  edit.beginEditBlock();
  const richtext::ChangedSpan& first = spans.front();
  bool is_shown = true;
  if (spans.size() == 1 && first.where.in_table) {
    Paragraphs after = ParagraphsOf(richtext::CellAt(document, first.where));
    after.erase(after.begin(), after.begin() + static_cast<std::ptrdiff_t>(first.where.index));
    after.resize(first.blocks_after);
    UpdateParagraphs(BlockOf(first.first_paragraph), first.blocks_before, after);
  } else {
    is_shown = UpdateInPlace(region);
  }
  edit.endEditBlock();
  if (!is_shown) return RenderAll(document, formats);
  shown_ = ShownBlocks();
  fillers_ = FillersIn(document);
  next_ += region.after - region.before;
}

// Spans follow each other: each counts in the document that the one before left.
RichTextRenderer::Region RichTextRenderer::Merged(const std::vector<richtext::ChangedSpan>& spans) {
  std::optional<Region> merged;
  for (const richtext::ChangedSpan& span : spans) {
    Region next{span.where.block, span.blocks_before, span.blocks_after};
    if (span.where.in_table) next.before = next.after = 1;
    if (!merged) {
      merged = next;
      continue;
    }
    const std::size_t first = std::min(merged->first, next.first);
    const std::size_t old_end = merged->first + merged->after;
    const std::size_t end = std::max(old_end, next.first + next.before);
    const std::size_t added = (merged->first - first) + (end - old_end);
    merged = Region{first, merged->before + added, end - first - next.before + next.after};
  }
  return *merged;
}

std::vector<RichTextRenderer::Shown> RichTextRenderer::ShownBlocks() const {
  std::vector<Shown> blocks;
  blocks.reserve(document_->blocks.size() + 1);
  for (const richtext::Block& block : document_->blocks) {
    blocks.push_back({richtext::CountParagraphs(block), IsTable(block)});
  }
  if (EndsUnwritten(*document_)) blocks.push_back({1, false});
  return blocks;
}

bool RichTextRenderer::UpdateInPlace(Region region) {
  const std::vector<Shown> now = ShownBlocks();
  // The last of these is a paragraph; one that isn't stored counts as one that is.
  const std::size_t written = document_->blocks.size();
  const bool at_end = region.first + region.after == written;
  if (at_end) {
    region.before = shown_.size() - region.first;
    region.after = now.size() - region.first;
  }
  const auto old_first = shown_.begin() + static_cast<std::ptrdiff_t>(region.first);
  const auto new_first = now.begin() + static_cast<std::ptrdiff_t>(region.first);
  const auto is_table = [](const Shown& shown) { return shown.is_table; };
  const auto old_end = old_first + static_cast<std::ptrdiff_t>(region.before);
  const auto new_end = new_first + static_cast<std::ptrdiff_t>(region.after);
  const bool has_tables =
      std::any_of(old_first, old_end, is_table) || std::any_of(new_first, new_end, is_table);
  int paragraph = 0;
  for (auto shown = shown_.begin(); shown != old_first; ++shown) paragraph += shown->paragraphs;
  const QTextBlock first = BlockOf(paragraph);
  if (has_tables) return false;
  if (region.before == 0 || region.after == 0) return false;
  Paragraphs after;
  for (std::size_t i = 0; i < region.after; ++i) after.push_back(&ParagraphAt(region.first + i));
  UpdateParagraphs(first, region.before, after);
  return true;
}

void RichTextRenderer::UpdateParagraphs(const QTextBlock& first, std::size_t before,
                                        const Paragraphs& after) {
  QTextBlock block = first;
  QTextCursor cursor(block);
  const QTextTable* const table = cursor.currentTable();
  const std::size_t common = std::min(before, after.size());
  for (std::size_t i = 0; i < common; ++i) {
    if (i > 0) block = block.next();
    cursor.setPosition(block.position());
    Fill(*after[i], table, cursor);
  }
  if (before > common) {
    QTextBlock last = block;
    for (std::size_t i = common; i < before; ++i) last = last.next();
    cursor.setPosition(EndOf(block));
    cursor.setPosition(EndOf(last), QTextCursor::KeepAnchor);
    cursor.removeSelectedText();
    // Of a block without text and one behind it Qt keeps the format of the latter.
    Fill(*after[common - 1], table, cursor);
  }
  for (std::size_t i = common; i < after.size(); ++i) {
    cursor.movePosition(QTextCursor::EndOfBlock);
    cursor.insertBlock();
    Fill(*after[i], table, cursor);
  }
}

const richtext::Paragraph& RichTextRenderer::ParagraphAt(std::size_t block) const {
  return richtext::ParagraphAt(*document_, richtext::Place{block});
}

QTextBlock RichTextRenderer::BlockOf(int paragraph) const {
  const auto before = std::ranges::upper_bound(fillers_, paragraph) - fillers_.begin();
  return target_.findBlockByNumber(paragraph + static_cast<int>(before));
}

int RichTextRenderer::ParagraphOf(const QTextBlock& block) const {
  // A filler has as many blocks before it as paragraphs and other fillers.
  const auto stands_before = [&](int i) {
    return fillers_[static_cast<std::size_t>(i)] + i < block.blockNumber();
  };
  const auto all = std::views::iota(0, static_cast<int>(fillers_.size()));
  const auto before = std::ranges::partition_point(all, stands_before) - all.begin();
  return block.blockNumber() - static_cast<int>(before);
}

bool RichTextRenderer::IsFiller(const QTextBlock& block) const {
  return BlockOf(ParagraphOf(block)) != block;
}

std::size_t RichTextRenderer::RenderPart(QTextCursor& cursor) {
  if (next_row_ == 0) {
    tables_ = TablesAt(*document_, next_);
    grid_ = richtext::GridOf(tables_.rows);
  }
  const std::size_t end = EndOfPart(tables_.rows, next_row_);
  if (is_fresh_ && end > 0) MakeThin(cursor);
  InsertRows(next_row_, end, cursor);
  std::size_t work = 1;
  for (; next_row_ < end; ++next_row_) {
    for (const richtext::Cell& cell : tables_.rows[next_row_]->cells) {
      work += kCellWork;
      for (const richtext::Paragraph& paragraph : cell.paragraphs) work += WorkOf(paragraph);
    }
  }
  if (end == tables_.rows.size()) {
    next_ = std::exchange(tables_, {}).end;
    next_row_ = 0;
  }
  is_fresh_ = true;
  return work;
}

void RichTextRenderer::InsertRows(std::size_t first, std::size_t end, QTextCursor& cursor) {
  if (first == end) return;
  QTextTableFormat format;
  format.setBorderCollapse(true);
  format.setBorder(0);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_None);
  format.setCellSpacing(0);
  format.setCellPadding(0);
  format.setLeftMargin(std::max(0.0, formats_->Pixels(grid_.left_edge)));
  QList<QTextLength> widths;
  for (const int width : grid_.widths) {
    widths.append(QTextLength(QTextLength::FixedLength, formats_->Pixels(width)));
  }
  format.setColumnWidthConstraints(widths);
  QTextTable* const table =
      cursor.insertTable(static_cast<int>(end - first), static_cast<int>(widths.size()), format);
  for (std::size_t i = first; i < end; ++i) {
    const richtext::TableRow& row = *tables_.rows[i];
    const int number = static_cast<int>(i - first);
    int column = 0;
    for (std::size_t n = 0; n < row.cells.size(); ++n) {
      const int span = grid_.spans[i][n];
      if (span > 1) table->mergeCells(number, column, 1, span);
      QTextTableCell cell = table->cellAt(number, column);
      QTextCharFormat look = cell.format();  // with its spans
      look.merge(formats_->Of(row.cells[n], row.half_gap));
      cell.setFormat(look);
      InsertCell(row.cells[n], *table, cell.firstCursorPosition());
      column += span;
    }
  }
  cursor.setPosition(table->lastPosition() + 1);
}

void RichTextRenderer::InsertCell(const richtext::Cell& cell, const QTextTable& table,
                                  QTextCursor cursor) {
  for (const richtext::Paragraph& paragraph : cell.paragraphs) {
    if (&paragraph != &cell.paragraphs.front()) cursor.insertBlock();
    Fill(paragraph, &table, cursor);
  }
}

void RichTextRenderer::Fill(const richtext::Paragraph& paragraph, const QTextTable* table,
                            QTextCursor& cursor) {
  cursor.movePosition(QTextCursor::StartOfBlock);
  cursor.movePosition(QTextCursor::EndOfBlock, QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  cursor.setBlockFormat(formats_->Of(paragraph));
  SetMark(formats_->Of(paragraph.mark), table, cursor);
  const std::vector<int> breaks = BreaksInWords(richtext::ShownText(paragraph));
  int begin = 0;
  for (const richtext::Run& run : paragraph.runs) {
    const int end = begin + static_cast<int>(richtext::ShownText(run).size());
    const auto first = std::ranges::lower_bound(breaks, begin);
    const auto last = std::ranges::lower_bound(first, breaks.end(), end);
    InsertRun(run, {first, last}, begin, cursor);
    begin = end;
  }
}

void RichTextRenderer::InsertRun(const richtext::Run& run, std::span<const int> breaks, int begin,
                                 QTextCursor& cursor) {
  if (const auto* const picture = std::get_if<richtext::Picture>(&run.content)) {
    return InsertPicture(*picture, cursor);
  }
  const auto* const text = std::get_if<std::string>(&run.content);
  if (text == nullptr) return;
  const QTextCharFormat format = formats_->Of(run.format);
  std::size_t done = 0;
  for (const int place : breaks) {
    const auto end = static_cast<std::size_t>(place - begin);
    InsertText(std::string_view(*text).substr(done, end - done), format, cursor);
    cursor.insertText(QString(QChar(0x200B)), format);
    done = end;
  }
  InsertText(std::string_view(*text).substr(done), format, cursor);
}

void RichTextRenderer::InsertText(std::string_view rest, const QTextCharFormat& format,
                                  QTextCursor& cursor) {
  while (!rest.empty()) {
    const std::size_t end = std::min(rest.find('\f'), rest.size());
    cursor.insertText(ShownInBlock(rest.substr(0, end)), format);
    rest.remove_prefix(end);
    if (rest.empty()) return;
    QTextCharFormat page_break = format;
    page_break.setProperty(kPageBreakProperty, true);
    cursor.insertText(QString(QChar::LineSeparator), page_break);
    rest.remove_prefix(1);
  }
}

void RichTextRenderer::InsertPicture(const richtext::Picture& picture, QTextCursor& cursor) {
  const QByteArray file(picture.bytes.data(), static_cast<qsizetype>(picture.bytes.size()));
  const richtext::Page& page = document_->page;
  const double widest = formats_->Pixels(page.width - page.left_margin - page.right_margin);
  const QTextImageFormat format = PictureFormat(picture, file, *formats_, widest);
  pictures_.insert(format.name(), {file, QSizeF(format.width(), format.height()).toSize()});
  cursor.insertImage(format);
}

}  // namespace tarnwell::desktop
