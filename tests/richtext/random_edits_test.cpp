// Whatever is done to a document can be taken back and is stored.

#include <gtest/gtest.h>

#include <random>

#include "richtext/fragment.h"
#include "richtext/history.h"
#include "richtext/rich_text_files.h"
#include "richtext/rich_text_writer.h"
#include "richtext/sketch.h"

namespace tarnwell::richtext {
namespace {

class RandomEdits {
 public:
  RandomEdits(RichDocument document, unsigned seed)
      : document_(std::move(document)), random_(seed) {}

  const RichDocument& document() const { return document_; }
  History& history() { return history_; }

  void Edit() {
    Editor editor(document_);
    const Range range = SomeRange();
    const Position at = range.from;
    switch (Below(8)) {
      case 0:
        editor.Erase(range);
        break;
      case 1:
        editor.InsertLines(at, Below(2) == 0 ? "\n" : "é\n\nx",
                           TypingAt(ParagraphAt(document_, at.paragraph), at.offset));
        break;
      case 2:
        editor.Insert(at, Slice(document_, SomeRange()));
        break;
      case 3:
        editor.Reformat(range, [](CharacterFormat& format) { format.bold = !format.bold; });
        break;
      case 4:
        editor.ReformatParagraphs(
            range, [](ParagraphFormat& format) { format.alignment = Alignment::kCenter; });
        break;
      default:
        editor.InsertText(at, "é ", TypingAt(ParagraphAt(document_, at.paragraph), at.offset));
    }
    history_.Record(editor, document_, range, range, StepKind::kOther);
  }

 private:
  int Below(int limit) { return std::uniform_int_distribution(0, limit - 1)(random_); }

  Position SomePosition() {
    const int paragraph = Below(CountParagraphs(document_));
    const int length = ShownLength(ParagraphAt(document_, paragraph));
    return Clamped(document_, Position{paragraph, Below(length + 1)});
  }

  Range SomeRange() {
    Range range{SomePosition(), SomePosition()};
    // Few long ones, lest there be nothing left.
    if (Below(4) != 0) range.to.paragraph = range.from.paragraph;
    return Clamped(document_, range);
  }

  RichDocument document_;
  History history_;
  std::mt19937 random_;
};

class RandomEditsTest : public ::testing::TestWithParam<const char*> {};

TEST_P(RandomEditsTest, AreTakenBackAndDoneAgainAndStored) {
  for (unsigned seed = 1; seed <= 20; ++seed) {
    const RichDocument original = TestDocument(GetParam());
    RandomEdits edits(original, seed);
    for (int i = 0; i < 60; ++i) edits.Edit();
    const RichDocument edited = edits.document();

    const std::string rtf = WriteRichText(edited);
    const RichDocument read = ReadRichText(rtf);
    ASSERT_EQ(WriteRichText(read), rtf) << "seed " << seed;
    ASSERT_EQ(Sketch(read), Sketch(edited)) << "seed " << seed;

    RichDocument document = edited;
    while (edits.history().Undo(document)) continue;
    ASSERT_EQ(document, original) << "seed " << seed;
    while (edits.history().Redo(document)) continue;
    ASSERT_EQ(document, edited) << "seed " << seed;
  }
}

INSTANTIATE_TEST_SUITE_P(Documents, RandomEditsTest,
                         ::testing::Values("character-formats.rtf", "fields-and-links.rtf",
                                           "kept-pieces.rtf", "lists-of-old-style.rtf",
                                           "pictures.rtf", "table.rtf", "table-inside-a-cell.rtf"));

}  // namespace
}  // namespace tarnwell::richtext
