#include "forms/rich_text_box.h"

#include <gtest/gtest.h>

#include "richtext/plain_text.h"
#include "richtext/rich_text_writer.h"
#include "richtext/sketch.h"
#include "support/form_rig.h"

namespace tarnwell::forms {
namespace {

using richtext::FromSketch;
using richtext::Position;
using richtext::Range;
using richtext::Sketch;

class RichTextBoxTest : public ::testing::Test {
 protected:
  RichTextBoxTest() {
    box.on_change = [this] { ++changes; };
    box.on_selection = [this] { ++moves; };
  }
  void Show(const char* sketch, Position cursor = {}) { ShowSelected(sketch, {cursor, cursor}); }
  void ShowSelected(const char* sketch, Range range) {
    box.SetDocument(FromSketch(sketch));
    box.Select(range);
    changes = moves = 0;
  }
  void TypeKeys(const std::string& keys) {
    for (const char key : keys) box.Type({&key, 1});
  }
  std::string text() const { return Sketch(box.document()); }

  testing::FormRig rig;
  RichTextBox box{rig.form, "RichTextBox1", {.spoken_name = "Document"}};
  int changes = 0;
  int moves = 0;
};

TEST_F(RichTextBoxTest, OnlyAPersonsEditsAreTold) {
  Show("ab|cd", {0, 1});
  box.Replace({{0, 0}, {0, 1}}, "x");
  box.SetSelectionAlignment(richtext::Alignment::kCenter);
  EXPECT_EQ(changes, 0);
  box.Type("y");
  EXPECT_EQ(changes, 1);
  EXPECT_EQ(text(), "xyb|cd");
  box.Erase({{0, 1}, {0, 1}});
  EXPECT_EQ(changes, 1);
  box.Undo();
  EXPECT_EQ(changes, 2);
  box.SetDocument(FromSketch("z"));
  box.Clear();
  EXPECT_EQ(changes, 2);
  EXPECT_EQ(box.document(), richtext::RichDocument{});
}

TEST_F(RichTextBoxTest, TheWayBackIsFiveHundredStepsLong) {
  Show("");
  for (int i = 0; i <= 500; ++i)
    box.Type("ab");  // each a step of its own: no key gives two letters
  int undone = 0;
  for (; box.CanUndo(); ++undone) box.Undo();
  EXPECT_EQ(undone, 500);
  EXPECT_EQ(text(), "ab");
}

TEST_F(RichTextBoxTest, ALockedBoxIsReadOnlyAndAHiddenOneTakesNoGesture) {
  const auto try_all = [this] {
    box.Type("x");
    box.Erase({{0, 0}, {0, 1}});
    box.Backspace({0, 0});
    box.Paste(FromSketch("x"));
    box.MoveText({{0, 0}, {0, 1}}, {1, 0});
    box.ToggleBold();
    box.Undo();
  };
  Show("ab|cd");
  box.Type("1");
  box.SetLocked(true);
  try_all();
  box.Replace({{0, 0}, {0, 1}}, "x");
  box.SetSelectionAlignment(richtext::Alignment::kCenter);
  EXPECT_EQ(text(), "1ab|cd");
  EXPECT_FALSE(box.CanUndo());
  box.MoveSelection({{0, 1}, {1, 1}});
  EXPECT_EQ(box.SelectedText(), "ab\nc");
  box.SetLocked(false);
  box.SetVisible(false);
  try_all();
  box.MoveSelection({});
  EXPECT_EQ(text(), "1ab|cd");
  EXPECT_EQ(box.SelectedText(), "ab\nc");
}

TEST_F(RichTextBoxTest, UndoTakesBackAWordAtATimeAndRestoresTheSelection) {
  Show("ab", {0, 2});
  const richtext::RichDocument loaded = box.document();
  TypeKeys(" one two");
  EXPECT_EQ(text(), "ab one two");
  box.Undo();
  EXPECT_EQ(text(), "ab one ");
  box.Undo();
  EXPECT_EQ(text(), "ab ");
  box.Undo();
  EXPECT_EQ(box.document(), loaded);
  EXPECT_EQ(box.selection().from, (Position{0, 2}));
  EXPECT_FALSE(box.CanUndo());
  box.Redo();
  box.Redo();
  EXPECT_EQ(text(), "ab one ");
  TypeKeys("x");
  EXPECT_FALSE(box.CanRedo());
}

TEST_F(RichTextBoxTest, ErasingIsAStepOfItsOwnAndMovingEndsAStep) {
  Show("abcd", {0, 4});
  TypeKeys("xy");
  box.Backspace({0, 5});
  box.Backspace({0, 4});
  EXPECT_EQ(text(), "abcd");
  box.Undo();
  EXPECT_EQ(text(), "abcdxy");
  box.Undo();
  TypeKeys("x");
  box.MoveSelection({{0, 0}, {0, 0}});
  box.MoveSelection({{0, 5}, {0, 5}});
  TypeKeys("y");
  box.Undo();
  EXPECT_EQ(text(), "abcdx");
}

TEST_F(RichTextBoxTest, WhatIsTypedOverASelectionIsOneStepWithItsTyping) {
  ShowSelected("a*bc*d|e", {{0, 1}, {1, 0}});
  TypeKeys("xy");
  EXPECT_EQ(text(), "a*xy*e");
  box.Undo();
  EXPECT_EQ(text(), "a*bc*d|e");
  EXPECT_EQ(box.SelectedText(), "bcd\n");
}

TEST_F(RichTextBoxTest, TypingMakesParagraphsLinesAndPagesAndNothingUnseen) {
  Show("a", {0, 1});
  box.Type("b\r\nc\fd\u2028e\x01\x80");
  EXPECT_EQ(text(), "ab|c\fd\ne\uFFFD");
}

TEST_F(RichTextBoxTest, TheFormatOfWhatIsTypedNextHoldsUntilTheCursorMoves) {
  Show("ab", {0, 1});
  box.ToggleBold();
  EXPECT_EQ(box.SelectionFont().bold, true);
  EXPECT_FALSE(box.CanUndo());
  TypeKeys("xy");
  EXPECT_EQ(text(), "a*xy*b");
  box.ToggleBold();
  box.MoveSelection({{0, 4}, {0, 4}});
  TypeKeys("z");
  EXPECT_EQ(text(), "a*xy*bz");
}

TEST_F(RichTextBoxTest, OnlyTheChosenPartsOfAFontChange) {
  box.SetDocument(richtext::ReadRichText(
      "{\\rtf1{\\fonttbl{\\f0 Times;}{\\f1 Arial;}}{\\colortbl;\\red255;}\\pard\\fs20 a"
      "{\\f1\\b\\cf1 b}{\\fs28\\ul\\strike\\i c}\\par}"));
  box.SetTextColor(kPureBlue);
  box.Select({{0, 0}, {0, 1}});
  FontParts common = Font{.name = "Times", .size = 10, .color = kPureBlue};
  EXPECT_EQ(box.SelectionFont(), common);
  box.Select({{0, 0}, {0, 2}});
  common.name.reset();
  common.bold.reset();
  common.color.reset();
  EXPECT_EQ(box.SelectionFont(), common);
  box.Select({{0, 0}, {0, 3}});
  EXPECT_EQ(box.SelectionFont(), FontParts());

  const richtext::RichDocument loaded = box.document();
  const auto formats = [](const richtext::RichDocument& document) {
    std::vector<richtext::CharacterFormat> all;
    for (const auto& run : richtext::ParagraphAt(document, 0).runs) all.push_back(run.format);
    return all;
  };
  const auto change = [&](auto set_part, auto set_format) {
    FontParts parts;
    set_part(parts);
    box.SetSelectionFont(parts);
    auto expected = formats(loaded);
    std::ranges::for_each(expected, set_format);
    EXPECT_EQ(formats(box.document()), expected);
    box.Undo();
    EXPECT_EQ(box.document(), loaded);
  };
  change([](auto& parts) { parts.name = "Courier"; },
         [](auto& format) { format.font = "Courier"; });
  change([](auto& parts) { parts.size = 8.5; }, [](auto& format) { format.half_points = 17; });
  change([](auto& parts) { parts.bold = true; }, [](auto& format) { format.bold = true; });
  change([](auto& parts) { parts.italic = false; }, [](auto& format) { format.italic = false; });
  change([](auto& parts) { parts.strike = true; }, [](auto& format) { format.strike = true; });
  change([](auto& parts) { parts.underline = true; },
         [](auto& format) { format.underline = richtext::Underline::kSingle; });
  change([](auto& parts) { parts.color = kPureBlue; },
         [](auto& format) {
           format.color = richtext::Color{0, 0, 255};
         });
  box.SetSelectionFont({});
  EXPECT_FALSE(box.CanUndo());
}

TEST_F(RichTextBoxTest, SelectedCellsAreEditedAndNoOthers) {
  const char* const before = "x|[a,b,c;d,e,f]|y";
  const Range ranges[] = {{{1, 1}, {5, 0}}, {{2, 0}, {4, 1}}};  // drawn forwards and backwards
  const auto expect = [&](const char* after, const char* what) {
    EXPECT_EQ(text(), after) << what;
    box.Undo();
    EXPECT_EQ(text(), before) << what;
  };
  for (const Range& range : ranges) {
    ShowSelected(before, range);
    EXPECT_EQ(box.SelectedText(), "a\nb\nd\ne");
    EXPECT_EQ(Sketch(box.SelectedPart()), "[a,b;d,e]");
    box.Erase(box.selection());
    expect("x|[,,c;,,f]|y", "erased");
    box.Type("z");
    expect("x|[z,,c;,,f]|y", "typed over");
    box.Paste(FromSketch("*p*"));
    expect("x|[*p*,,c;,,f]|y", "pasted over");
    box.ToggleBold();
    expect("x|[*a*,*b*,c;*d*,*e*,f]|y", "bold");
    FontParts parts;
    parts.bold = true;
    box.SetSelectionFont(parts);
    expect("x|[*a*,*b*,c;*d*,*e*,f]|y", "font");
    box.SetSelectionAlignment(richtext::Alignment::kRight);
    for (int i = 0; i < box.paragraph_count(); ++i) {
      const bool selected = i == 1 || i == 2 || i == 4 || i == 5;
      EXPECT_EQ(
          richtext::ParagraphAt(box.document(), i).format.alignment == richtext::Alignment::kRight,
          selected)
          << i;
    }
    box.Undo();
    box.MoveText(range, {7, 1});
    expect("x|[,,c;,,f]|y|[a,b;d,e]|", "moved");
    box.MoveText(range, {3, 1});
    expect("x|[,,ca\tb/d\te;,,f]|y", "moved into the table");
    box.MoveText(range, {4, 1});
    EXPECT_EQ(text(), before);
  }
}

TEST_F(RichTextBoxTest, OverATablesEdgeAWholeTableIsSelected) {
  ShowSelected("xy|[a,b;c,d]|z", {{0, 1}, {2, 0}});
  EXPECT_EQ(box.SelectedText(), "y\na\nb\nc\nd");
  box.ToggleBold();
  EXPECT_EQ(text(), "x*y*|[*a*,*b*;*c*,*d*]|z");
  box.Type("v");
  EXPECT_EQ(text(), "x*v*|z");
}

TEST_F(RichTextBoxTest, AKeyWithoutASelectionErasesNoTable) {
  const char* const before = "ab|[c,d]|e";
  const Range ranges[] = {{{0, 2}, {3, 0}}, {{0, 2}, {1, 0}}, {{1, 1}, {2, 0}}, {{2, 1}, {3, 0}}};
  for (const Range& range : ranges) {
    Show(before, range.from);
    box.Erase(range);
    Show(before, range.to);
    box.Backspace(range.from);
    EXPECT_EQ(text(), before);
  }
}

TEST_F(RichTextBoxTest, BackspaceAtAnItemsStartEndsTheListThere) {
  Show("1.>a|2.>b|3.>c", {1, 0});
  box.Backspace({0, 1});
  EXPECT_EQ(text(), "1.>a|b|2.>c");
  box.Backspace({0, 1});
  EXPECT_EQ(text(), "1.>ab|2.>c");
}

TEST_F(RichTextBoxTest, TextIsMovedInOneStep) {
  const struct {
    const char* before;
    Range range;
    Position to;
    const char* after;
    const char* selected;
  } cases[] = {
      {"abcd", {{0, 0}, {0, 1}}, {0, 3}, "bcad", "a"},
      {"abcd", {{0, 2}, {0, 4}}, {0, 1}, "acdb", "cd"},
      {"abc|def|g", {{0, 1}, {1, 1}}, {1, 2}, "aebc|df|g", "bc\nd"},
      {"abc|d", {{0, 2}, {1, 0}}, {1, 1}, "abdc|", "c\n"},
      {"ab|[c,d]", {{0, 0}, {0, 1}}, {1, 1}, "b|[ca,d]", "a"},
      {"abcd", {{0, 1}, {0, 3}}, {0, 2}, "abcd", ""},
  };
  for (const auto& c : cases) {
    Show(c.before);
    box.MoveText(c.range, c.to);
    EXPECT_EQ(text(), c.after) << c.before;
    EXPECT_EQ(box.SelectedText(), c.selected) << c.before;
    box.Undo();
    EXPECT_EQ(text(), c.before);
  }
}

TEST_F(RichTextBoxTest, ABlankBoxCanBeWrittenIn) {
  EXPECT_TRUE(box.IsBlank());
  EXPECT_EQ(box.paragraph_count(), 1);
  EXPECT_EQ(box.ParagraphText(0), "");
  TypeKeys("ab\nc");
  EXPECT_EQ(richtext::PlainText(box.document()), "ab\nc");
  while (box.CanUndo()) box.Undo();
  EXPECT_EQ(box.document(), richtext::RichDocument{});
}

TEST_F(RichTextBoxTest, ABoxWithAPictureADrawingOrATableIsNotBlank) {
  for (const char* const sketch : {"#", "[,]", " |[]| "}) {
    box.SetDocument(FromSketch(sketch));
    EXPECT_FALSE(box.IsBlank()) << sketch;
  }
  for (const char* const drawing :
       {"{\\pict\\wmetafile8 00}", "{\\shp{\\*\\shpinst x}}", "{\\object\\objemb{\\result}}"}) {
    box.SetDocument(richtext::ReadRichText("{\\rtf1\\pard " + std::string(drawing) + "\\par}"));
    EXPECT_FALSE(box.IsBlank()) << drawing;
  }
  box.SetDocument(FromSketch("{} |\\~"));
  EXPECT_TRUE(box.IsBlank());
}

TEST_F(RichTextBoxTest, ADocumentWhoseChangesWereTakenBackIsSavedByteForByte) {
  const std::string bytes = richtext::RtfOf("1.>a|2.>b|[c,d]|x");
  box.SetDocument(richtext::ReadRichText(bytes));
  box.Select({{0, 1}, {4, 0}});
  box.Type("\n");
  box.Paste(FromSketch("x|[y]|z"));
  box.ToggleItalic();
  EXPECT_NE(richtext::SaveRichText(box.document(),
                                   richtext::StoredFormOf(bytes, richtext::ReadRichText(bytes))),
            bytes);
  while (box.CanUndo()) box.Undo();
  EXPECT_EQ(richtext::SaveRichText(box.document(),
                                   richtext::StoredFormOf(bytes, richtext::ReadRichText(bytes))),
            bytes);
}

TEST_F(RichTextBoxTest, AViewLearnsWhichParagraphsChanged) {
  Show("a|b|[c,d]");
  const std::size_t known = box.spans_made();
  box.Replace({{1, 0}, {1, 1}}, "x\ny");
  const auto spans = box.SpansFrom(known);
  ASSERT_TRUE(spans.has_value());
  EXPECT_EQ(spans->front().first_paragraph, 1);
  box.SetDocument(FromSketch("z"));
  EXPECT_EQ(box.SpansFrom(known), std::nullopt);
}

TEST_F(RichTextBoxTest, HandlersHearOfTheCursor) {
  Show("ab|cd");
  box.MoveSelection({{1, 0}, {1, 0}});
  box.MoveSelection({{1, 0}, {1, 0}});
  EXPECT_EQ(moves, 1);
  box.Select({{0, 0}, {0, 2}});
  EXPECT_EQ(moves, 2);
}

}  // namespace
}  // namespace tarnwell::forms
