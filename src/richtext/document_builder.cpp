#include "richtext/document_builder.h"

#include <algorithm>
#include <utility>

#include "richtext/kept_words.h"
#include "richtext/list_words.h"
#include "richtext/runs.h"
#include "text/utf8.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kLeastRoom = 16u << 20;
constexpr std::size_t kRoomPerByte = 64;

std::size_t SizeOf(const CharacterFormat& format) {
  return format.font.capacity() + format.other.capacity();
}

std::size_t SizeOf(const ParagraphFormat& format) {
  std::size_t size = format.other.capacity() + format.tabs.capacity() * sizeof(TabStop);
  if (format.list) size += format.list->description.capacity();
  return size;
}

// No hidden text, and in no field.
bool IsGroup(const Run& run) {
  const auto* const opaque = std::get_if<Opaque>(&run.content);
  return opaque != nullptr && opaque->rtf.starts_with('{') && run.field == kNoField &&
         !IsHidden(run.format.other);
}

}  // namespace

DocumentBuilder::DocumentBuilder(std::size_t source_size, std::vector<Block>& blocks)
    : blocks_(blocks), room_(kLeastRoom + kRoomPerByte * source_size) {}

bool DocumentBuilder::Take(std::size_t count, std::size_t& left) {
  if (count > left) is_full_ = true;
  if (is_full_) return false;
  left -= count;
  return true;
}

bool DocumentBuilder::Spend(std::size_t size) { return Take(size, room_); }

bool DocumentBuilder::SpendParagraph(const FormatState& state) {
  return Take(1, paragraphs_left_) &&
         Spend(sizeof(Block) + SizeOf(state.paragraph) + SizeOf(state.character));
}

void DocumentBuilder::AddRun(Run run) {
  const std::size_t most = std::min(runs_left_, kMostRunsOfParagraph - paragraph_.runs.size());
  is_full_ = is_full_ || most == 0;
  if (is_full_ || !Spend(sizeof run + SizeOf(run.format))) return;
  --runs_left_;
  PushRun(std::move(run));
}

void DocumentBuilder::PushRun(Run run) {
  if (run.field > last_field_) last_field_ = run.field;
  paragraph_.runs.push_back(std::move(run));
}

void DocumentBuilder::AddText(std::string_view utf8, const FormatState& state) {
  const std::size_t room = std::min(text_left_, paragraph_text_left_);
  const std::size_t size = utf8.size();
  has_text_ = true;
  if (size > room) utf8 = utf8.substr(0, text::CharacterStart(utf8, room));
  if (!utf8.empty()) AppendText(utf8, state);
  is_full_ = is_full_ || size > room;
  if (is_full_) return;
  text_left_ -= size;
  paragraph_text_left_ -= size;
}

void DocumentBuilder::AppendText(std::string_view utf8, const FormatState& state) {
  if (!paragraph_.runs.empty()) {
    Run& last = paragraph_.runs.back();
    auto* const text = std::get_if<std::string>(&last.content);
    if (text != nullptr && last.field == state.field && last.format == state.character) {
      *text += utf8;
      return;
    }
  }
  AddRun({state.character, std::string(utf8), state.field});
}

void DocumentBuilder::AddPicture(Picture picture, const FormatState& state) {
  has_text_ = true;
  AddRun({state.character, std::move(picture), state.field});
}

void DocumentBuilder::AddOpaque(Opaque opaque, const FormatState& state) {
  CharacterFormat format = opaque.resets_paragraph ? CharacterFormat{} : state.character;
  Run run{std::move(format), std::move(opaque), state.field};
  if (!paragraph_.runs.empty() && TakeIn(run, paragraph_.runs.back())) return;
  AddRun(std::move(run));
}

void DocumentBuilder::AddInPlace(std::string rtf, const FormatState& state) {
  if (std::string* const section_break = OpenSectionBreak();
      section_break != nullptr && state.field == kNoField) {
    *section_break += rtf;
    return;
  }
  AddOpaque({std::move(rtf)}, state);
}

std::string* DocumentBuilder::OpenSectionBreak() {
  if (!paragraph_.runs.empty() || !cell_.empty() || !row_.empty() || blocks_.empty()) {
    return nullptr;
  }
  auto* const last = std::get_if<Paragraph>(&blocks_.back());
  return last == nullptr || last->section_break.empty() ? nullptr : &last->section_break;
}

Paragraph DocumentBuilder::TakeParagraph(const FormatState& state) {
  Paragraph paragraph = std::exchange(paragraph_, Paragraph{});
  paragraph_text_left_ = kLongestParagraph;
  has_text_ = false;
  paragraph.format = state.paragraph;
  paragraph.mark = state.character;
  std::string marker = std::exchange(marker_, std::string());
  std::optional<ListItem>& list = paragraph.format.list;
  if (!list && marker.empty()) return paragraph;
  if (!list) list.emplace().description = PlainListDescription(IsNumber(marker));
  if (list->list_number == 0 && list->description.empty()) {
    if (marker.empty()) {
      list.reset();
      return paragraph;
    }
    list->description = PlainListDescription(IsNumber(marker));
  }
  list->numbered =
      list->description.empty() ? IsNumber(marker) : DescribesNumbers(list->description);
  list->marker = std::move(marker);
  return paragraph;
}

void DocumentBuilder::EndParagraph(const FormatState& state) {
  if (SpendParagraph(state)) CloseParagraph(state);
}

void DocumentBuilder::CloseParagraph(const FormatState& state) {
  Paragraph paragraph = TakeParagraph(state);
  if (state.in_table) {
    Take(1, row_left_);
    cell_.push_back(std::move(paragraph));
  } else {
    EndOpenRow();
    blocks_.emplace_back(std::move(paragraph));
  }
}

void DocumentBuilder::EndSection(const FormatState& state) {
  if (!SpendParagraph(state)) return;
  EndOpenRow();
  Paragraph paragraph = TakeParagraph(state);
  paragraph.section_break = "\\sect";
  blocks_.emplace_back(std::move(paragraph));
}

void DocumentBuilder::EndCell(const FormatState& state) {
  if (SpendParagraph(state)) CloseCell(state);
}

void DocumentBuilder::CloseCell(const FormatState& state) {
  Take(1, row_left_);
  cell_.push_back(TakeParagraph(state));
  row_.push_back(std::exchange(cell_, {}));
}

void DocumentBuilder::EndRow() {
  if (row_.empty()) return;
  row_left_ = kLongestRow;
  const std::size_t cells = row_definition_.CellsFor(row_.size());
  // What has been read of it is shown in any case.
  Take(cells - row_.size(), paragraphs_left_);
  Spend(sizeof(TableRow) + cells * (sizeof(Cell) + sizeof(Paragraph)));
  Table* table = blocks_.empty() ? nullptr : std::get_if<Table>(&blocks_.back());
  if (table == nullptr) table = &std::get<Table>(blocks_.emplace_back(Table{}));
  table->rows.push_back(row_definition_.MakeRow(std::exchange(row_, {}), blank_));
}

void DocumentBuilder::EndOpenRow() {
  if (!cell_.empty()) row_.push_back(std::exchange(cell_, {}));
  EndRow();
}

void DocumentBuilder::Finish(const FormatState& state) {
  const bool in_table = state.in_table || !cell_.empty() || !row_.empty();
  if (cell_.empty() && row_.empty() && !blocks_.empty() &&
      std::ranges::all_of(paragraph_.runs, IsGroup)) {
    for (const Run& run : paragraph_.runs) epilogue_ += std::get<Opaque>(run.content).rtf;
    return;
  }
  if (!paragraph_.runs.empty() && in_table) {
    CloseCell(state);
  } else if (!paragraph_.runs.empty()) {
    CloseParagraph(state);
  }
  EndOpenRow();
}

}  // namespace tarnwell::richtext
