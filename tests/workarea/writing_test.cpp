// Writing in the hub: a contract from its template, by keys, bar and tables, to paper.

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <iterator>
#include <map>

#include "workarea/workarea_rig.h"

namespace tarnwell::workarea {
namespace {

using parts::FormatCommand;

using WritingTest = WorkAreaTest;

TEST_F(WritingTest, TheStateIsThatOfTheTemplateAtOnce) {
  rig.temporary.Write("EmployPolicy0.Fl1", Rtf("\\qc Title"));
  Open();
  Press("SSCommand14(0)");
  EXPECT_EQ(hub().document.tools.alignment.chosen(), 0);
  hub().document.insert_template.Click();
  EXPECT_EQ(hub().document.tools.alignment.chosen(), 1);
  EXPECT_TRUE(hub().document.format[FormatCommand::kCenter].selected());
  hub().document.format[FormatCommand::kJustify].Click();
  EXPECT_EQ(hub().document.tools.alignment.chosen(), forms::OptionGroup::kNone);
}

TEST_F(WritingTest, TheWindowSaysAsLongAsSomethingIsUnsaved) {
  Open();
  Press("SSCommand14(0)");
  EXPECT_FALSE(hub().unsaved());
  hub().document.text.Type("Mine");
  EXPECT_TRUE(hub().unsaved());
  ExpectSaved();
  EXPECT_TRUE(hub().PressKey("Ctrl+S"));
  EXPECT_FALSE(hub().unsaved());
  EXPECT_EQ(Stored("EmployPolicy0.Fl2"), "Mine");
  hub().document.text.Type("!");
  ExpectSaveQuestion(forms::Answer::kNo);
  hub().document.exit.Click();
  EXPECT_FALSE(hub().unsaved());
}

TEST_F(WritingTest, NoKeyOfTheMenusIsUsedTwice) {
  Open();
  std::map<std::string, std::string> names;
  const std::function<void(forms::MenuItem&)> walk = [&](forms::MenuItem& menu) {
    for (const auto& item : menu.items()) {
      if (!item->key().empty()) {
        const auto [first, is_new] = names.emplace(item->key(), item->name());
        EXPECT_TRUE(is_new) << item->key() << ": " << first->second << " and " << item->name();
      }
      walk(*item);
    }
  };
  walk(hub().menus());
  for (const char* key : {"Ctrl+S", "Ctrl+P", "Ctrl+F", "F3", "F7", "F8", "Ctrl+Y", "Ctrl+B",
                          "Ctrl+I", "Ctrl+U", "Ctrl+L", "Ctrl+E", "Ctrl+R", "Ctrl+J"}) {
    EXPECT_TRUE(names.contains(key)) << key;
    EXPECT_FALSE(hub().PressKey(key)) << key;  // without a document
  }
}

TEST_F(WritingTest, AContractIsWrittenFromItsTemplateSavedAndPrinted) {
  std::ifstream supplied(TARNWELL_SOURCE_DIR "/data/EmployPolicy5.Fl1", std::ios::binary);
  rig.temporary.Write("EmployPolicy5.Fl1",
                      std::string(std::istreambuf_iterator<char>(supplied), {}));
  Open();
  Press("SSCommand14(5)");
  DocumentView& view = hub().document;
  view.insert_template.Click();
  ASSERT_TRUE(hub().PressKey("F8"));
  view.text.Type("November 23, 2026");
  ASSERT_TRUE(hub().PressKey("F8"));
  view.text.Type("Lake Company");

  // A table of the company's things at the end, from the menu and by Tab.
  const int last = view.text.paragraph_count() - 1;
  view.text.MoveSelection({{last, 1 << 20}, {last, 1 << 20}});
  view.text.Type("\nThings lent");
  ASSERT_TRUE(hub().PressKey("Ctrl+E"));
  view.text.Type("\n");
  rig.dialogs.ExpectInput("Insert Table", "Rows and columns, such as 3 x 4:", "1 x 2");
  view.format.tables.popup.Find("mTI")->Click();
  for (const char* cell : {"Key", "1", "Laptop", "A-17"}) {
    view.text.Type(cell);
    if (std::string_view(cell) != "A-17") view.text.TabToCell(true);
  }
  // The word for the company everywhere, and back again.
  ASSERT_TRUE(hub().PressKey("Ctrl+F"));
  view.find.find.Type("Employee");
  view.find.whole_words.Check(true);
  view.find.match_capitals.Check(true);
  view.find.replace.Type("Associate");
  const std::string before = Shown();
  view.find.replace_all.Click();
  EXPECT_EQ(Shown().find("the Employee "), std::string::npos);
  ASSERT_TRUE(hub().PressKey("Ctrl+Z"));
  EXPECT_EQ(Shown(), before);
  EXPECT_TRUE(hub().PressEscape());

  ExpectSaved();
  ASSERT_TRUE(hub().PressKey("Ctrl+S"));
  const std::string stored = Stored("EmployPolicy5.Fl2");
  EXPECT_EQ(stored, before);
  EXPECT_NE(stored.find("Date of Agreement\tNovember 23, 2026\nCompany\tLake Company"),
            std::string::npos);
  EXPECT_NE(stored.find("Things lent\nKey\t1\nLaptop\tA-17"), std::string::npos);

  ASSERT_TRUE(hub().PressKey("Ctrl+P"));
  hub().printing.print.print.Click();
  const forms::Document& printed = rig.pages.printed.at(0);
  ASSERT_GT(printed.pages.size(), 1u);
  for (std::size_t page = 0; page < printed.pages.size(); ++page) {
    std::string text;
    for (const forms::Mark& mark : printed.pages[page]) {
      if (const auto* part = std::get_if<forms::PlacedText>(&mark)) text += part->text;
    }
    EXPECT_NE(text.find("Page " + std::to_string(page + 1)), std::string::npos) << page;
  }
}

}  // namespace
}  // namespace tarnwell::workarea
