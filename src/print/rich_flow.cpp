#include "print/rich_flow.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "print/rich_table.h"
#include "print/text_boxes.h"
#include "richtext/kept_words.h"

namespace tarnwell::print {
namespace {

using richtext::Section;

constexpr int kMostPagesOfNotes = 1000;

}  // namespace

void RichTextFlow::Add(const richtext::Paragraph& paragraph, FrameJoints joints) {
  const richtext::ParagraphFormat& format = paragraph.format;
  if (format.page_break_before && has_content_ && !breaks_) AskForPage();
  for (const richtext::Table& box : TextBoxesOf(printing_, paragraph)) Add(box);
  const bool stays_with_next = richtext::HoldsKept("keepn", format.other);
  PrintedText::Printed printed;
  const bool changes = PrintedText::Changes(paragraph);
  if (changes) printed = printing_.text.Of(paragraph);
  const richtext::Paragraph& shown = changes ? printed.paragraph : paragraph;
  int gap = std::exchange(gap_, 0) + format.space_before;
  GoToAskedColumns();
  ParagraphLines lines(shown, printing_.styles,
                       {engine_.ColumnWidth(), std::max(engine_.column_height(), 1), joints});
  std::size_t note = 0;
  for (RichLine line; lines.Next(line); line = {}) {
    has_content_ = true;
    const bool asks_for_page = line.end == RichLine::End::kPageBreak;
    const bool is_last = line.end == RichLine::End::kParagraph;
    Line next{std::move(line), std::exchange(gap, 0), {}};
    if (joints.above) next.line.frame_above = next.gap;
    for (; note < printed.notes.size(); ++note) {
      if (!is_last && printed.note_runs[note] >= lines.next_run()) break;
      next.notes.push_back(std::move(printed.notes[note]));
    }
    if (next.line.height > 0) {
      Take(std::move(next), stays_with_next);
    } else {
      notes_.Add(notes_.LayOut(std::move(next.notes)), false);
    }
    if (asks_for_page) AskForPage();
  }
  if (!breaks_) gap_ = format.space_after;
  if (pages_ == nullptr && !paragraph.section_break.empty()) {
    const bool begins_page = paragraph.section_break.find("\\sbknone") == std::string::npos;
    if (begins_page && !breaks_) AskForPage();
  }
}

void RichTextFlow::Add(const richtext::Table& table) {
  GoToAskedColumns();
  for (RichTable rows(printing_, table); rows.Next();) {
    GoToAskedPage();
    std::vector<RichBox> notes = notes_.LayOut(rows.TakeNotes());
    const int gap = std::exchange(gap_, 0);
    const int notes_height = notes_.HeightOf(notes);
    PlaceKept(gap + rows.height() + notes_height);
    if (!engine_.at_column_top()) engine_.Skip(gap);
    has_content_ = true;
    rows.Place(notes_height);
    notes_.Add(std::move(notes), true);
  }
}

void RichTextFlow::Begin(std::size_t number, ColumnLevel level) {
  const Section& section = pages_->sections()[number];
  const bool fits_here = pages_->HasSamePaper(number);
  if (section.begin == Section::Begin::kHere && fits_here && !breaks_) {
    PlaceKept(0);
    engine_.MoveTo(std::max(engine_.y(), engine_.deepest()));
    engine_.Skip(std::exchange(gap_, 0));
    pages_->Begin(number, true);
    SetColumns(section, level);
  } else if (section.begin == Section::Begin::kColumn && fits_here && !breaks_) {
    PlaceKept(0);
    engine_.NextColumn();
    pages_->Begin(number, true);
  } else {
    if (!breaks_) AskForPage();
    asked_section_ = number;
    asked_level_ = level;
  }
}

void RichTextFlow::SetColumns(const Section& section, ColumnLevel level) {
  if (section.columns == 1 && engine_.columns() == 1) return;
  engine_.SetColumns(section.columns, section.column_gap);
  const bool fits = engine_.y() + level.height + level.notes <= engine_.bottom();
  if (level.height > 0 && fits) engine_.LimitColumns(level.height);
}

void RichTextFlow::End() {
  PlaceKept(0);
  engine_.Skip(std::exchange(gap_, 0));
  AddEndnotes();
  for (int pages = 0; notes_.has_rest() && pages < kMostPagesOfNotes; ++pages) {
    engine_.NextColumn();
    notes_.Add(notes_.TakeRest(), false);
  }
  notes_.Finish();
}

void RichTextFlow::AddEndnotes() {
  for (const FoundNote& note : notes_.TakeEndnotes()) {
    printing_.text.BeginNote(note.number);
    for (const richtext::Block& block : printing_.parts.Read(note.rtf).blocks) {
      if (const auto* const paragraph = std::get_if<richtext::Paragraph>(&block)) {
        Add(*paragraph, {});
      }
    }
    printing_.text.EndNote();
  }
  PlaceKept(0);
}

// Begins a page once something comes to stand on it, so that no document ends with an empty one.
void RichTextFlow::AskForPage() {
  PlaceKept(0);
  GoToAskedPage();
  breaks_ = true;
  gap_ = 0;
}

// The width of what comes next depends on its section.
void RichTextFlow::GoToAskedColumns() {
  if (asked_section_) GoToAskedPage();
}

void RichTextFlow::GoToAskedPage() {
  if (!std::exchange(breaks_, false)) return;
  if (!asked_section_) return engine_.NewPage();
  const std::size_t number = *std::exchange(asked_section_, std::nullopt);
  const Section& section = pages_->sections()[number];
  pages_->Begin(number, false);
  const bool is_odd = pages_->NextNumber() % 2 != 0;
  const bool skips = (section.begin == Section::Begin::kEvenPage && is_odd) ||
                     (section.begin == Section::Begin::kOddPage && !is_odd);
  if (skips && !section.first_number) {
    pages_->Begin(number - 1, true);
    engine_.NewPage();
    pages_->Begin(number, false);
  }
  engine_.NewPage();
  SetColumns(section, asked_level_);
}

void RichTextFlow::Take(Line line, bool stays_with_next) {
  GoToAskedPage();
  if (stays_with_next) {
    kept_height_ += line.height();
    kept_.push_back(std::move(line));
    // More than a column can't stay together.
    if (kept_height_ > engine_.column_height()) PlaceKept(0);
    return;
  }
  PlaceKept(line.height());
  Place(line);
}

// The lines that stay with what comes next, which is `height` high.
void RichTextFlow::PlaceKept(int height) {
  const bool fits_in_one = kept_height_ + height <= engine_.column_height();
  const bool moves = !engine_.HasRoom(kept_height_ + height) && fits_in_one;
  if (!kept_.empty() && moves && !engine_.at_column_top()) {
    engine_.NextColumn();
    kept_.front().gap = 0;
  }
  kept_height_ = 0;
  for (Line& line : std::exchange(kept_, {})) Place(line);
}

void RichTextFlow::Place(Line& line) {
  std::vector<RichBox> notes = notes_.LayOut(std::move(line.notes));
  const int first_note = notes.empty() ? 0 : notes_.HeightOf(notes);
  const bool fits = engine_.HasRoom(line.height() + first_note);
  const bool is_small = line.height() + first_note <= engine_.column_height() / 2;
  if (fits || (engine_.HasRoom(line.height()) && !is_small)) {
    engine_.Skip(line.gap);
  } else if (!engine_.at_column_top()) {
    engine_.NextColumn();
    line.line.frame_above = 0;
  }
  if (notes_.has_rest() && engine_.at_column_top()) {
    std::vector<RichBox> rest = notes_.TakeRest();
    std::ranges::move(notes, std::back_inserter(rest));
    notes = std::move(rest);
  }
  PlaceLine(engine_, printing_.styles, line.line, engine_.left(), engine_.y());
  engine_.Skip(line.line.height);
  notes_.Add(std::move(notes), false);
}

}  // namespace tarnwell::print
