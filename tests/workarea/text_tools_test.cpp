// What is done to the document on show: search, font, spelling, synonyms.

#include "workarea/text_tools.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "proofing/vsspell1.h"
#include "proofing/vsthesaurus1.h"
#include "workarea/workarea_rig.h"

namespace tarnwell::workarea {
namespace {

using forms::Answer;
using ::testing::ElementsAre;

using TextToolsTest = WorkAreaTest;

TEST_F(TextToolsTest, TheSearchGoesFromMarkToMarkAndBeginsAgain) {
  const std::string mark(45, '&');
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("By " + mark + " and\\par the " + mark + " of it"));
  Open();
  Press("SSCommand14(0)");
  auto& text = hub().document.text;
  const auto find = [&] { hub().document.tools.find_mark.Click(); };
  find();
  EXPECT_EQ(text.selection(), (richtext::Range{{0, 3}, {0, 48}}));
  text.Type("Ann Lee");
  find();
  EXPECT_EQ(text.SelectedText(), mark);
  EXPECT_EQ(text.selection().from.paragraph, 1);
  rig.dialogs.ExpectNote("Search Document", "Search has reached the end of the document.");
  find();
  find();
  EXPECT_EQ(text.selection().from.paragraph, 1);
  EXPECT_EQ(Shown(), "By Ann Lee and\nthe " + mark + " of it");
}

TEST_F(TextToolsTest, EveryMarkIsFoundWhateverIsTypedOverTheOneBefore) {
  std::ifstream supplied(TARNWELL_SOURCE_DIR "/data/EmployPolicy5.Fl1", std::ios::binary);
  rig.temporary.Write("EmployPolicy5.Fl1",
                      std::string(std::istreambuf_iterator<char>(supplied), {}));
  Open();
  Press("SSCommand14(5)");
  auto& view = hub().document;
  for (const std::string typed : {"Lee", "", "One line\nand one more", "x", "<60>"}) {
    SCOPED_TRACE(typed);
    if (!view.text.IsBlank()) rig.dialogs.Expect(TemplateQuestion(), Answer::kYes);
    view.insert_template.Click();
    int found = 0;
    for (; view.tools.find_mark.Click(), !view.text.selection().empty(); ++found) {
      ASSERT_EQ(view.text.SelectedText(), kInsertionMark);
      if (typed.empty()) {
        view.text.Erase(view.text.selection());
      } else {
        for (const char letter : typed == "<60>" ? std::string(60, 'w') : typed) {
          view.text.Type({&letter, 1});
        }
      }
      if (found == 26) {
        rig.dialogs.ExpectNote("Search Document", "Search has reached the end of the document.");
      }
    }
    EXPECT_EQ(found, 27);
  }
}

TEST_F(TextToolsTest, FontAndAlignmentChangeTheSelectionAndAreUnsaved) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("One\\par Two"));
  Open();
  Press("SSCommand14(0)");
  auto& view = hub().document;
  EXPECT_EQ(view.tools.alignment.chosen(), 0);
  view.text.MoveSelection({{1, 0}, {1, 3}});
  view.tools.alignment.Pick(1);
  EXPECT_TRUE(view.unsaved());
  rig.dialogs.ExpectFont(forms::Font{.name = "Arial", .size = 14, .bold = true});
  view.tools.font.Click();
  const auto& paragraph = std::get<richtext::Paragraph>(view.text.document().blocks[1]);
  EXPECT_EQ(paragraph.format.alignment, richtext::Alignment::kCenter);
  EXPECT_EQ(paragraph.runs[0].format.font, "Arial");
  EXPECT_EQ(paragraph.runs[0].format.half_points, 28);
  view.text.MoveSelection({{0, 0}, {0, 0}});
  EXPECT_EQ(view.tools.alignment.chosen(), 0);
}

TEST_F(TextToolsTest, TheSpellingIsCorrectedWhereItStandsInItsFormats) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("We {\\b recieve} a hous\\par and {\\i Hte} end"));
  rig.speller.misspelled = {{"recieve", {}}, {"hous", {"house"}}, {"Hte", {}}};
  Open();
  Press("SSCommand14(0)");
  rig.loop.during_modal = [&] {
    EXPECT_EQ(hub().document.text.SelectedText(), "hous");
    rig.Get<proofing::VSSpell1>("VSSpell1").change.Click();
  };
  rig.dialogs.ExpectNote("Spell Check",
                         "Spell Check has been canceled or has reached the end of your document");
  hub().document.tools.spelling.Click();
  EXPECT_EQ(Shown(), "We receive a house\nand The end");
  EXPECT_EQ(hub().status(), "3 words corrected");
  EXPECT_TRUE(hub().document.unsaved());
  const auto& document = hub().document.text.document();
  EXPECT_TRUE(std::get<richtext::Paragraph>(document.blocks[0]).runs[1].format.bold);
  EXPECT_TRUE(std::get<richtext::Paragraph>(document.blocks[1]).runs[1].format.italic);
}

TEST_F(TextToolsTest, ASynonymTakesThePlaceOfTheHighlightedWord) {
  rig.temporary.Write("EmployPolicy0.Fl2", Rtf("Big, bold"));
  rig.thesaurus.meanings["Big"] = {{"(adj) large", {"large", "huge (similar term)"}}};
  Open();
  Press("SSCommand14(0)");
  rig.dialogs.Expect(
      {"Thesaurus", "Please highlight word you desire to look up!", forms::Icon::kQuestion},
      Answer::kOk);
  hub().document.tools.thesaurus.Click();

  hub().document.text.MoveSelection({{0, 0}, {0, 5}});  // with the comma and the blank
  rig.loop.during_modal = [&] {
    auto& dialogue = rig.Get<proofing::VSThesaurus1>("VSThesaurus1");
    dialogue.synonyms.Pick(1);
    dialogue.replace.Click();
  };
  hub().document.tools.thesaurus.Click();
  EXPECT_EQ(Shown(), "Huge, bold");
  EXPECT_TRUE(hub().document.unsaved());
}

}  // namespace
}  // namespace tarnwell::workarea
