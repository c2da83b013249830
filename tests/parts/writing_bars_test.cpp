// The bar above a document, the one that finds words, and the gestures behind their buttons.

#include <gtest/gtest.h>

#include <optional>

#include "parts/find_bar.h"
#include "parts/format_bar.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "richtext/rich_text_writer.h"
#include "richtext/sketch.h"
#include "support/form_rig.h"

namespace tarnwell::parts {
namespace {

using richtext::FromSketch;
using richtext::Range;
using richtext::Sketch;
using enum FormatCommand;

class WritingBars : public ::testing::Test {
 protected:
  WritingBars() {
    text.on_change = [this] { ++changes; };
    find.AddTo(bar.AddMenu(rig.form.menus()));
  }
  void Show(const char* sketch, Range range) {
    text.SetDocument(FromSketch(sketch));
    text.MoveSelection(range);
  }
  std::string shown() const { return Sketch(text.document()); }
  // The buttons that are down, by their names.
  std::string Down() {
    std::string down;
    for (int i = 0; i < kFormatCommandCount; ++i) {
      forms::Command& button = bar[static_cast<FormatCommand>(i)];
      if (button.selected()) down += button.spoken_name() + " ";
    }
    return down;
  }

  testing::FormRig rig;
  forms::RichTextBox text{rig.form, "Rtext1", {.spoken_name = "Document"}};
  FormatBar bar{rig.form, rig.context, text};
  FindBar find{rig.form, text};
  int changes = 0;
};

TEST_F(WritingBars, ShowTheTextAtTheCursorAtOnce) {
  text.SetDocument(richtext::ReadRichText(
      "{\\rtf1{\\fonttbl{\\f0 Arial;}{\\f1 "
      "Times;}}{\\colortbl;\\red255\\green255\\blue0;}\\f0\\fs28"
      "\\pard\\qc {\\b Bold} plain\\par\\pard\\qj{\\f1\\i\\ul\\highlight1 All}\\par"
      "\\pard{\\pntext 1.\\tab}Item\\par}"));
  EXPECT_EQ(Down(), "Bold Center ");
  EXPECT_EQ(bar.font.text(), "Arial");
  EXPECT_EQ(bar.size.text(), "14");
  text.MoveSelection({{1, 1}, {1, 1}});
  EXPECT_EQ(Down(), "Italic Underline Highlight Justify ");
  text.MoveSelection({{0, 6}, {1, 2}});  // of two fonts
  EXPECT_EQ(bar.font.text(), "");
  text.MoveSelection({{2, 1}, {2, 1}});
  EXPECT_EQ(Down(), "Left Numbers ");
  bar[kBold].Click();  // of what is typed next
  EXPECT_EQ(Down(), "Bold Left Numbers ");
  text.SetDocument(richtext::ReadRichText("{\\rtf1\\pard\\qr Other\\par}"));
  EXPECT_EQ(Down(), "Right ");
}

TEST_F(WritingBars, EachButtonIsOneStepAndATextThatIsOnlyReadHasNone) {
  const std::pair<FormatCommand, const char*> cases[] = {
      {kBold, "*ab*|c"}, {kCenter, "ab|c"},    {kBullets, "\u2022>ab|c"}, {kNumbers, "1.>ab|c"},
      {kIndent, "ab|c"}, {kHighlight, "ab|c"}, {kUnderline, "ab|c"},      {kJustify, "ab|c"},
  };
  for (const auto& [command, after] : cases) {
    Show("ab|c", {{0, 0}, {0, 2}});
    const richtext::RichDocument before = text.document();
    text.SetLocked(true);
    bar[command].Click();
    EXPECT_EQ(text.document(), before);
    text.SetLocked(false);
    changes = 0;
    bar[command].Click();
    EXPECT_EQ(shown(), after);
    EXPECT_NE(text.document(), before);
    EXPECT_EQ(changes, 1);
    bar[kUndo].Click();
    EXPECT_EQ(text.document(), before);
    EXPECT_FALSE(bar[kUndo].enabled());
    EXPECT_TRUE(bar[kRedo].enabled());
  }
}

TEST_F(WritingBars, AFontIsTypedOrPickedAndASizeHasToBeOne) {
  Show("ab", {{0, 0}, {0, 2}});
  bar.font.Focus();
  bar.font.Type("a");
  bar.font.Type("ar");
  bar.font.PressEnter();
  bar.size.Type("11.5");
  bar.size.PressEnter();
  const auto& run = std::get<richtext::Paragraph>(text.document().blocks[0]).runs[0];
  EXPECT_EQ(run.format.font, "Arial");
  EXPECT_EQ(run.format.half_points, 23);
  for (const char* none : {"", "0", "5000", "1.2.3"}) {
    bar.size.Type(none);
    bar.size.PressEnter();
  }
  EXPECT_EQ(bar.size.text(), "11.5");
  EXPECT_TRUE(text.focused());
}

TEST_F(WritingBars, KeysChooseWhatTheMenuNames) {
  Show("ab", {{0, 0}, {0, 2}});
  const std::pair<const char*, const char*> keys[] = {
      {"Ctrl+B", "*ab*"}, {"Ctrl+Z", "ab"}, {"Ctrl+Y", "*ab*"}, {"Ctrl+Shift+N", "1.>*ab*"}};
  for (const auto& [key, after] : keys) {
    EXPECT_TRUE(rig.form.PressKey(key)) << key;
    EXPECT_EQ(shown(), after) << key;
  }
  text.SetLocked(true);
  EXPECT_FALSE(rig.form.PressKey("Ctrl+B"));
  EXPECT_FALSE(rig.form.PressKey("Ctrl+Q"));
  EXPECT_EQ(shown(), "1.>*ab*");
}

TEST_F(WritingBars, TablesAreMadeAndChangedFromTheirMenu) {
  const auto click = [&](const char* name) { bar.tables.popup.Find(name)->Click(); };
  Show("a|b", {{1, 0}, {1, 0}});
  for (const char* size : {"2 x", "0 x 2", "3 x 99", "two"}) {
    rig.dialogs.ExpectInput("Insert Table", "Rows and columns, such as 3 x 4:", size);
    rig.dialogs.ExpectNote("Insert Table", "A table has 1 to 500 rows and 1 to 32 columns.");
    click("mTI");
  }
  EXPECT_EQ(changes, 0);
  rig.dialogs.ExpectInput("Insert Table", "Rows and columns, such as 3 x 4:", "1x2");
  click("mTI");
  EXPECT_EQ(shown(), "a||[,]|b");
  text.Type("one");
  text.TabToCell(true);
  text.Type("two");
  text.TabToCell(true);  // behind the last cell
  text.Type("three");
  EXPECT_EQ(shown(), "a||[one,two;three,]|b");
  text.TabToCell(false);
  EXPECT_EQ(text.SelectedText(), "two");
  click("mT(3)");  // a column to its right
  click("mT(4)");  // without this row
  EXPECT_EQ(shown(), "a||[three,,]|b");
  click("mT(6)");
  EXPECT_EQ(shown(), "a||b");
  const int before = changes;
  click("mT(0)");  // outside tables
  EXPECT_EQ(changes, before);
  text.Undo();
  EXPECT_EQ(shown(), "a||[three,,]|b");
}

TEST_F(WritingBars, ALinkIsOfTheWebOrOfMail) {
  constexpr const char* kPrompt = "Address of a web page (https://...) or of mail (mailto:...):";
  Show("see us", {{0, 4}, {0, 6}});
  for (const char* address : {"javascript:x", "file:///etc", "https://", "http://a b", "us"}) {
    rig.dialogs.ExpectInput("Link", kPrompt, address);
    rig.dialogs.ExpectNote(
        "Link",
        "Nothing was linked. An address begins with http://, https:// or mailto: "
        "and has no blank in it; what is linked stands in one paragraph.");
    bar[kLink].Click();
  }
  EXPECT_TRUE(text.document().fields.empty());
  rig.dialogs.ExpectInput("Link", kPrompt, "https://example.org/a?b=1");
  bar[kLink].Click();
  rig.dialogs.ExpectInput("Link", kPrompt, "mailto:ann@example.org");
  bar[kLink].Click();  // with nothing selected
  EXPECT_EQ(shown(), "see usmailto:ann@example.org");
  const std::string rtf = richtext::WriteRichText(text.document());
  EXPECT_NE(rtf.find("HYPERLINK \"https://example.org/a?b=1\"}{\\fldrslt"), std::string::npos);
  EXPECT_EQ(richtext::ReadRichText(rtf).fields.size(), 2u);
  text.Undo();
  text.Undo();
  EXPECT_TRUE(text.document().fields.empty());
}

TEST_F(WritingBars, APictureThatCantBeOneIsSaid) {
  Show("a", {{0, 1}, {0, 1}});
  rig.dialogs.ExpectPicture(forms::ChosenPicture{"GIF89a", storage::Fault::kNone});
  rig.dialogs.ExpectNote("Insert Picture",
                         "Only pictures of the kinds PNG and JPEG can stand in a document.");
  bar[kPicture].Click();
  rig.dialogs.ExpectPicture(std::nullopt);
  bar[kPicture].Click();
  EXPECT_EQ(changes, 0);
  rig.dialogs.ExpectPicture(forms::ChosenPicture{
      std::string("\x89PNG\r\n\x1a\n\0\0\0\rIHDR\0\0\3\xE8\0\0\0\x0A", 24), storage::Fault::kNone});
  bar[kPicture].Click();
  EXPECT_EQ(shown(), "a#");
  const auto& run = std::get<richtext::Paragraph>(text.document().blocks[0]).runs.back();
  EXPECT_EQ(std::get<richtext::Picture>(run.content).width, 12240 - 2 * 1800);
}

TEST_F(WritingBars, WordsAreFoundFromTheCursorOnAndRoundTheEnd) {
  Show("one two|One", {{0, 1}, {0, 1}});
  EXPECT_TRUE(rig.form.PressKey("F3"));  // opens the bar: there is nothing to look for
  EXPECT_TRUE(find.panel.visible());
  find.find.Type("one");
  const auto expect = [&](int paragraph, const char* status) {
    EXPECT_EQ(text.selection().from.paragraph, paragraph);
    EXPECT_EQ(text.SelectedText().size(), 3u);
    EXPECT_EQ(rig.form.status(), status);
  };
  find.find.PressEnter();
  expect(1, "");
  rig.form.PressKey("F3");
  expect(0, "The search went on at the other end of the document.");
  rig.form.PressKey("Shift+F3");
  expect(1, "The search went on at the other end of the document.");
  find.match_capitals.Check(true);
  find.next.Click();
  expect(0, "The search went on at the other end of the document.");
  find.find.Type("three");
  find.next.Click();
  expect(0, "\"three\" was not found.");
  EXPECT_TRUE(rig.form.PressEscape());
  EXPECT_FALSE(find.panel.visible());
  EXPECT_EQ(rig.form.status(), "");
  EXPECT_TRUE(text.focused());
}

TEST_F(WritingBars, WordsOfAnyScriptAreFoundAndReplaced) {
  const struct {
    const char* text;
    const char* typed;
    const char* found;
    const char* replaced;
  } cases[] = {
      {"a?? \u0414\u043E\u0433\u043E\u0432\u043E\u0440 b",
       "\u0434\u043E\u0433\u043E\u0432\u043E\u0440", "\u0414\u043E\u0433\u043E\u0432\u043E\u0440",
       "a?? \u5951\u7D04 b"},
      {"?? \u4F1A\u793E\u306E", "\u4F1A\u793E", "\u4F1A\u793E", "?? \u5951\u7D04\u306E"},
      {"?\U0001F600?", "\U0001F600", "\U0001F600", "?\u5951\u7D04?"},
  };
  EXPECT_TRUE(rig.form.PressKey("Ctrl+F"));
  find.replace.TypeWords(text::Utf8("\u5951\u7D04"));
  for (const auto& c : cases) {
    text.SetDocument(richtext::FromPlainText(c.text));
    find.find.TypeWords(text::Utf8(c.typed));
    find.next.Click();
    EXPECT_EQ(text.SelectedText(), c.found);
    EXPECT_TRUE(rig.form.PressKey("Ctrl+F"));
    EXPECT_EQ(find.find.words().bytes(), c.found);
    find.replace_one.Click();
    EXPECT_EQ(richtext::PlainText(text.document()), c.replaced);
    EXPECT_EQ(rig.form.status(), "These words were not found.");
  }
}

TEST_F(WritingBars, AllPlacesAreReplacedAsOneStepInTheirOwnFormats) {
  Show("cat *cat* concat|[cat,x]", {{0, 0}, {0, 3}});
  EXPECT_TRUE(rig.form.PressKey("Ctrl+F"));
  EXPECT_EQ(find.find.text(), "cat");
  find.whole_words.Check(true);
  find.replace.Type("dog");
  find.replace_one.Click();
  EXPECT_EQ(shown(), "dog *cat* concat|[cat,x]");
  EXPECT_EQ(text.selection(), (Range{{0, 4}, {0, 7}}));
  find.replace_all.Click();
  EXPECT_EQ(shown(), "dog *dog* concat|[dog,x]");
  EXPECT_EQ(rig.form.status(), "2 places were replaced.");
  text.Undo();
  EXPECT_EQ(shown(), "dog *cat* concat|[cat,x]");
  find.replace.Type("");
  find.replace_all.Click();
  EXPECT_EQ(shown(), "dog  concat|[,x]");
  find.replace_all.Click();
  EXPECT_EQ(rig.form.status(), "\"cat\" was not found.");
  text.SetLocked(true);
  find.find.Type("dog");
  find.replace_all.Click();
  EXPECT_EQ(shown(), "dog  concat|[,x]");
}

}  // namespace
}  // namespace tarnwell::parts
