// Every setting that has a record, held against the table of its file's page in docs/formats/.

#include <gmock/gmock.h>

#include <fstream>
#include <functional>
#include <map>
#include <set>

#include "settings/display_settings.h"
#include "settings/grid_backgrounds.h"
#include "settings/modem_port.h"
#include "settings/panel_colors.h"
#include "settings/picture_settings.h"
#include "settings/planner_settings.h"
#include "settings/print_settings.h"
#include "settings/vehicle_settings.h"
#include "storage/record_file.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::settings {
namespace {

using storage::ProgramFolder;
using storage::TaggedValue;
using tarnwell::testing::FileOf;
using tarnwell::testing::ReadFormatExample;
using tarnwell::testing::TemporaryFolder;
using ::testing::ContainerEq;
using ::testing::IsEmpty;

struct SettingsFile {
  const char* name;
  const char* page;
  int record_length;
};

constexpr SettingsFile kGColor1{"GColor1.Fil", "gcolor1.md", 20};
constexpr SettingsFile kGColor2{"GColor2.Fil", "gcolor2.md", 20};
constexpr SettingsFile kGColor3{"GColor3.Fil", "gcolor3.md", 20};
constexpr SettingsFile kGColor4{"GColor4.Fil", "gcolor4.md", 40};
constexpr SettingsFile kHinv3{"HINV3.Fil", "hinv3.md", 10};
constexpr SettingsFile kGhinv1{"GHINV1.Fil", "ghinv1.md", 10};
constexpr SettingsFile kFiles[] = {kGColor1, kGColor2, kGColor3, kGColor4, kHinv3, kGhinv1};

// One setting with a value: where it has to lie and in what bytes.
struct Setting {
  SettingsFile file;
  int record;
  const char* form;
  std::vector<std::string> records;  // the bytes of that record and of those behind it
  std::function<void(ProgramFolder&)> write;
  std::function<bool(ProgramFolder&)> holds;  // the value comes back
};

std::string Text(const std::string& text) {
  return std::string{static_cast<char>(text.size()), '\0'} + text;
}

template <typename Function, typename Read, typename Write>
Setting Color(const SettingsFile& file, int record, Function of, Read read, Write write) {
  const auto color = StoredColor::Number(record);  // another one in each record
  return {file,
          record,
          "text",
          {Text(std::to_string(record))},
          [=](ProgramFolder& folder) { EXPECT_TRUE(write(folder, of, color)); },
          [=](ProgramFolder& folder) { return read(folder, of) == color; }};
}

Setting Panel(const SettingsFile& file, int record, PanelColor of) {
  return Color(file, record, of, ReadPanelColor, WritePanelColor);
}
Setting Field(const SettingsFile& file, int record, FieldColor of) {
  return Color(file, record, of, ReadFieldColor, WriteFieldColor);
}
Setting Background(const SettingsFile& file, int record, GridBackground of) {
  auto setting = Color(file, record, of, ReadGridBackground, WriteGridBackground);
  if (HoldsForTheRun(of)) {
    setting.holds = [of](ProgramFolder& folder) { return ReadGridBackground(folder, of).empty(); };
  }
  return setting;
}
Setting Guides(int record, GuideLines of) {
  return {kGColor3,
          record,
          "text",
          {Text("1")},
          [of](ProgramFolder& folder) { EXPECT_TRUE(WriteGuideLines(folder, of, 1)); },
          [of](ProgramFolder& folder) { return ReadGuideLines(folder, of) == 1; }};
}
Setting Sort(int record, SortTime of) {
  return {kGColor3,
          record,
          "text",
          {Text("1")},
          [of](ProgramFolder& folder) { EXPECT_TRUE(WriteSortTime(folder, 1, of)); },
          [of](ProgramFolder& folder) { return ReadSortTime(folder, of) == 1; }};
}
Setting PrintedIn(int record, PrinterFont of) {
  const StoredFont font{"Font " + std::to_string(record), 0.5 + record};
  return {kGColor4,
          record,
          "tagged",
          {storage::PackTagged(font.name), storage::PackTagged(static_cast<float>(font.size))},
          [=](ProgramFolder& folder) { EXPECT_TRUE(WritePrinterFont(folder, of, font)); },
          [=](ProgramFolder& folder) { return ReadPrinterFont(folder, of) == font; }};
}
Setting Toolbar(const SettingsFile& file, int record, ImageToolbar of) {
  return {file,
          record,
          "tagged integer",
          {std::string("\x02\0\0\0", 4)},
          [of](ProgramFolder& folder) { EXPECT_TRUE(WriteImageToolbarShown(folder, of, false)); },
          [of](ProgramFolder& folder) { return !ReadImageToolbarShown(folder, of); }};
}

const std::vector<Setting>& Settings() {
  static const std::vector<Setting> settings = {
      Panel(kGColor1, 10, PanelColor::kPlanner),
      Panel(kGColor1, 11, PanelColor::kCalendarSheet),
      Panel(kGColor1, 12, PanelColor::kContacts),
      Panel(kGColor1, 13, PanelColor::kBudget),
      Background(kGColor1, 14, GridBackground::kBudget),
      Field(kGColor1, 15, FieldColor::kBudget),
      Panel(kGColor1, 16, PanelColor::kContactDisplay),
      Panel(kGColor1, 17, PanelColor::kEmployees),
      Panel(kGColor1, 18, PanelColor::kEmployeeDisplay),
      Panel(kGColor1, 22, PanelColor::kSickLeave),
      {kGColor1,
       25,
       "text",
       {Text("3")},
       [](ProgramFolder& folder) { EXPECT_TRUE(WriteModemPort(folder, 3)); },
       [](ProgramFolder& folder) { return ReadModemPort(folder) == 3; }},
      {kGColor1,
       26,
       "text",
       {Text("OFF")},
       [](ProgramFolder& folder) { EXPECT_TRUE(WriteDateCheckerOn(folder, false)); },
       [](ProgramFolder& folder) { return !ReadDateCheckerOn(folder); }},
      Panel(kGColor1, 27, PanelColor::kVacation),
      Panel(kGColor1, 32, PanelColor::kVehicles),
      Background(kGColor1, 42, GridBackground::kWorkArea),
      Toolbar(kGColor1, 55, ImageToolbar::kTop),

      Panel(kGColor2, 40, PanelColor::kPicturePages),
      Field(kGColor2, 41, FieldColor::kPicturePages),
      Field(kGColor2, 42, FieldColor::kPicturePagesText),

      Panel(kGColor3, 2, PanelColor::kWorkArea),
      {kGColor3,
       4,
       "tagged number",
       {std::string("\x03\0\0\0\x80\0", 6)},
       [](ProgramFolder& folder) { EXPECT_TRUE(WriteTextColor(folder, 0x800000)); },
       [](ProgramFolder& folder) {
         return ReadTextColor(folder) == StoredColor::Number(0x800000);
       }},
      Guides(11, GuideLines::kMainScreens),
      Guides(12, GuideLines::kYearSheets),
      Guides(14, GuideLines::kVehicles),
      Guides(16, GuideLines::kDisplays),
      Panel(kGColor3, 17, PanelColor::kDocumentImages),
      Field(kGColor3, 19, FieldColor::kDocumentImages),
      Background(kGColor3, 25, GridBackground::kDisplayGrids),
      {kGColor3,
       35,
       "text",
       {Text("Yes")},
       [](ProgramFolder& folder) { WriteSmallerScreen(folder, true); },
       [](ProgramFolder& folder) { return ReadDisplay(folder).smaller_screen; }},
      {kGColor3,
       36,
       "tagged number",
       {storage::PackTagged(11200.5f), storage::PackTagged(15100.5f)},
       [](ProgramFolder& folder) { WriteWindowSize(folder, 11200.5f, 15100.5f); },
       [](ProgramFolder& folder) {
         const Display display = ReadDisplay(folder);
         return display.height == 11200.5 && display.width == 15100.5;
       }},
      {kGColor3,
       40,
       "text",
       {Text("1")},
       [](ProgramFolder& folder) {
         EXPECT_TRUE(WriteDistanceUnit(folder, DistanceUnit::kKilometers));
       },
       [](ProgramFolder& folder) { return ReadDistanceUnit(folder) == DistanceUnit::kKilometers; }},
      Guides(56, GuideLines::kCalendarSheet),
      Sort(57, SortTime::kCalendarSheet),
      Sort(58, SortTime::kPlanner),
      Guides(59, GuideLines::kPlannerMonth),

      PrintedIn(18, PrinterFont::kVehicles),
      PrintedIn(20, PrinterFont::kYearSheets),
      PrintedIn(22, PrinterFont::kPlannerDay),
      PrintedIn(24, PrinterFont::kPlannerMonth),
      PrintedIn(28, PrinterFont::kEmployeeDisplay),

      {kHinv3,
       3,
       "tagged value",
       {std::string("\x03\0\x01\x02\x03\0", 6)},
       [](ProgramFolder& folder) { WriteStartBackground(folder, std::int32_t{0x030201}); },
       [](ProgramFolder& folder) {
         return storage::NumberOf(ReadStartBackground(folder)) == 0x030201;
       }},
      Toolbar(kGhinv1, 10, ImageToolbar::kSide),
  };
  return settings;
}

using Records = std::map<int, std::string>;  // each with its form

// The records of a page's table, those that a setting reads or those that none does.
Records RecordsOfPage(const SettingsFile& settings_file, bool read) {
  std::ifstream file(std::string(TARNWELL_SOURCE_DIR "/docs/formats/") + settings_file.page);
  Records records;
  for (std::string line; std::getline(file, line);) {
    std::istringstream cells(line);
    std::string empty, numbers, form;
    if (line.size() < 3 || line[0] != '|' || !isdigit(line[2])) continue;
    if ((line.find("that nothing reads") == line.npos) != read) continue;
    std::getline(std::getline(std::getline(cells, empty, '|'), numbers, '|'), form, '|');
    std::istringstream words(numbers);
    int last = 0;
    for (std::string word; words >> word;) {
      if (word == "to") {
        words >> word;
        for (int number = last + 1; number < std::stoi(word); ++number) records[number] = form;
      }
      last = std::stoi(word);
      records[last] = form;
    }
  }
  for (auto& [record, cell] : records) cell = cell.substr(1, cell.size() - 2);
  return records;
}

std::string WithoutZeros(std::string bytes) {
  bytes.resize(bytes.find_last_not_of('\0') + 1);
  return bytes;
}

// The bytes of the records that hold something, without the zero bytes at their ends.
Records RecordsOnDisk(const TemporaryFolder& disk, const SettingsFile& file) {
  Records records;
  const std::string content = disk.Read(file.name);
  const auto length = static_cast<std::size_t>(file.record_length);
  for (std::size_t start = 0; start < content.size(); start += length) {
    const std::string bytes = WithoutZeros(content.substr(start, length));
    if (!bytes.empty()) records[static_cast<int>(start / length) + 1] = bytes;
  }
  return records;
}

TEST(SettingsRecords, EachSettingLiesInItsRecordsAndNowhereElse) {
  std::map<std::string, Records> named;
  for (const Setting& setting : Settings()) {
    SCOPED_TRACE(setting.file.name + std::string(" record ") + std::to_string(setting.record));
    TemporaryFolder disk;
    ProgramFolder folder(storage::RealFileSystem(), disk.path());
    setting.write(folder);
    EXPECT_TRUE(setting.holds(folder));
    Records expected;
    for (std::size_t i = 0; i < setting.records.size(); ++i) {
      const int record = setting.record + static_cast<int>(i);
      expected[record] = WithoutZeros(setting.records[i]);
      EXPECT_TRUE(named[setting.file.name].emplace(record, setting.form).second) << "two owners";
    }
    EXPECT_THAT(RecordsOnDisk(disk, setting.file), ContainerEq(expected));
    for (const SettingsFile& file : kFiles) {
      if (file.page != setting.file.page) {
        EXPECT_EQ(disk.Read(file.name), "") << file.name;
      }
    }
  }
  for (const SettingsFile& file : kFiles) {
    EXPECT_THAT(named[file.name], ContainerEq(RecordsOfPage(file, true))) << file.page;
  }
}

TEST(SettingsRecords, AllOfThemHoldBesideEachOther) {
  TemporaryFolder disk;
  ProgramFolder folder(storage::RealFileSystem(), disk.path());
  for (const Setting& setting : Settings()) setting.write(folder);
  for (const Setting& setting : Settings()) {
    EXPECT_TRUE(setting.holds(folder)) << setting.file.name << " record " << setting.record;
  }
}

TEST(SettingsRecords, ARefusedWriteIsNoSuccess) {
  TemporaryFolder disk;
  ProgramFolder folder(storage::RealFileSystem(), disk.path() + "/gone");
  EXPECT_FALSE(WritePanelColor(folder, PanelColor::kBudget, {}));
  EXPECT_FALSE(WriteFieldColor(folder, FieldColor::kBudget, {}));
  EXPECT_FALSE(WriteGridBackground(folder, GridBackground::kBudget, {}));
  EXPECT_FALSE(WritePanelColorForAll(folder, {}, {}));
  EXPECT_FALSE(WriteTextColor(folder, 0));
  EXPECT_FALSE(WriteGuideLines(folder, GuideLines::kVehicles, 1));
  EXPECT_FALSE(WritePrinterFont(folder, PrinterFont::kVehicles, {"Arial", 12}));
  EXPECT_FALSE(WriteSortTime(folder, 1));
  EXPECT_FALSE(WriteModemPort(folder, 1));
  EXPECT_FALSE(WriteDistanceUnit(folder, DistanceUnit::kMiles));
  EXPECT_FALSE(WriteDateCheckerOn(folder, true));
  EXPECT_FALSE(WriteImageToolbarShown(folder, ImageToolbar::kTop, true));
  EXPECT_FALSE(WritePictureFolder(folder, PictureFolder::kPeople, "/home"));
}

TEST(SettingsRecords, OneColourForAllReachesEveryPanelOfAFunctionAndWhatNothingReads) {
  TemporaryFolder disk;
  ProgramFolder folder(storage::RealFileSystem(), disk.path());
  int yields = 0;
  EXPECT_TRUE(WritePanelColorForAll(folder, StoredColor::Default(), [&] { ++yields; }));
  EXPECT_EQ(yields, 2);
  const std::pair<SettingsFile, std::vector<int>> panels[] = {
      {kGColor1, {10, 11, 12, 13, 16, 17, 18, 22, 27, 32}}, {kGColor2, {40}}, {kGColor3, {17}}};
  for (const auto& [file, records] : panels) {
    Records expected = RecordsOfPage(file, false);
    EXPECT_FALSE(expected.empty());
    for (int record : records) expected[record] = {};
    for (auto& [record, bytes] : expected) bytes = Text("Default");
    EXPECT_THAT(RecordsOnDisk(disk, file), ContainerEq(expected)) << file.name;
  }
}

TEST(SettingsRecords, TheExamplesOfThePagesAreWrittenByteForByte) {
  TemporaryFolder disk;
  ProgramFolder folder(storage::RealFileSystem(), disk.path());
  WritePanelColor(folder, PanelColor::kPlanner, StoredColor::Default());
  WritePanelColor(folder, PanelColor::kBudget, StoredColor::Number(0xFFFFCC));
  WriteGridBackground(folder, GridBackground::kBudget, StoredColor::Wallpaper(3));
  WriteModemPort(folder, 3);
  WriteDateCheckerOn(folder, false);
  WriteImageToolbarShown(folder, ImageToolbar::kTop, true);
  WritePanelColor(folder, PanelColor::kPicturePages, StoredColor::Default());
  WriteFieldColor(folder, FieldColor::kPicturePages, StoredColor::Number(0xFFFFFF));
  WriteGridBackground(folder, GridBackground::kDisplayGrids, StoredColor::Number(0xC0C0C0));
  WriteSmallerScreen(folder, true);
  WriteWindowSize(folder, 11200, 15100);
  WriteSortTime(folder, 1);
  WritePrinterFont(folder, PrinterFont::kPlannerDay, {"Arial", 12});
  WriteStartBackground(folder, std::int32_t{16711680});
  WriteImageToolbarShown(folder, ImageToolbar::kSide, false);
  for (const SettingsFile& file : kFiles) {
    EXPECT_EQ(disk.Read(file.name), FileOf(ReadFormatExample(file.page))) << file.page;
  }
  for (const auto& [of, name] : {std::pair{PictureFolder::kPeople, "Gcolor17.Fil"},
                                 {PictureFolder::kVehicles, "GColor14.Fil"},
                                 {PictureFolder::kDocumentImages, "GColor44.Fil"}}) {
    EXPECT_EQ(ReadPictureFolder(folder, of), "");
    WritePictureFolder(folder, of, "/home/ann/Pics");
    EXPECT_EQ(disk.Read(name), FileOf(ReadFormatExample("picture-folders.md"))) << name;
    EXPECT_EQ(ReadPictureFolder(folder, of), "/home/ann/Pics");
  }
  disk.Write("GColor5.Fil", FileOf(ReadFormatExample("gcolor5.md")));
  EXPECT_EQ(ReadImageBackground(folder), StoredColor::Wallpaper(4));
}

}  // namespace
}  // namespace tarnwell::settings
