#include "richtext/editor.h"

#include <algorithm>
#include <string>
#include <utility>

#include "richtext/fragment.h"
#include "richtext/list_numbering.h"
#include "richtext/selection.h"
#include "richtext/typed_text.h"

namespace tarnwell::richtext {
namespace {

constexpr int kLevels = 9;

// Whether the change leaves the lists' items as they were, so that nothing behind has to follow.
bool HasSameLists(const Change& change) {
  return std::ranges::equal(
      change.before, change.after, [](const Block& before, const Block& after) {
        const auto* const a = std::get_if<Paragraph>(&before);
        const auto* const b = std::get_if<Paragraph>(&after);
        return a != nullptr && b != nullptr && a->format.list == b->format.list;
      });
}

// The paragraph that begins where a person ends `paragraph`; a section's end goes with it.
Paragraph NextLine(Paragraph& paragraph) {
  Paragraph next;
  next.format = paragraph.format;
  next.mark = paragraph.mark;
  next.section_break = std::exchange(paragraph.section_break, {});
  next.format.page_break_before = false;
  if (next.format.list) next.format.list->marker = CountedOn(next.format.list->marker, 1);
  return next;
}

}  // namespace

std::size_t Editor::CountAt(const Place& place) const {
  return place.block < document_.blocks.size() ? 1 : 0;
}

Paragraph Editor::CopyAt(const Place& place) const {
  Paragraph paragraph = ParagraphAt(document_, place);
  if (CountAt(place) == 0) paragraph.mark.font = DefaultFontName(document_);
  return paragraph;
}

std::vector<Block> Editor::BlocksAt(const Place& first, std::size_t count) const {
  std::vector<Block> blocks;
  for (std::size_t i = 0; i < count; ++i) {
    if (first.in_table) {
      blocks.emplace_back(CellAt(document_, first).paragraphs[first.index + i]);
    } else {
      blocks.push_back(document_.blocks[first.block + i]);
    }
  }
  return blocks;
}

void Editor::Make(Change change) {
  spans_.push_back(Apply(change, document_));
  changes_.push_back(std::move(change));
}

void Editor::Replace(const Place& first, std::size_t count, std::vector<Block> after) {
  Change change{first, BlocksAt(first, count), std::move(after)};
  if (change.before == change.after) return;
  Make(std::move(change));
  if (!HasSameLists(changes_.back())) ShiftItemsBehind(changes_.size() - 1);
}

void Editor::ShiftItemsBehind(std::size_t number) {
  const Change& change = changes_[number];
  Place behind = change.where;
  std::size_t& first = behind.in_table ? behind.index : behind.block;
  first += change.after.size();
  const std::size_t end =
      behind.in_table ? CellAt(document_, behind).paragraphs.size() : document_.blocks.size();
  const ItemShifts shifts(change.before, change.after);
  std::vector<Block> shifted;
  std::size_t changed = 0;
  int level = kLevels;
  for (const Block& block : BlocksAt(behind, ItemsFrom(behind, end - first))) {
    Paragraph paragraph = std::get<Paragraph>(block);
    ListItem& item = *paragraph.format.list;
    // Below an item of a higher level another list begins.
    level = std::min(level, item.level);
    const int shift = item.level == level ? shifts.Of(item) : 0;
    if (shift != 0) item.marker = CountedOn(item.marker, shift);
    shifted.emplace_back(std::move(paragraph));
    if (shift != 0) changed = shifted.size();
  }
  shifted.resize(changed);
  if (changed > 0) Make({behind, BlocksAt(behind, changed), std::move(shifted)});
}

std::size_t Editor::ItemsFrom(Place place, std::size_t most) const {
  std::size_t count = 0;
  while (count < most) {
    if (!place.in_table && std::holds_alternative<Table>(document_.blocks[place.block])) break;
    if (!ParagraphAt(document_, place).format.list) break;
    ++(place.in_table ? place.index : place.block);
    ++count;
  }
  return count;
}

Position Editor::Erase(const Range& range) {
  if (range.empty()) return range.from;
  const Selected selected = SelectedBy(document_, range);
  if (selected.kind == Selected::Kind::kTables) {
    EraseTables(selected.parts.front());
  } else {
    // From the end on, so that the numbers before stay.
    std::for_each(selected.parts.rbegin(), selected.parts.rend(),
                  [this](const Range& part) { EraseBetween(part); });
  }
  return selected.begin();
}

void Editor::EraseBetween(const Range& range) {
  const Place first = FindPlace(document_, range.from.paragraph);
  const Place last = FindPlace(document_, range.to.paragraph);
  Paragraph paragraph = CopyAt(first);
  if (first == last) {
    EraseShown(range.from.offset, range.to.offset, paragraph.runs);
    return Replace(first, 1, {std::move(paragraph)});
  }
  const std::size_t count =
      first.in_table ? last.index - first.index + 1 : last.block - first.block + CountAt(last);
  if (CountAt(last) == 0) {
    EraseShown(range.from.offset, ShownLength(paragraph), paragraph.runs);
  } else {
    paragraph = Joined(paragraph, range.from.offset, ParagraphAt(document_, last), range.to.offset);
  }
  Replace(first, count, {std::move(paragraph)});
}

void Editor::EraseTables(const Range& range) {
  const Place first = FindPlace(document_, range.from.paragraph);
  const Place last = FindPlace(document_, range.to.paragraph);
  if (!first.in_table && !last.in_table) return EraseBetween(range);
  std::vector<Block> after;
  if (!first.in_table) {
    Paragraph head = CopyAt(first);
    EraseShown(range.from.offset, ShownLength(head), head.runs);
    after.emplace_back(std::move(head));
  } else if (!last.in_table) {
    Paragraph tail = CopyAt(last);
    EraseShown(0, range.to.offset, tail.runs);
    after.emplace_back(std::move(tail));
  } else if (last.block + 1 == document_.blocks.size()) {
    // Somewhere a person goes on writing.
    after.emplace_back(CopyAt({last.block + 1}));
  }
  const std::size_t end = last.in_table ? last.block + 1 : last.block + CountAt(last);
  Replace({first.block}, end - first.block, std::move(after));
}

Position Editor::InsertText(Position at, std::string_view utf8, const Typing& typing) {
  if (utf8.empty()) return at;
  const Place place = FindPlace(document_, at.paragraph);
  Paragraph paragraph = CopyAt(place);
  InsertRuns({{typing.format, std::string(utf8), typing.field}}, at.offset, paragraph.runs);
  Replace(place, CountAt(place), {std::move(paragraph)});
  return {at.paragraph, at.offset + static_cast<int>(utf8.size())};
}

Position Editor::BreakParagraph(Position at) {
  const Place place = FindPlace(document_, at.paragraph);
  if (at != Position{} || !place.in_table) return InsertLines(at, "\n", {});
  Paragraph before;
  before.mark = CopyAt(place).mark;
  Replace({0}, 0, {std::move(before)});
  return {};
}

Position Editor::InsertLines(Position at, std::string_view utf8, const Typing& typing) {
  while (at == Position{} && utf8.starts_with('\n') && FindPlace(document_, 0).in_table) {
    at = BreakParagraph(at);
    utf8.remove_prefix(1);
  }
  const Place place = FindPlace(document_, at.paragraph);
  Paragraph line = CopyAt(place);
  SplitRuns parts = Split(line.runs, at.offset);
  const bool has_rest = ShownLength(line) > at.offset;
  line.runs = std::move(parts.head);
  std::vector<Block> lines;
  while (true) {
    const std::size_t end = utf8.find('\n');
    std::string text = WithLineBreaks(utf8.substr(0, end));
    if (!text.empty()) AppendRuns({{typing.format, std::move(text), typing.field}}, line.runs);
    if (end == std::string_view::npos) break;
    utf8.remove_prefix(end + 1);
    if (line.format.list && !has_rest && ShownLength(line) == 0) {
      LeaveList(line.format);
    } else {
      Paragraph next = NextLine(line);
      lines.emplace_back(std::exchange(line, std::move(next)));
    }
  }
  at = {at.paragraph + static_cast<int>(lines.size()), ShownLength(line)};
  AppendRuns(std::move(parts.tail), line.runs);
  lines.emplace_back(std::move(line));
  Replace(place, CountAt(place), std::move(lines));
  return at;
}

void Editor::EndList(Position at) {
  const Place place = FindPlace(document_, at.paragraph);
  Paragraph paragraph = CopyAt(place);
  LeaveList(paragraph.format);
  Replace(place, 1, {std::move(paragraph)});
}

Position Editor::Insert(Position at, RichDocument fragment) {
  const Place place = FindPlace(document_, at.paragraph);
  TakeFields(fragment);
  std::vector<Block> blocks = std::move(fragment.blocks);
  if (place.in_table) blocks = WithoutTables(std::move(blocks));
  if (blocks.empty()) return at;
  auto* const only = blocks.size() == 1 ? std::get_if<Paragraph>(&blocks.front()) : nullptr;
  if (only != nullptr) return InsertInline(place, at, std::move(*only));
  return InsertBlocks(place, at, std::move(blocks));
}

Position Editor::InsertInline(const Place& place, Position at, Paragraph inserted) {
  Paragraph paragraph = CopyAt(place);
  const int length = ShownLength(inserted);
  if (ShownLength(paragraph) == 0 && !paragraph.format.list) {
    paragraph.format = inserted.format;
    paragraph.mark = inserted.mark;
  }
  // Inside a link what comes without a field of its own belongs to the link.
  const int field = TypingAt(paragraph, at.offset).field;
  for (Run& run : inserted.runs) {
    if (run.field == kNoField) run.field = field;
  }
  InsertRuns(std::move(inserted.runs), at.offset, paragraph.runs);
  Replace(place, CountAt(place), {std::move(paragraph)});
  return {at.paragraph, at.offset + length};
}

Position Editor::InsertBlocks(const Place& place, Position at, std::vector<Block> inserted) {
  Paragraph head = CopyAt(place);
  Paragraph tail = head;
  SplitRuns parts = Split(head.runs, at.offset);
  head.runs = std::move(parts.head);
  tail.runs = std::move(parts.tail);
  head.section_break.clear();
  if (auto* const first = std::get_if<Paragraph>(&inserted.front())) {
    if (ShownLength(head) == 0) head.format = first->format;
    if (ShownLength(head) == 0) head.mark = first->mark;
    AppendRuns(std::move(first->runs), head.runs);
    inserted.front() = std::move(head);
  } else {
    inserted.insert(inserted.begin(), std::move(head));
  }
  tail.format.page_break_before = false;
  int end = 0;
  if (auto* const last = std::get_if<Paragraph>(&inserted.back())) {
    end = ShownLength(*last);
    if (ShownLength(tail) == 0) tail.format = last->format;
    if (ShownLength(tail) == 0) tail.mark = last->mark;
    AppendRuns(std::move(tail.runs), last->runs);
    tail.runs = std::move(last->runs);
    inserted.back() = std::move(tail);
  } else {
    inserted.emplace_back(std::move(tail));
  }
  NumberAnew(inserted);
  int count = 0;
  for (const Block& block : inserted) count += CountParagraphs(block);
  Replace(place, CountAt(place), std::move(inserted));
  return {at.paragraph + count - 1, end};
}

void Editor::TakeFields(RichDocument& fragment) {
  const int first = static_cast<int>(document_.fields.size());
  const auto moved = [first](int field) { return field == kNoField ? kNoField : field + first; };
  for (Field& field : fragment.fields) {
    document_.fields.push_back({std::move(field.instruction), moved(field.parent)});
  }
  const auto move_runs = [&moved](std::vector<Paragraph>& paragraphs) {
    for (Paragraph& paragraph : paragraphs) {
      for (Run& run : paragraph.runs) run.field = moved(run.field);
    }
  };
  for (Block& block : fragment.blocks) {
    if (auto* const paragraph = std::get_if<Paragraph>(&block)) {
      for (Run& run : paragraph->runs) run.field = moved(run.field);
      continue;
    }
    for (TableRow& row : std::get<Table>(block).rows) {
      for (Cell& cell : row.cells) move_runs(cell.paragraphs);
    }
  }
}

void Editor::ReformatIn(int number, const Range& range,
                        const std::function<void(Paragraph&)>& change) {
  const Place place = FindPlace(document_, number);
  Paragraph paragraph = CopyAt(place);
  change(paragraph);
  if (CountAt(place) != 0 || range.from.paragraph == range.to.paragraph) {
    Replace(place, CountAt(place), {std::move(paragraph)});
  }
}

void Editor::Reformat(const Range& range, const std::function<void(CharacterFormat&)>& change) {
  const Selected selected = SelectedBy(document_, range);
  for (const Range& part : selected.parts) {
    for (int number = part.from.paragraph; number <= part.to.paragraph; ++number) {
      ReformatIn(number, part, [&](Paragraph& paragraph) {
        const bool is_last = number == part.to.paragraph;
        const int from = number == part.from.paragraph ? part.from.offset : 0;
        richtext::Reformat(from, is_last ? part.to.offset : ShownLength(paragraph), change,
                           paragraph.runs);
        if (!is_last || selected.kind == Selected::Kind::kCells) change(paragraph.mark);
      });
    }
  }
}

void Editor::Rewrite(const Range& range, const Rewriting& change) {
  for (const Range& part : SelectedBy(document_, range).parts) {
    for (int number = part.from.paragraph; number <= part.to.paragraph;) {
      const Place first = FindPlace(document_, number);
      std::vector<Block> blocks;
      if (CountAt(first) == 0) {
        if (range.from.paragraph != range.to.paragraph) return;
        blocks.emplace_back(CopyAt(first));
      } else {
        blocks = BlocksAt(first, ParagraphsFrom(first, part.to.paragraph - number + 1));
      }
      const std::size_t count = blocks.size();
      change(ItemsAbove(first), blocks);
      Replace(first, CountAt(first) == 0 ? 0 : count, std::move(blocks));
      number += static_cast<int>(count);
    }
  }
}

std::size_t Editor::ParagraphsFrom(const Place& first, int most) const {
  const std::size_t end = first.in_table ? CellAt(document_, first).paragraphs.size() - first.index
                                         : document_.blocks.size() - first.block;
  const std::size_t last = std::min(end, static_cast<std::size_t>(most));
  std::size_t count = 1;
  while (count < last && (first.in_table || std::holds_alternative<Paragraph>(
                                                document_.blocks[first.block + count]))) {
    ++count;
  }
  return count;
}

void Editor::ReformatParagraphs(const Range& range,
                                const std::function<void(ParagraphFormat&)>& change) {
  Rewrite(range, [&change](const std::vector<Block>&, std::vector<Block>& paragraphs) {
    for (Block& paragraph : paragraphs) change(std::get<Paragraph>(paragraph).format);
  });
}

}  // namespace tarnwell::richtext
