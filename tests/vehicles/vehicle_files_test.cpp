#include "vehicles/vehicle_files.h"

#include <gmock/gmock.h>

#include "storage/file_system.h"
#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"
#include "vehicles/date_turning.h"
#include "vehicles/vehicle_sheet.h"
#include "vehicles/vehicle_slots.h"

namespace tarnwell::vehicles {
namespace {

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::IsEmpty;
using ::testing::StartsWith;

std::string Example(const std::string& page) {
  return testing::FileOf(testing::ReadFormatExample(page));
}

std::string Lines(const std::vector<std::string>& values) {
  std::string lines;
  for (const std::string& value : values) lines += "\"" + value + "\"\r\n";
  return lines;
}

std::vector<std::string> Filled(std::size_t count, const std::string& value) {
  return std::vector<std::string>(count, value);
}

// Of the older layout: 22 fields, 9 rows of nine values, the style and the picture.
std::vector<std::string> OlderValues() {
  std::vector<std::string> values{"1998", "Geo", "Metro", "40,000"};
  values.resize(22, "");
  for (int row = 0; row < 9; ++row) {
    for (const char* cell : {"3000", "3", "39,000", "03/05/2024", "a", "b", "c", "d", "19.5"}) {
      values.push_back(cell);
    }
  }
  values.insert(values.end(), {"", "/home/ann/metro.jpg"});
  return values;
}

class VehicleFilesTest : public ::testing::Test {
 protected:
  std::string Name(std::size_t vehicle) { return ReadVehicles(folder_).vehicles.at(vehicle).name; }

  testing::TemporaryFolder disk_;
  testing::FailingFileSystem files_{storage::RealFileSystem()};
  storage::ProgramFolder folder_{files_, disk_.path()};
};

TEST(DateTurningTest, DayAndMonthChangePlacesWhereBothCouldBeMonths) {
  const struct {
    const char* stored;
    const char* turned;
  } cases[] = {{"13/05/2024", "13/05/2024"},
               {"03/05/2024", "05/03/2024"},
               {"05/03/2024", "03/05/2024"},
               {"3/13/2024", "3/13/2024"},
               {"12/1/1899", "1/12/1899"},
               {"1/12/2100", "12/1/2100"},
               {"0/5/2024", "0/5/2024"},
               {"3/0/2024", "3/0/2024"},
               {"", ""},
               {"Mar 5, 2024", "Mar 5, 2024"},
               {"3/5", "3/5"},
               {"3/5/24", "3/5/24"},
               {"3/5/2024 9:00", "3/5/2024 9:00"},
               {"//2024", "//2024"},
               {"x/5/2024", "x/5/2024"}};
  for (const auto& c : cases) EXPECT_EQ(TurnedDate(c.stored), c.turned);
  const DateRead read = ReadStoredDate("03/05/2024", true);
  EXPECT_EQ(read, (DateRead{"5/3/2024", "3/5/2024"}));
  EXPECT_EQ(TurnNote(read), "read as 5/3/2024, in the file 3/5/2024");
  EXPECT_EQ(TurnNote(ReadStoredDate("5/5/2024", true)), "");
  EXPECT_EQ(ReadStoredDate("03/05/2024", false), (DateRead{"3/5/2024", ""}));
}

TEST(DateTurningTest, DatesTurnUnlessTheStyleIsTheFilesOwn) {
  for (const char* tag : {"", "USA", "x", "OTHER"}) EXPECT_TRUE(DatesTurn(tag, "")) << tag;
  EXPECT_FALSE(DatesTurn("", "USA"));
  EXPECT_FALSE(DatesTurn("anything", " USA "));
  EXPECT_TRUE(DatesTurn("OTHER", "USA"));
  EXPECT_FALSE(DatesTurn("OTHER ", "OTHER"));
}

TEST_F(VehicleFilesTest, VehiclesLieInTheirSlotsAsThePageSays) {
  const std::string example = Example("vehicle-slots.md");
  EXPECT_EQ(TakeSlot(folder_, "Van 1").slot, 1);
  EXPECT_EQ(TakeSlot(folder_, " Van 2 ").slot, 2);
  EXPECT_EQ(disk_.Read("ACar1.Fil"), "\" \"\r\n");
  ASSERT_TRUE(DeleteVehicle(folder_, ReadVehicles(folder_).vehicles[0]));
  EXPECT_EQ(disk_.Read("CarMnt1.Fil"),
            example.substr(0, 102) + "1" + std::string(47, '\0') + example.substr(150));
  EXPECT_THAT(ReadVehicles(folder_).vehicles, ElementsAre(Vehicle{2, 2, "Van 2"}));
  for (const char* name : {"ACar1.Fil", "MCar1.Fil", "RCar1.Fil", "GCar1.Fil"}) {
    EXPECT_EQ(disk_.Read(name), "\"  \"\r\n") << name;
  }
  EXPECT_EQ(TakeSlot(folder_, "Van 3").slot, 1);
}

TEST_F(VehicleFilesTest, ATableThatIsCutLosesNoVehiclesFiles) {
  ASSERT_EQ(TakeSlot(folder_, "Van 1").slot, 1);
  ASSERT_EQ(TakeSlot(folder_, "Van 2").slot, 2);
  VehicleSheet sheet;
  sheet.fields[kMake] = "Ford";
  ASSERT_TRUE(WriteSheet(folder_, 2, sheet, ""));
  const std::string whole = disk_.Read("CarMnt1.Fil");
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    disk_.Write("CarMnt1.Fil", whole.substr(0, length));
    const std::size_t left = length >= whole.size() ? 2 : length >= 103 ? 1 : 0;
    ASSERT_EQ(ReadVehicles(folder_).vehicles.size(), left) << length;
    ASSERT_NE(TakeSlot(folder_, "New").slot, 2) << length;
    ASSERT_EQ(ReadSheet(folder_, 2, "").fields[kMake], "Ford") << length;
  }
}

TEST_F(VehicleFilesTest, OddRecordsOfTheTable) {
  const auto put = [&](int record, const std::string& text) {
    std::string table = disk_.Read("CarMnt1.Fil");
    table.resize(static_cast<std::size_t>(record - 1) * 150);
    table += static_cast<char>(text.size());
    disk_.Write("CarMnt1.Fil", table + '\0' + text);
  };
  std::string padded = "Twin";
  padded.resize(100, ' ');
  put(1, "eMpTy truck");
  put(2, "  ");
  put(3, padded + "7");
  put(4, padded + "7");
  put(5, padded + "0");
  put(6, padded + "999999");
  put(7, padded + "ten");
  EXPECT_THAT(ReadVehicles(folder_).vehicles,
              ElementsAre(Vehicle{3, 7, "Twin"}, Vehicle{4, 7, "Twin"}, Vehicle{5, 0, "Twin"},
                          Vehicle{6, 999999, "Twin"}, Vehicle{7, 0, "Twin"}));
  disk_.Write("ACar7.Fil", "\"NEWW\"\r\n");
  ASSERT_TRUE(DeleteVehicle(folder_, ReadVehicles(folder_).vehicles[1]));
  EXPECT_EQ(disk_.Read("ACar7.Fil"), "\"NEWW\"\r\n");  // the other one's still
  ASSERT_TRUE(DeleteVehicle(folder_, ReadVehicles(folder_).vehicles[0]));
  EXPECT_EQ(disk_.Read("ACar7.Fil"), "\" \"\r\n");
}

TEST_F(VehicleFilesTest, ASheetLiesOnTheDiskAsItsPageSays) {
  VehicleSheet sheet;
  sheet.fields[kYear] = "2019";
  sheet.fields[kMake] = "Ford";
  sheet.fields[kModel] = "E150 Van";
  sheet.fields[kOdometer] = "12,500";
  sheet.fields[kRegistrationMonth] = "3";
  sheet.rows[0].distance = "3,000";
  sheet.rows[0].months = "3";
  sheet.rows[49].action = "Wash";
  sheet.rows[49].date.shown = "3/5/2024";
  sheet.picture = "/van.jpg";
  ASSERT_TRUE(WriteSheet(folder_, 3, sheet, ""));
  std::vector<std::string> rest = Filled(300, "");
  rest[243 + 3] = "3/5/2024";  // the last row's
  rest[297] = "Wash";
  rest[299] = "/van.jpg";
  EXPECT_EQ(disk_.Read("ACar3.Fil"), Example("vehicle-sheet.md") + Lines(rest));
  const VehicleSheet read = ReadSheet(folder_, 3, "");
  EXPECT_EQ(read.fields, sheet.fields);
  EXPECT_EQ(read.rows[49].date, (DateRead{"5/3/2024", "3/5/2024"}));
  EXPECT_EQ(read.rows[49].action, "Wash");
  EXPECT_EQ(read.picture, "/van.jpg");
  EXPECT_FALSE(read.is_older);
}

TEST_F(VehicleFilesTest, ASheetOfMoreOrFewerValuesKeepsWhatItHas) {
  std::vector<std::string> values = Filled(325, "");
  values[0] = "NEWW";
  for (std::size_t i = 1; i < values.size(); ++i) values[i] = std::to_string(i);
  values.push_back("more");
  for (std::size_t count = 1; count <= values.size(); ++count) {
    disk_.Write("ACar1.Fil", Lines({values.begin(), values.begin() + static_cast<int>(count)}));
    const VehicleSheet read = ReadSheet(folder_, 1, "");
    ASSERT_FALSE(read.is_older) << count;
    ASSERT_EQ(read.fields[kLastField], count > 22 ? "22" : "") << count;
    ASSERT_EQ(read.rows[49].cost, count > 272 ? "$272.00" : "") << count;
    ASSERT_EQ(read.picture, count > 324 ? "324" : "") << count;
    ASSERT_TRUE(WriteSheet(folder_, 1, read, ""));
    EXPECT_THAT(disk_.Read("ACar1.Fil"), EndsWith(count > 325 ? "\"more\"\r\n" : "\"\r\n"));
  }
}

TEST_F(VehicleFilesTest, TheOlderLayoutIsReadAndKeptBeside) {
  const std::vector<std::string> values = OlderValues();
  ASSERT_EQ(values.size(), 105u);
  for (std::size_t count = 1; count <= values.size(); ++count) {
    disk_.Write("ACar1.Fil", Lines({values.begin(), values.begin() + static_cast<int>(count)}));
    const VehicleSheet read = ReadSheet(folder_, 1, "");
    ASSERT_TRUE(read.is_older) << count;
    ASSERT_EQ(read.fields[kOdometer], count > 3 ? "40,000" : "") << count;
    ASSERT_EQ(read.rows[8].cost, count > 102 ? "$19.50" : "") << count;
    ASSERT_EQ(read.picture, count > 104 ? "/home/ann/metro.jpg" : "") << count;
  }
  const std::string older = disk_.Read("ACar1.Fil");
  const VehicleSheet read = ReadSheet(folder_, 1, "");
  EXPECT_EQ(read.rows[8].date, (DateRead{"5/3/2024", "3/5/2024"}));
  ASSERT_TRUE(WriteSheet(folder_, 1, read, ""));
  EXPECT_EQ(disk_.Read("ACar1.Fil.old"), older);
  EXPECT_THAT(disk_.Read("ACar1.Fil"), StartsWith("\"NEWW\"\r\n\"1998\"\r\n"));
  disk_.Write("ACar1.Fil", "\" \"\r\n");
  EXPECT_FALSE(ReadSheet(folder_, 1, "").is_older);  // a deleted vehicle's
}

TEST_F(VehicleFilesTest, HistoriesAndFuelLieOnTheDiskAsTheirPagesSay) {
  const HistoryEntry oil{"12,000", {"3/9/2026", ""}, "Changed Oil and Filter", "$25.00"};
  ASSERT_TRUE(WriteHistory(folder_, HistoryKind::kRepairs, 1, {oil}));
  EXPECT_EQ(disk_.Read("RCar1.Fil"), Example("vehicle-history.md"));
  EXPECT_EQ(ReadHistory(folder_, HistoryKind::kRepairs, 1, false).entries, std::vector{oil});
  const FuelEntry fill{{"3/9/2026", ""}, "12,000         ", "12,300          ", "300      ",
                       "15.00    ",      "20.00        ",   "$45.00  "};
  ASSERT_TRUE(WriteFuel(folder_, 1, {FuelEntry(), fill}));
  EXPECT_EQ(disk_.Read("GCar1.Fil"), Example("vehicle-fuel.md"));
  EXPECT_EQ(ReadFuel(folder_, 1, false).entries, std::vector{fill});
  EXPECT_EQ(ReadFuel(folder_, 1, true).entries[0].date.shown, "9/3/2026");
  ASSERT_TRUE(WriteHistory(folder_, HistoryKind::kMaintenance, 1, {}));
  ASSERT_TRUE(WriteFuel(folder_, 1, {FuelEntry()}));
  EXPECT_EQ(disk_.Read("MCar1.Fil") + disk_.Read("GCar1.Fil"), "\" \"\r\n\" \"\r\n");
  EXPECT_THAT(ReadHistory(folder_, HistoryKind::kMaintenance, 1, true).entries, IsEmpty());
}

TEST_F(VehicleFilesTest, AHistoryOfMoreThanFitsIsCutAndSaysSo) {
  std::string lines;
  for (int i = 0; i < 6000; ++i) lines += Lines({"1", "3/9/2026", "Toll", "$1.00"});
  disk_.Write("MCar1.Fil", lines);
  EXPECT_FALSE(ReadHistory(folder_, HistoryKind::kMaintenance, 1, true).is_cut);
  disk_.Write("MCar1.Fil", lines + Lines({"1", "3/9/2026", "Toll"}));
  const History cut = ReadHistory(folder_, HistoryKind::kMaintenance, 1, true);
  EXPECT_TRUE(cut.is_cut);
  EXPECT_EQ(cut.entries.size(), 6000u);
}

TEST_F(VehicleFilesTest, WhatTheDiskRefusesLeavesTheOldFiles) {
  ASSERT_EQ(TakeSlot(folder_, "Van").slot, 1);
  VehicleSheet sheet;
  ASSERT_TRUE(WriteSheet(folder_, 1, sheet, ""));
  const std::string before = disk_.Read("ACar1.Fil");
  sheet.fields[kMake] = "Ford";
  for (const std::uint64_t bytes : {0, 1, 900}) {
    files_.AllowBytes(bytes);
    EXPECT_FALSE(WriteSheet(folder_, 1, sheet, "")) << bytes;
    EXPECT_EQ(disk_.Read("ACar1.Fil"), before) << bytes;
  }
  files_.AllowBytes(0);
  EXPECT_EQ(TakeSlot(folder_, "Car").slot, 0);
  EXPECT_FALSE(DeleteVehicle(folder_, {1, 1, "Van"}));
  EXPECT_EQ(Name(0), "Van");
}

}  // namespace
}  // namespace tarnwell::vehicles
