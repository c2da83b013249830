#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "record_book/entry_screen.h"
#include "support/fixed_metrics.h"
#include "support/program_rig.h"

namespace tarnwell::record_book {
namespace {

using ::testing::ElementsAre;
using ::testing::ElementsAreArray;

class InformationSheetTest : public ::testing::Test {
 protected:
  EntryScreen& Open(const char* form) {
    rig.Start();
    rig.navigator().Show(form);
    return dynamic_cast<EntryScreen&>(*rig.navigator().top());
  }
  // Saves and shows what was filled in, and prints it.
  forms::Document Print(EntryScreen& form) {
    form.save.Click();
    form.mode.Click();
    form.names.Open(0);
    form.large.Check(true);
    form.print_file.Click();
    return Printed(form);
  }
  forms::Document Printed(EntryScreen& form) {
    form.print.print.Click();
    return rig.pages.printed.back();
  }
  static std::vector<std::string> Texts(const forms::Document& document) {
    return testing::TextsOf(document.pages.at(0));
  }

  testing::ProgramRig rig;
};

constexpr const char* kPrinted = "Printed:  March 9, 2026";

TEST_F(InformationSheetTest, AContactsSheetGoesFromItsAddressToTheSecondLineOfTheSecond) {
  EntryScreen& form = Open("ADDBKVIEW1");
  for (std::size_t i = 0; i < form.fields.size(); ++i) form.fields[i]->Type(std::to_string(i));
  form.fields[5]->Type("");
  EXPECT_THAT(Texts(Print(form)),
              ElementsAre(kPrinted, "Information Sheet For 0", "Address:  2", "Address:  3",
                          "City:  4", "Zip:  6", "Phone:  7", "Mobile:  8", "Fax:  9", "Home:  10",
                          "Business:  11", "Web Page:  12", "Contact Name:  13", "Job Title:  14",
                          "Address:  15", "City:  16"));
}

TEST_F(InformationSheetTest, AnEmployeesSheetHasTheLinesOfTheCommentsAndAPictureAboveThem) {
  const auto png = std::make_shared<const std::string>("png");
  EntryScreen& form = Open("FView");
  form.fields[0]->Type("Lee");
  form.fields[1]->Type("Ann");
  form.fields[7]->Type("555");
  form.comments->Type("One\r\nTwo");
  rig.pictures.at["/home/ann/ann.jpg"] = {png, storage::Fault::kNone, 40, 20};
  rig.folders.readable["/home/ann/"].files = {"ann.jpg"};
  form.link.Click();
  form.pictures.chooser.Open("/home/ann/", "ann.jpg");
  form.pictures.chooser.files.Pick(0);
  form.pictures.enter.Click();
  const forms::Document document = Print(form);
  EXPECT_THAT(Texts(document), ElementsAre(kPrinted, "Information Sheet For Lee Ann",
                                           "Telephone:  555", "Comments:  One", "Two"));
  EXPECT_THAT(document.pages.at(0),
              ::testing::Contains(forms::Mark(forms::PlacedImage{1440, 1440, 4320, 2160, png})));
  for (const forms::Mark& mark : document.pages.at(0)) {
    const auto* text = std::get_if<forms::PlacedText>(&mark);
    const bool is_row = text && text->text.starts_with("Telephone");
    EXPECT_TRUE(!is_row || text->y > 4 * 1440);
  }
}

TEST_F(InformationSheetTest, AWorksheetHasTheCaptionsBelowTheirHeadsOnOnePage) {
  EntryScreen& contacts = Open("ADDBKVIEW1");
  rig.ClickMenu("mOW");
  EXPECT_EQ(contacts.status(), "Print Worksheet");
  EXPECT_EQ(rig.pages.printed.size(), 0u);
  const forms::Document sheet = Printed(contacts);
  EXPECT_EQ(sheet.pages.size(), 1u);
  const char* const kContacts[] = {kPrinted,
                                   "Business Contacts Data Worksheet",
                                   "Company Information",
                                   "Business Name:",
                                   "Address:",
                                   "City:",
                                   "State:",
                                   "Zip:",
                                   "Phone:",
                                   "Mobile:",
                                   "Fax:",
                                   "Home:",
                                   "Business:",
                                   "Contact Individual Information",
                                   "Web Page:",
                                   "Contact Name:",
                                   "Job Title:",
                                   "Address:",
                                   "City:",
                                   "State:",
                                   "Zip:",
                                   "Business Phone:",
                                   "Mobile:",
                                   "Business Fax:",
                                   "Comments:"};
  EXPECT_THAT(Texts(sheet), ElementsAreArray(kContacts));
  EntryScreen& employees = Open("FView");
  rig.ClickMenu("mOW");
  const std::vector<std::string> texts = Texts(Printed(employees));
  EXPECT_THAT(std::vector(texts.begin() + 8, texts.end()),
              ElementsAre("Zip Code:", "Telephone:", "Special Dates/Email Address", "Birthdate:",
                          "Anniversary:", "Email:", "Employee Employment Information and Data",
                          "Company Position:", "Job Title:", "Date of Hiring:", "Date Ended:",
                          "Other:", "Comments:"));
}

}  // namespace
}  // namespace tarnwell::record_book
