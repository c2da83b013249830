#include "print/rich_text.h"

#include <algorithm>
#include <utility>

#include "print/paragraph_lines.h"
#include "print/rich_table.h"
#include "richtext/kept_words.h"

namespace tarnwell::print {
namespace {

class RichTextFlow {
 public:
  RichTextFlow(PageEngine& engine, const richtext::RichDocument& document)
      : engine_(engine), styles_(engine, document) {}

  void Add(const richtext::Paragraph& paragraph) {
    const richtext::ParagraphFormat& format = paragraph.format;
    if (format.page_break_before && has_content_ && !breaks_) AskForPage();
    const bool stays_with_next = richtext::HoldsKept("keepn", format.other);
    int gap = std::exchange(gap_, 0) + format.space_before;
    ParagraphLines lines(paragraph, styles_,
                         {engine_.ColumnWidth(), std::max(engine_.column_height(), 1)});
    for (RichLine line; lines.Next(line); line = {}) {
      has_content_ = true;
      const bool asks_for_page = line.end == RichLine::End::kPageBreak;
      if (line.height > 0) Take({std::move(line), std::exchange(gap, 0)}, stays_with_next);
      if (asks_for_page) AskForPage();
    }
    if (!breaks_) gap_ = format.space_after;
    const std::string& section = paragraph.section_break;
    const bool begins_page = section.find("\\sbknone") == std::string::npos;
    if (!section.empty() && begins_page && !breaks_) AskForPage();
  }

  void Add(const richtext::Table& table) {
    const std::span<const richtext::TableRow> rows(table.rows);
    const auto heads = rows.first(HeadRows(table));
    for (std::size_t i = 0; i < rows.size(); ++i) {
      GoToAskedPage();
      RichRow row(engine_, styles_, rows[i]);
      const int gap = std::exchange(gap_, 0);
      PlaceKept(gap + row.height());
      if (!engine_.at_column_top()) engine_.Skip(gap);
      has_content_ = true;
      row.Place(i < heads.size() ? heads.first(0) : heads);
    }
  }

  void End() {
    PlaceKept(0);
    engine_.Skip(gap_);
  }

 private:
  struct Line {
    RichLine line;
    int gap = 0;  // above it, unless it begins a column
    int height() const { return gap + line.height; }
  };

  // Begins a page once something comes to stand on it, so that no document ends with an empty one.
  void AskForPage() {
    PlaceKept(0);
    GoToAskedPage();
    breaks_ = true;
    gap_ = 0;
  }

  void GoToAskedPage() {
    if (std::exchange(breaks_, false)) engine_.NewPage();
  }

  void Take(Line line, bool stays_with_next) {
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
  void PlaceKept(int height) {
    const bool fits_in_one = kept_height_ + height <= engine_.column_height();
    const bool moves = !engine_.HasRoom(kept_height_ + height) && fits_in_one;
    if (!kept_.empty() && moves && !engine_.at_column_top()) {
      engine_.NextColumn();
      kept_.front().gap = 0;
    }
    kept_height_ = 0;
    for (const Line& line : std::exchange(kept_, {})) Place(line);
  }

  void Place(const Line& line) {
    if (engine_.HasRoom(line.height())) {
      engine_.Skip(line.gap);
    } else if (!engine_.at_column_top()) {
      engine_.NextColumn();
    }
    PlaceLine(engine_, styles_, line.line, engine_.left(), engine_.y());
    engine_.Skip(line.line.height);
  }

  PageEngine& engine_;
  RichStyles styles_;
  std::vector<Line> kept_;
  int kept_height_ = 0;
  int gap_ = 0;          // below the last paragraph
  bool breaks_ = false;  // what comes next begins a page
  bool has_content_ = false;
};

}  // namespace

void AddRichText(PageEngine& engine, const richtext::RichDocument& document) {
  RichTextFlow flow(engine, document);
  for (const richtext::Block& block : document.blocks) {
    std::visit([&](const auto& one) { flow.Add(one); }, block);
  }
  flow.End();
}

}  // namespace tarnwell::print
