// The settings by their names, held to the bytes of the pages of docs/formats/.

#include <gmock/gmock.h>

#include <algorithm>

#include "settings/grid_backgrounds.h"
#include "settings/modem_port.h"
#include "settings/panel_colors.h"
#include "settings/picture_settings.h"
#include "settings/planner_settings.h"
#include "settings/print_settings.h"
#include "settings/stored_color.h"
#include "settings/vehicle_settings.h"
#include "storage/record_file.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::settings {
namespace {

using tarnwell::testing::FileOf;
using tarnwell::testing::ReadFormatExample;

class SettingsTest : public ::testing::Test {
 protected:
  std::string Text(const char* file, int record) {
    return storage::RecordFile(folder, file, 20).GetText(record);
  }
  tarnwell::testing::TemporaryFolder disk;
  storage::ProgramFolder folder{storage::RealFileSystem(), disk.path()};
};

TEST(StoredColorTest, ATextIsANumberTheDefaultAWallpaperOrNothing) {
  const struct {
    const char* text;
    StoredColor color;
    const char* written;
  } cases[] = {
      {"", {}, ""},
      {"0", StoredColor::Number(0), "0"},
      {" 16777215 ", StoredColor::Number(0xFFFFFF), "16777215"},
      {"16777216", {}, ""},
      {"-1", {}, ""},
      {"99999999999", {}, ""},
      {"12 apples", {}, ""},
      {"Default", StoredColor::Default(), "Default"},
      {"default", StoredColor::Default(), "Default"},
      {"WP1", StoredColor::Wallpaper(1), "WP1"},
      {"wp16", StoredColor::Wallpaper(16), "WP16"},
      {"WP17", {}, ""},
      {"WP", {}, ""},
      {"WP1.jpg", {}, ""},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(StoredColor::FromText(c.text), c.color) << c.text;
    EXPECT_EQ(c.color.Text(), c.written);
  }
}

TEST_F(SettingsTest, ColoursBackgroundsAndFontsLieWhereTheirPagesSay) {
  WritePanelColor(folder, PanelColor::kPlanner, StoredColor::Default());
  WritePanelColor(folder, PanelColor::kBudget, StoredColor::Number(0xFFFFCC));
  WriteGridBackground(folder, GridBackground::kBudget, StoredColor::Wallpaper(3));
  WriteModemPort(folder, 3);
  WriteDateCheckerOn(folder, false);
  EXPECT_EQ(disk.Read("GColor1.Fil"), FileOf(ReadFormatExample("gcolor1.md")));
  WritePanelColor(folder, PanelColor::kPicturePages, StoredColor::Default());
  WriteFieldColor(folder, FieldColor::kPicturePages, StoredColor::Number(0xFFFFFF));
  EXPECT_EQ(disk.Read("GColor2.Fil"), FileOf(ReadFormatExample("gcolor2.md")));
  WritePrinterFont(folder, PrinterFont::kPlannerDay, {"Arial", 12});
  EXPECT_EQ(disk.Read("GColor4.Fil"), FileOf(ReadFormatExample("gcolor4.md")));

  EXPECT_EQ(ReadPanelColor(folder, PanelColor::kBudget), StoredColor::Number(0xFFFFCC));
  EXPECT_EQ(ReadGridBackground(folder, GridBackground::kBudget), StoredColor::Wallpaper(3));
  EXPECT_FALSE(ReadDateCheckerOn(folder));
  EXPECT_EQ(ReadFieldColor(folder, FieldColor::kPicturePages), StoredColor::Number(0xFFFFFF));
  EXPECT_EQ(ReadPrinterFont(folder, PrinterFont::kPlannerDay), (StoredFont{"Arial", 12}));
  EXPECT_EQ(ReadPrinterFont(folder, PrinterFont::kPlannerMonth), StoredFont{});
}

TEST_F(SettingsTest, OneColourForAllReachesEveryTargetAndNothingElse) {
  constexpr int kTargets[] = {10,   11,   12,   13,   16,   17,   18,   22,   27,   32,
                              36,   38,   40,   49,   54,   56,   70,   80,   1005, 1009,
                              1012, 1016, 1019, 1020, 1022, 1025, 1040, 2008, 2017, 2091,
                              2092, 2100, 2101, 2102, 2103, 2104, 2105};
  int yields = 0;
  WritePanelColorForAll(folder, StoredColor::Default(), [&] { ++yields; });
  EXPECT_EQ(yields, 2);
  const char* files[] = {"GColor1.Fil", "GColor2.Fil", "GColor3.Fil"};
  for (int file = 0; file < 3; ++file) {
    for (int record = 1; record <= 110; ++record) {
      const bool target = std::ranges::count(kTargets, 1000 * file + record) == 1;
      EXPECT_EQ(Text(files[file], record), target ? "Default" : "") << files[file] << record;
    }
  }
}

TEST_F(SettingsTest, TheTextColourIsATaggedNumber) {
  EXPECT_TRUE(ReadTextColor(folder).empty());
  WriteTextColor(folder, 0x800000);
  EXPECT_EQ(disk.Read("GColor3.Fil").substr(3 * 20), std::string("\x03\0\0\0\x80\0", 6));
  EXPECT_EQ(ReadTextColor(folder), StoredColor::Number(0x800000));
}

TEST_F(SettingsTest, TheWorkAreasBackgroundIsWrittenOnly) {
  WriteGridBackground(folder, GridBackground::kWorkArea, StoredColor::Wallpaper(9));
  EXPECT_EQ(Text("GColor1.Fil", 42), "WP9");
  EXPECT_TRUE(ReadGridBackground(folder, GridBackground::kWorkArea).empty());
  const auto stored = disk.Read("GColor1.Fil");
  WriteGridBackground(folder, GridBackground::kPlanner, StoredColor::Wallpaper(9));
  EXPECT_EQ(disk.Read("GColor1.Fil"), stored);
}

TEST_F(SettingsTest, SettingsThatOnceSharedARecordHoldBesideEachOther) {
  WriteModemPort(folder, 255);
  WriteGridBackground(folder, GridBackground::kDisplayGrids, StoredColor::Wallpaper(7));
  WriteSortTime(folder, 0);
  WriteGuideLines(folder, GuideLines::kPlannerMonth, 1);
  WriteSortTime(folder, 1, SortTime::kCalendarSheet);
  EXPECT_EQ(ReadModemPort(folder), 255);
  EXPECT_EQ(ReadGridBackground(folder, GridBackground::kDisplayGrids), StoredColor::Wallpaper(7));
  EXPECT_EQ(ReadSortTime(folder), 0);
  EXPECT_EQ(ReadGuideLines(folder, GuideLines::kPlannerMonth), 1);
  EXPECT_EQ(ReadSortTime(folder, SortTime::kCalendarSheet), 1);
  EXPECT_EQ(Text("GColor3.Fil", 25), "WP7");
  EXPECT_EQ(Text("GColor3.Fil", 57), "1");
}

TEST_F(SettingsTest, WhatIsNoPortInTheModemsRecordIsPortOne) {
  const std::pair<const char*, int> stored[] = {
      {"", 1},  {"3", 3},        {" 12 x", 12}, {"255", 255},   {"256", 1},
      {"0", 1}, {"12632256", 1}, {"WP3", 1},    {"Default", 1}, {"-4", 1},
  };
  for (const auto& [text, port] : stored) {
    storage::RecordFile(folder, "GColor1.Fil", 20).PutText(25, text);
    EXPECT_EQ(ReadModemPort(folder), port) << text;
    EXPECT_TRUE(ReadGridBackground(folder, GridBackground::kDisplayGrids).empty()) << text;
  }
}

TEST_F(SettingsTest, GuideLinesAreAZeroOrAOne) {
  const std::pair<GuideLines, int> records[] = {
      {GuideLines::kMainScreens, 11},   {GuideLines::kYearSheets, 12},
      {GuideLines::kVehicles, 14},      {GuideLines::kDisplays, 16},
      {GuideLines::kCalendarSheet, 56}, {GuideLines::kPlannerMonth, 59},
  };
  for (const auto& [screens, record] : records) {
    EXPECT_EQ(ReadGuideLines(folder, screens), 0);
    WriteGuideLines(folder, screens, 1);
    EXPECT_EQ(Text("GColor3.Fil", record), "1");
    EXPECT_EQ(ReadGuideLines(folder, screens), 1);
  }
}

TEST_F(SettingsTest, AFontsSizeIsReadFromANumberOfAnyKind) {
  for (const storage::TaggedValue& size :
       {storage::TaggedValue(std::int16_t{9}), storage::TaggedValue(9.0f),
        storage::TaggedValue(std::string("9"))}) {
    storage::RecordFile(folder, "GColor4.Fil", 40).PutTagged(19, size);
    EXPECT_EQ(ReadPrinterFont(folder, PrinterFont::kVehicles).size, 9);
  }
  WritePrinterFont(folder, PrinterFont::kVehicles, {std::string(37, 'n'), 12});
  EXPECT_EQ(ReadPrinterFont(folder, PrinterFont::kVehicles), (StoredFont{"", 9}));
}

TEST_F(SettingsTest, SmallSettingsComeBack) {
  EXPECT_EQ(ReadPictureFolder(folder, PictureFolder::kPeople), "");
  WritePictureFolder(folder, PictureFolder::kPeople, "c:\\Pictures");
  EXPECT_EQ(disk.Read("Gcolor17.Fil"), "\"c:\\Pictures\"\r\n");
  EXPECT_EQ(ReadPictureFolder(folder, PictureFolder::kPeople), "c:\\Pictures");
  EXPECT_EQ(ReadDistanceUnit(folder), DistanceUnit::kMiles);
  WriteDistanceUnit(folder, DistanceUnit::kKilometers);
  EXPECT_EQ(Text("GColor3.Fil", 40), "1");
  EXPECT_EQ(ReadDistanceUnit(folder), DistanceUnit::kKilometers);
  WriteImageToolbar(folder, ImageToolbar::kSide, std::int16_t{1});
  EXPECT_EQ(ReadImageToolbar(folder, ImageToolbar::kSide), storage::TaggedValue(std::int16_t{1}));
  EXPECT_TRUE(storage::IsEmpty(ReadImageToolbar(folder, ImageToolbar::kTop)));
}

}  // namespace
}  // namespace tarnwell::settings
