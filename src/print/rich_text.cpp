#include "print/rich_text.h"

#include <algorithm>
#include <utility>

#include "print/paragraph_lines.h"
#include "print/rich_table.h"

namespace tarnwell::print {
namespace {

class RichTextFlow {
 public:
  RichTextFlow(PageEngine& engine, const richtext::RichDocument& document)
      : engine_(engine), styles_(engine, document) {}

  void Add(const richtext::Paragraph& paragraph) {
    const richtext::ParagraphFormat& format = paragraph.format;
    if (format.page_break_before && has_content_ && !breaks_) AskForPage();
    int gap = format.space_before;
    ParagraphLines lines(paragraph, styles_,
                         {engine_.ColumnWidth(), std::max(engine_.column_height(), 1)});
    for (RichLine line; lines.Next(line);) {
      Place(line, std::exchange(gap, 0));
      if (line.end == RichLine::End::kPageBreak) AskForPage();
    }
    if (!breaks_) engine_.Skip(format.space_after);
    const bool is_section_end = !paragraph.section_break.empty();
    if (is_section_end && paragraph.section_break.find("\\sbknone") == std::string::npos &&
        !breaks_) {
      AskForPage();
    }
  }

  void Add(const richtext::Table& table) {
    for (const richtext::TableRow& row : table.rows) {
      GoToAskedPage();
      has_content_ = true;
      AddRichRow(engine_, styles_, row);
    }
  }

 private:
  // Begins a page once something comes to stand on it, so that no document ends with an empty one.
  void AskForPage() {
    GoToAskedPage();
    breaks_ = true;
  }

  void GoToAskedPage() {
    if (std::exchange(breaks_, false)) engine_.NewPage();
  }

  void Place(const RichLine& line, int gap) {
    has_content_ = true;
    if (line.height == 0) return;
    GoToAskedPage();
    if (engine_.HasRoom(gap + line.height)) {
      engine_.Skip(gap);
    } else if (!engine_.at_column_top()) {
      engine_.NextColumn();
    }
    PlaceLine(engine_, styles_, line, engine_.left(), engine_.y());
    engine_.Skip(line.height);
  }

  PageEngine& engine_;
  RichStyles styles_;
  bool breaks_ = false;  // what comes next begins a page
  bool has_content_ = false;
};

}  // namespace

void AddRichText(PageEngine& engine, const richtext::RichDocument& document) {
  RichTextFlow flow(engine, document);
  for (const richtext::Block& block : document.blocks) {
    std::visit([&](const auto& one) { flow.Add(one); }, block);
  }
}

}  // namespace tarnwell::print
