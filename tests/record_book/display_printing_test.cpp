#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "record_book/display_rig.h"

namespace tarnwell::record_book {
namespace {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::SizeIs;

using DisplayPrintingTest = DisplayRig;

TEST_F(DisplayPrintingTest, AHeadingSortsAndTelephonesGoWithTheirRows) {
  AddSome();
  Open();
  Pick("Telephone");
  grid().ClickHeading(1);
  EXPECT_THAT(Names(), ElementsAre("Lee, Ann", "Acme & Co", "Zed"));
  grid().ClickHeading(1);
  EXPECT_THAT(Names(), ElementsAre("Zed", "Acme & Co", "Lee, Ann"));
  form().print_options.Click();
  form().with_telephones.Check(true);
  EXPECT_THAT(PrintedTexts(),
              ::testing::IsSupersetOf({"Zed    Phone: 555-0109", "Acme & Co    Phone: 555-0102",
                                       "Lee, Ann    Phone: 555-0101"}));
  form().print.close.Click();
  Pick("Telephone");
  EXPECT_FALSE(grid().sort_mark());
  EXPECT_THAT(Names(), ElementsAre("Acme & Co", "Lee, Ann", "Zed"));
}

TEST_F(DisplayPrintingTest, TheListIsCopiedAndExported) {
  AddSome();
  Open();
  rig.dialogs.ExpectNote("Copy Option", "Data has been copied to the Windows Clipboard.");
  rig.ClickMenu("mOCopy");
  EXPECT_EQ(rig.clipboard.text, "Lee, Ann\t1 Oak St\t\tYork, PA  17401\r\nZed\t9 Elm St\t\t\r\n");
  Pick("Bus. Fax");
  rig.ClickMenu("mOCopy");  // there is nothing to copy
  rig.ClickMenu("mUExcel");
  EXPECT_EQ(form().exporting.name.text(), "Business Fax.xls");
}

TEST_F(DisplayPrintingTest, TheListIsPrintedInOneColumnOrTwo) {
  AddContact(2, {{0, std::string(39, 'N')}, {1, "Ann"}, {7, std::string(30, '7')}});
  AddContact(3, {{0, "Short"}, {7, "555"}});
  Open();
  Pick("Telephone");
  form().print_options.Click();
  EXPECT_EQ(form().print.copy_page.enabled(), true);
  std::vector<std::string> texts = PrintedTexts();
  ASSERT_THAT(texts, SizeIs(9));
  EXPECT_EQ(texts[1], "Telephone List");
  EXPECT_EQ(texts[2], "As of  March 09, 2026");
  EXPECT_EQ(texts[6], " " + std::string(30, '7'));
  form().print.as_of->Check(false);
  form().list_columns.Pick(1);
  texts = PrintedTexts();
  // Both on one line, the longer name cut.
  EXPECT_THAT(texts, ::testing::Not(::testing::Contains(HasSubstr("As of"))));
  std::string all;
  for (const std::string& text : texts) all += text;
  EXPECT_THAT(all, HasSubstr(std::string(39, 'N').substr(0, 10)));
  EXPECT_THAT(all, ::testing::Not(HasSubstr("Ann")));
}

TEST_F(DisplayPrintingTest, TheCompleteReportHasASectionForEachOption) {
  AddSome();
  Open();
  Pick("Fax");
  form().complete_report.Click();
  EXPECT_FALSE(form().print.copy_page.enabled() || form().with_telephones.visible());
  const std::vector<std::string> texts = PrintedTexts();
  const std::string as_of = "As of  Monday, March 09, 2026";
  const std::string title = "Complete Business Contacts Report";
  EXPECT_THAT(
      texts,
      ElementsAre("--", title, as_of, "Address", "Lee, Ann", "    1 Oak St", "    York, PA  17401",
                  "Zed", "    9 Elm St",  //
                  "--", title + "  Page - 2", as_of, "Telephone", "Acme & Co", "    555-0102",
                  "Lee, Ann", "    555-0101", "Zed", "    555-0109",                        //
                  "--", title + "  Page - 3", as_of, "Mobile", "lee, Bob", "    555-0103",  //
                  "--", title + "  Page - 4", as_of, "Home Email", "Acme & Co",
                  "    acme@example.com",  //
                  "--", title + "  Page - 5", as_of, "Web Page", "Zed", "    www.zed.example"));
  form().print.close.Click();
  EXPECT_EQ(form().shown_option.caption(), "Fax");
}

TEST_F(DisplayPrintingTest, ALongSectionGoesOnUnderItsHeadAndCanBeCancelled) {
  for (int i = 2; i < 500; ++i) {
    AddEmployee(i, {{0, "Name" + std::to_string(1000 + i)}, {2, "Street"}, {7, "555"}});
  }
  Open("FDisplay1");
  form().complete_report.Click();
  const auto& document = *form().print.preview.document();
  for (const forms::Page& page : document.pages) {
    for (const forms::Mark& mark : page) {
      if (const auto* text = std::get_if<forms::PlacedText>(&mark)) {
        EXPECT_LE(text->y, 15840 - 240) << text->text;
      }
    }
  }
  EXPECT_EQ(testing::TextsOf(document.pages[1])[2], "Address (Continued) ");
  EXPECT_EQ(testing::TextsOf(document.pages[1])[0], "Complete Employee Data Report  Page - 2");
  form().print.close.Click();
  rig.clock.seconds_a_look = 1;
  rig.loop.on_yield = [&] { form().print.cancel.Click(); };
  form().complete_report.Click();
  EXPECT_FALSE(form().print.is_open());
  EXPECT_TRUE(form().grid.Reachable());
  form().print_options.Click();
  EXPECT_FALSE(form().print.is_open());
}

}  // namespace
}  // namespace tarnwell::record_book
