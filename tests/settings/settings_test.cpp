// What the settings make of what else may stand in their records.

#include <gmock/gmock.h>

#include "settings/grid_backgrounds.h"
#include "settings/modem_port.h"
#include "settings/picture_settings.h"
#include "settings/print_settings.h"
#include "settings/stored_color.h"
#include "storage/record_file.h"
#include "support/temporary_folder.h"

namespace tarnwell::settings {
namespace {

class SettingsTest : public ::testing::Test {
 protected:
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

TEST_F(SettingsTest, ThePlannersBackgroundHasNoRecord) {
  EXPECT_TRUE(WriteGridBackground(folder, GridBackground::kPlanner, StoredColor::Wallpaper(9)));
  EXPECT_EQ(disk.Read("GColor1.Fil") + disk.Read("GColor3.Fil"), "");
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

TEST_F(SettingsTest, AToolbarIsHiddenByAZeroAndByNothingElse) {
  const struct {
    storage::TaggedValue stored;
    bool shown;
  } cases[] = {{{}, true},
               {std::int16_t{99}, true},
               {std::int16_t{88}, true},
               {std::int16_t{1}, true},
               {std::int16_t{0}, false}};
  for (const auto& c : cases) {
    storage::RecordFile(folder, "GColor1.Fil", 20).PutTagged(55, c.stored);
    EXPECT_EQ(ReadImageToolbarShown(folder, ImageToolbar::kTop), c.shown);
  }
  WriteImageToolbarShown(folder, ImageToolbar::kSide, true);
  EXPECT_EQ(storage::RecordFile(folder, "GHINV1.Fil", 10).GetTagged(10),
            storage::TaggedValue(std::int16_t{88}));
  WriteImageToolbarShown(folder, ImageToolbar::kSide, std::nullopt);
  EXPECT_TRUE(storage::IsEmpty(storage::RecordFile(folder, "GHINV1.Fil", 10).GetTagged(10)));
}

TEST_F(SettingsTest, OnlyAWallpaperIsABackgroundOfDocumentImages) {
  for (const char* supplied : {"", "\"16777215\"\r\n", "\"WP17\"\r\n", "\"Default\"\r\n"}) {
    disk.Write("GColor5.Fil", supplied);
    EXPECT_TRUE(ReadImageBackground(folder).empty()) << supplied;
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

}  // namespace
}  // namespace tarnwell::settings
