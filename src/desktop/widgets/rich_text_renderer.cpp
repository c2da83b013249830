#include "desktop/widgets/rich_text_renderer.h"

#include <QTextBlock>
#include <algorithm>
#include <limits>
#include <numeric>
#include <optional>
#include <ranges>
#include <utility>

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

QTextTableFormat TableFormatOf(const richtext::TableGrid& grid, const RichTextFormats& formats) {
  QTextTableFormat format;
  format.setBorderCollapse(true);
  format.setBorder(0);
  format.setBorderStyle(QTextFrameFormat::BorderStyle_None);
  format.setCellSpacing(0);
  format.setCellPadding(0);
  format.setLeftMargin(std::max(0.0, formats.Pixels(grid.left_edge)));
  QList<QTextLength> widths;
  for (const int width : grid.widths) {
    widths.append(QTextLength(QTextLength::FixedLength, formats.Pixels(width)));
  }
  format.setColumnWidthConstraints(widths);
  return format;
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
  kept_.clear();
  QTextOption option = target_.defaultTextOption();
  option.setTabStopDistance(formats.Pixels(kUsualTabDistance));
  target_.setDefaultTextOption(option);
  document_ = &document;
  shown_ = ShownBlocks();
  fillers_ = FillersIn(document);
  covered_ = CoveredIn(document);
  progress_ = {};
  is_done_ = false;
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
  RenderBlocks(progress_, written, work, cursor);
  is_done_ = progress_.next >= written;
  if (is_done_ && EndsUnwritten(document)) Fill(ParagraphAt(written), nullptr, cursor);
  cursor.endEditBlock();
}

void RichTextRenderer::RenderBlocks(Progress& progress, std::size_t end, std::size_t work,
                                    QTextCursor& cursor) {
  for (std::size_t done = 0; progress.next < end && done < work;) {
    if (IsTable(document_->blocks[progress.next])) {
      done += RenderPart(progress, cursor);
      continue;
    }
    if (!progress.is_fresh) cursor.insertBlock();
    const auto& paragraph = std::get<richtext::Paragraph>(document_->blocks[progress.next++]);
    Fill(paragraph, nullptr, cursor);
    progress.is_fresh = false;
    done += WorkOf(paragraph);
  }
}

bool RichTextRenderer::Update(const richtext::RichDocument& document,
                              const RichTextFormats& formats,
                              const std::vector<richtext::ChangedSpan>& spans) {
  if (spans.empty()) return true;
  const Region region = Merged(spans);
  document_ = &document;
  formats_ = &formats;
  const std::size_t end = region.first + region.before;
  // What isn't rendered yet comes as it is by then.
  const std::size_t amid = progress_.next_row > 0 ? 1 : 0;
  const bool is_to_come = !is_done_ && region.first >= progress_.next + amid;
  const bool is_amid = !is_done_ && !is_to_come && end > progress_.next;
  if (is_amid) return false;
  QTextCursor edit(&target_);
  edit.beginEditBlock();
  const richtext::ChangedSpan& first = spans.front();
  bool is_shown = true;
  if (is_to_come) {
    // Nothing yet.
  } else if (spans.size() == 1 && first.where.in_table) {
    Paragraphs after = ParagraphsOf(richtext::CellAt(document, first.where));
    after.erase(after.begin(), after.begin() + static_cast<std::ptrdiff_t>(first.where.index));
    after.resize(first.blocks_after);
    const bool is_covered = std::ranges::binary_search(covered_, first.first_paragraph);
    if (!is_covered) UpdateParagraphs(BlockOf(first.first_paragraph), first.blocks_before, after);
  } else {
    is_shown = UpdateInPlace(region);
  }
  edit.endEditBlock();
  if (!is_shown) return false;
  shown_ = ShownBlocks();
  fillers_ = FillersIn(document);
  covered_ = CoveredIn(document);
  if (!is_to_come) progress_.next += region.after - region.before;
  if (progress_.next_row > 0) progress_.tables = TablesAt(document, progress_.next);
  return true;
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
  const Region written_region = region;
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
  if (has_tables || region.before == 0 || region.after == 0) {
    return ReplaceBlocks(written_region, paragraph, now);
  }
  const QTextBlock first = BlockOf(paragraph);
  Paragraphs after;
  for (std::size_t i = 0; i < region.after; ++i) after.push_back(&ParagraphAt(region.first + i));
  UpdateParagraphs(first, region.before, after);
  return true;
}

// Between a paragraph before and one behind, both of which stay. Tables that touch are one for Qt.
bool RichTextRenderer::ReplaceBlocks(Region region, int first_paragraph,
                                     const std::vector<Shown>& now) {
  while (region.first > 0 && now[region.first - 1].is_table) {
    --region.first;
    ++region.before;
    ++region.after;
    first_paragraph -= now[region.first].paragraphs;
  }
  std::size_t old_end = region.first + region.before;
  std::size_t new_end = region.first + region.after;
  for (; new_end < now.size() && now[new_end].is_table; ++old_end) ++new_end;
  const bool is_near_end = !is_done_ && old_end >= progress_.next;
  if (region.first == 0 || new_end >= now.size() || old_end >= shown_.size() || is_near_end) {
    return false;
  }
  int paragraph = first_paragraph;
  for (std::size_t i = region.first; i < old_end; ++i) paragraph += shown_[i].paragraphs;
  const QTextBlock behind = BlockOf(paragraph);
  QTextCursor cursor(BlockOf(first_paragraph - 1));
  if (!behind.isValid() || cursor.currentTable() != nullptr) return false;
  cursor.movePosition(QTextCursor::EndOfBlock);
  cursor.setPosition(behind.position(), QTextCursor::KeepAnchor);
  cursor.removeSelectedText();
  cursor.insertBlock();
  cursor.movePosition(QTextCursor::PreviousBlock);
  Fill(ParagraphAt(region.first - 1), nullptr, cursor);
  Progress progress{region.first, {}, {}, 0, false};
  RenderBlocks(progress, new_end, std::numeric_limits<std::size_t>::max(), cursor);
  if (progress.is_fresh) {
    cursor.deleteChar();  // the block behind a table, before the one that is there
  } else {
    cursor.movePosition(QTextCursor::NextBlock);
  }
  Fill(ParagraphAt(new_end), nullptr, cursor);
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

int RichTextRenderer::NumberOf(int paragraph) const {
  const auto fillers = std::ranges::upper_bound(fillers_, paragraph) - fillers_.begin();
  const auto covered = std::ranges::lower_bound(covered_, paragraph) - covered_.begin();
  return paragraph + static_cast<int>(fillers) - static_cast<int>(covered);
}

QTextBlock RichTextRenderer::BlockOf(int paragraph) const {
  return target_.findBlockByNumber(NumberOf(paragraph));
}

int RichTextRenderer::ParagraphOf(const QTextBlock& block) const {
  const int number = block.blockNumber();
  const auto all = std::views::iota(0, number + static_cast<int>(covered_.size()) + 1);
  const auto stands_before = [&](int paragraph) { return NumberOf(paragraph) < number; };
  int paragraph = *std::ranges::partition_point(all, stands_before);
  while (std::ranges::binary_search(covered_, paragraph)) ++paragraph;
  return paragraph;
}

bool RichTextRenderer::IsFiller(const QTextBlock& block) const {
  return BlockOf(ParagraphOf(block)) != block;
}

std::size_t RichTextRenderer::RenderPart(Progress& progress, QTextCursor& cursor) {
  const TableRows& rows = progress.tables.rows;
  if (progress.next_row == 0) {
    progress.tables = TablesAt(*document_, progress.next);
    progress.grid = richtext::GridOf(rows);
  }
  const std::size_t end = EndOfPart(rows, progress.next_row);
  if (progress.is_fresh && end > 0) MakeThin(cursor);
  InsertRows(progress, end, cursor);
  std::size_t work = 1;
  for (; progress.next_row < end; ++progress.next_row) {
    for (const richtext::Cell& cell : rows[progress.next_row]->cells) {
      work += kCellWork;
      for (const richtext::Paragraph& paragraph : cell.paragraphs) work += WorkOf(paragraph);
    }
  }
  if (end == rows.size()) {
    progress.next = std::exchange(progress.tables, {}).end;
    progress.next_row = 0;
  }
  progress.is_fresh = true;
  return work;
}

void RichTextRenderer::InsertRows(const Progress& progress, std::size_t end, QTextCursor& cursor) {
  const std::size_t first = progress.next_row;
  const TableRows& rows = progress.tables.rows;
  const richtext::TableGrid& grid = progress.grid;
  if (first == end) return;
  QTextTable* const table =
      cursor.insertTable(static_cast<int>(end - first), static_cast<int>(grid.widths.size()),
                         TableFormatOf(grid, *formats_));
  CellSpans merged;
  if (HasMergedCells(std::span(rows).subspan(first, end - first))) {
    merged = SpansOfPart(rows, grid, first, end);
  }
  for (std::size_t i = first; i < end; ++i) {
    const richtext::TableRow& row = *rows[i];
    const int number = static_cast<int>(i - first);
    int column = 0;
    for (std::size_t n = 0; n < row.cells.size(); column += grid.spans[i][n++]) {
      richtext::CellSpan span{grid.spans[i][n]};
      if (!merged.empty()) span = merged[i - first][n];
      if (span.is_covered) continue;
      if (span.columns > 1 || span.rows > 1) {
        table->mergeCells(number, column, span.rows, span.columns);
      }
      QTextTableCell cell = table->cellAt(number, column);
      QTextCharFormat look = cell.format();  // with its spans
      look.merge(formats_->Of(row.cells[n], row.half_gap));
      cell.setFormat(look);
      const auto widths_from = grid.widths.begin() + column;
      const int width = std::accumulate(widths_from, widths_from + span.columns, 0);
      cell_width_ = formats_->Pixels(width - 2 * row.half_gap);
      InsertCell(row.cells[n], *table, cell.firstCursorPosition());
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

}  // namespace tarnwell::desktop
