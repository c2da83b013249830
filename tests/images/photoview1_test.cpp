#include "images/photoview1.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "images/image_book.h"
#include "images/image_pages.h"
#include "record_book/record_store.h"
#include "support/fixed_metrics.h"
#include "support/format_page.h"
#include "support/program_rig.h"

namespace tarnwell::images {
namespace {

using ::testing::ElementsAre;

class PhotoVIEW1Test : public ::testing::Test {
 protected:
  void SetUp() override {
    rig.Start();
    rig.navigator().Show("PhotoVIEW1");
    rig.pictures.at["/home/ann/a.jpg"] = {png, storage::Fault::kNone, 400, 200};
    rig.folders.readable["/home/ann/"].files = {"a.jpg"};
  }
  PhotoVIEW1& form() { return dynamic_cast<PhotoVIEW1&>(*rig.navigator().top()); }
  void Add(const char* title, const char* date, bool with_picture) {
    form().fields[0]->Type(title);
    form().fields[1]->Type(date);
    if (with_picture) {
      form().link.Click();
      form().pictures.chooser.Open("/home/ann/");
      form().pictures.chooser.files.Pick(0);
      form().pictures.enter.Click();
    }
    form().save.Click();
  }
  void View(const char* title) {
    form().search.Type(title);
    form().search.PressEnter();
  }
  forms::Document Printed() {
    form().print.print.Click();
    return rig.pages.printed.back();
  }
  static std::vector<forms::PlacedPicture> ImagesOf(const forms::Page& page) {
    std::vector<forms::PlacedPicture> images;
    for (const forms::Mark& mark : page) {
      if (const auto* image = std::get_if<forms::PlacedPicture>(&mark)) images.push_back(*image);
    }
    return images;
  }

  const std::shared_ptr<const std::string> png = std::make_shared<const std::string>("png");
  testing::ProgramRig rig;
};

TEST_F(PhotoVIEW1Test, AnEntryLiesOnTheDiskAsItsPageSays) {
  Add("License", "2026", false);
  const testing::FormatExample example = testing::ReadFormatExample("images.md");
  std::string file = std::string(300, '\0') + std::string(300, ' ');
  for (const auto& [offset, bytes] : example.runs) file.replace(offset, bytes.size(), bytes);
  ASSERT_EQ(example.size, file.size());
  EXPECT_EQ(rig.temporary.Read("Photobk3.Fil"), file);
  EXPECT_EQ(rig.temporary.Read("Photobk4.Fil").substr(62), "License" + std::string(35, ' ') + "2");
}

TEST_F(PhotoVIEW1Test, AnEntryIsChangedOnlyBehindItsCommand) {
  Add("License", "2026", true);
  form().mode.Click();
  EXPECT_EQ(form().caption(),
            "Company Data - Company Agreements/Docs - Document Image View Screen");
  View("lic");
  EXPECT_EQ(form().picture.content(), png);
  rig.dialogs.ExpectNote("Make Modifications",
                         "Please click Make Modifications Button to modify data!");
  form().fields[0]->Click();
  form().fields[0]->Type("x");
  EXPECT_EQ(form().fields[0]->text(), "License");
  form().change.Click();
  form().fields[0]->Type("");
  rig.dialogs.ExpectNote("Save", "A photo name must be entered to save file!");
  form().save.Click();
  form().link.Click();
  form().pictures.remove.Click();
  EXPECT_EQ(form().picture_note.caption(), "No Picture Currently Loaded");
  form().fields[0]->Type("Permit");
  form().save.Click();
  EXPECT_EQ(record_book::ReadRecord(rig.folder, ImageBook(), 2)->picture, "**");
  View("permit");
  EXPECT_EQ(form().picture_note.caption(), "No Picture Currently Loaded");
}

TEST_F(PhotoVIEW1Test, TheSuppliedWallpaperLiesBehindTheScreen) {
  EXPECT_EQ(form().wallpaper(), "");
  rig.temporary.Write("GColor5.Fil", "\"WP4\"\r\n");
  rig.navigator().Close(form(), forms::UnloadCause::kCommand);
  rig.navigator().Show("PhotoVIEW1");
  EXPECT_EQ(form().wallpaper(), "WP4.jpg");
}

TEST_F(PhotoVIEW1Test, AFileIsDroppedOnTheFrameOrTheScreenSaysWhyNot) {
  const std::string too_long = "/" + std::string(200, 'a');
  rig.pictures.at[too_long] = rig.pictures.at["/home/ann/a.jpg"];
  for (const auto& [path, why] :
       {std::pair<std::string, const char*>{
            "",
            "This picture's path has letters that the program's files don't know and can't be "
            "kept."},
        {"/home/ann/a.txt", "Program is unable to load this file as a Picture File!!!"},
        {too_long,
         "This picture's path is too long to be kept: 201 characters, where there is room for "
         "200."}}) {
    rig.dialogs.ExpectWarning("Select Photo", why);
    form().picture.Drop(path);
    EXPECT_FALSE(form().unsaved());
  }
  form().fields[0]->Type("License");
  form().picture.Drop("/home/ann/a.jpg");
  EXPECT_EQ(form().picture.content(), png);
  form().save.Click();
  EXPECT_EQ(record_book::ReadRecord(rig.folder, ImageBook(), 2)->picture, "/home/ann/a.jpg");
  form().mode.Click();
  rig.dialogs.ExpectWarning("Select Photo",
                            "Choose a name first: the picture becomes that entry's.");
  form().picture.Drop("/home/ann/a.jpg");
}

TEST_F(PhotoVIEW1Test, TheUsualKindsOfPicturesAreListedUntilAllAreAskedFor) {
  rig.folders.readable["/home/ann/"].files = {"a.jpg", "b.PNG", "c.txt"};
  rig.folders.left_out = 2;
  form().fields[0]->Type("License");
  form().link.Click();
  parts::PicturePanel& panel = form().pictures;
  panel.chooser.Open("/home/ann/");
  EXPECT_THAT(panel.chooser.files.items(), ElementsAre("a.jpg"));
  EXPECT_EQ(panel.note.caption(),
            "Not listed, because their names have letters that the program's files don't know: 2 "
            "files.");
  panel.kinds.Pick(1);
  EXPECT_THAT(panel.chooser.files.items(), ElementsAre("a.jpg", "b.PNG"));
}

TEST_F(PhotoVIEW1Test, AScanIsSeenInFullSize) {
  EXPECT_FALSE(form().show_full.enabled());
  Add("License", "2026", true);
  form().mode.Click();
  View("License");
  form().picture.Open();
  EXPECT_TRUE(form().full.visible());
  EXPECT_FALSE(form().screen.Reachable());
  EXPECT_EQ(form().full_picture.path(), "/home/ann/a.jpg");
  EXPECT_FALSE(form().smaller.enabled());
  for (int i = 0; i < forms::PictureView::kMostSteps; ++i) form().larger.Click();
  EXPECT_FALSE(form().larger.enabled());
  EXPECT_TRUE(form().smaller.enabled());
  form().leave_full.Click();
  EXPECT_TRUE(form().show_full.focused());
  EXPECT_EQ(form().full_picture.path(), "");
}

TEST_F(PhotoVIEW1Test, APictureIsPrintedAsOftenAsChosenWithWhatIsTicked) {
  Add("License", "2026", true);
  form().mode.Click();
  View("License");
  form().print_file.Click();
  EXPECT_EQ(form().status(), "Print Options");
  form().print_title.Check(true);
  form().print_date.Check(true);
  form().copies.Pick(2);
  EXPECT_EQ(form().status(), "Print 4");
  const forms::Document four = Printed();
  ASSERT_EQ(four.pages.size(), 1u);
  EXPECT_THAT(testing::TextsOf(four.pages[0]), ElementsAre("License", "2026", "License", "2026",
                                                           "License", "2026", "License", "2026"));
  const std::vector<forms::PlacedPicture> images = ImagesOf(four.pages[0]);
  ASSERT_EQ(images.size(), 4u);
  // Letter between margins of 100 twips: 12040 by 15640. A cell is 0.475 and 0.425 of them.
  EXPECT_EQ(images[0], (forms::PlacedPicture{100 + 120, 100 + 156, 5719, 6647, "/home/ann/a.jpg"}));
  EXPECT_EQ(images[3],
            (forms::PlacedPicture{100 + 6140, 100 + 7976, 5719, 6647, "/home/ann/a.jpg"}));
}

TEST_F(PhotoVIEW1Test, SeveralAreLaidOutInTheirOrderOverThePages) {
  Add("A", "", true);
  Add("B", "", false);
  Add("C", "", true);
  form().mode.Click();
  rig.dialogs.ExpectNote(
      "Selecting Multiple Photos",
      "Due to the memory size of various video cards, etc. we would suggest you\n"
      "limit the total number photos selected!  If too many are selected at one\n"
      "time, the computer may slow down or even lock up!");
  form().choose_several.Click();
  for (const int place : {2, 1, 0, 0}) form().all.Open(place);
  form().chosen.Pick(3);
  form().take_away.Click();
  EXPECT_THAT(form().chosen.items(), ElementsAre("C", "B", "A"));
  form().print_several.Click();
  EXPECT_EQ(form().status(), "Print Multi");
  form().print_title.Check(true);
  form().copies.Pick(1);
  const forms::Document document = Printed();
  ASSERT_EQ(document.pages.size(), 2u);
  EXPECT_THAT(testing::TextsOf(document.pages[0]), ElementsAre("C", "B"));
  EXPECT_EQ(ImagesOf(document.pages[0]).size(), 1u);
  EXPECT_THAT(testing::TextsOf(document.pages[1]), ElementsAre("A"));
  form().print.close.Click();
  form().leave_several.Click();
  EXPECT_TRUE(form().names.Reachable());
}

TEST_F(PhotoVIEW1Test, ToolbarsStayHiddenAndTheTopOneLeadsToTheHubsAreas) {
  rig.Start();
  rig.navigator().Show("WorkArea1");
  rig.navigator().Show("PhotoVIEW1");
  form().hide_side.Click();
  EXPECT_EQ(rig.temporary.Read("GHINV1.Fil").substr(90), std::string("\x02\0\0\0", 4));
  EXPECT_TRUE(form().restore_side.visible());
  form().restore_side.Click();
  EXPECT_EQ(rig.temporary.Read("GHINV1.Fil").substr(90), std::string("\x02\0\x58\0", 4));
  form().hide_side.Click();
  EXPECT_TRUE(rig.navigator().Close(form(), forms::UnloadCause::kCommand));
  rig.navigator().Show("PhotoVIEW1");
  EXPECT_FALSE(form().side_toolbar.visible());
  const auto leave =
      std::ranges::find(form().areas, "Employee Vacation Tracker",
                        [](const auto& button) -> std::string_view { return button->caption(); });
  ASSERT_NE(leave, form().areas.end());
  (*leave)->Click();
  EXPECT_EQ(rig.top(), "Vacation1");
}

TEST_F(PhotoVIEW1Test, OnlyAColorThatThisScreenSavesIsOfferedToAll) {
  const auto leave = [this] {
    EXPECT_TRUE(rig.navigator().Close(form(), forms::UnloadCause::kCommand));
    rig.navigator().Show("PhotoVIEW1");
  };
  rig.program->variables().PanelColorNew = "255";  // another screen's
  leave();
  rig.dialogs.ExpectColorQuestion(forms::Answer::kYes);
  rig.dialogs.ExpectColor(0x112233);
  rig.ClickMenu("mOC");
  rig.dialogs.ExpectYesNo("Color Changes", "Save changes made to Panel and or Text Color?",
                          forms::Answer::kYes);
  rig.dialogs.Expect({"Complete Program Panel Color Update Option",
                      "Save Panel Color Changes for ALL of the Program Functions?",
                      forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2},
                     forms::Answer::kNo);
  leave();
}

TEST(ImageLayoutsTest, EveryCellLiesOnThePageBelowOrBesideTheOthers) {
  for (const bool lying : {false, true}) {
    for (const int images : {1, 2, 4, 8}) {
      const CellLayout& layout = LayoutOf(images, lying);
      EXPECT_EQ(layout.cells(), images);
      EXPECT_EQ(layout.text_centers.size(), layout.lefts.size());
      for (std::size_t i = 0; i < layout.lefts.size(); ++i) {
        const double end = i + 1 < layout.lefts.size() ? layout.lefts[i + 1] : 1.0;
        EXPECT_LE(layout.lefts[i] + layout.width, end) << images << lying;
        EXPECT_GT(layout.text_centers[i], layout.lefts[i]);
        EXPECT_LT(layout.text_centers[i], layout.lefts[i] + layout.width);
      }
      for (std::size_t i = 0; i < layout.tops.size(); ++i) {
        const double end = i + 1 < layout.tops.size() ? layout.tops[i + 1] : 1.0;
        EXPECT_LT(layout.tops[i] + layout.height, end) << images << lying;
      }
    }
  }
}

}  // namespace
}  // namespace tarnwell::images
