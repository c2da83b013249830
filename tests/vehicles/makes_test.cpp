#include "vehicles/makes.h"

#include <gmock/gmock.h>

#include <set>

#include "storage/file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::vehicles {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class MakesTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder disk_;
  storage::ProgramFolder supplied_{storage::RealFileSystem(), disk_.path(),
                                   TARNWELL_SOURCE_DIR "/data"};
};

TEST_F(MakesTest, TheSuppliedListsAreWhole) {
  const std::vector<Make> makes = ReadMakes(supplied_);
  std::vector<std::string> names;
  for (const Make& make : makes) {
    names.push_back(make.name);
    EXPECT_EQ(make.models.back(), "Z - Not Listed") << make.name;
    EXPECT_GE(make.models.size(), 3u) << make.name;
    EXPECT_LE(make.models.size(), 65u) << make.name;
    EXPECT_EQ(std::set(make.models.begin(), make.models.end()).size(), make.models.size())
        << make.name << " has a model twice";
  }
  EXPECT_THAT(names, ElementsAre("Acura", "Alfa Romeo", "Audi", "BMW", "Buick", "Cadillac",
                                 "Chevrolet", "Chrysler", "Daewoo", "Daihatsu", "Dodge", "Eagle",
                                 "Ford", "Geo", "GMC", "Honda", "Hyundai", "Infiniti", "Isuzu",
                                 "Jaguar", "Jeep", "Kia", "Land Rover", "Lexus", "Lincoln", "Mazda",
                                 "Mercedes-Benz", "Mercury", "Mitsubishi", "Nissan", "Oldsmobile",
                                 "Peugeot", "Plymouth", "Pontiac", "Porsche", "Saab", "Saturn",
                                 "Sterling", "Subaru", "Suzuki", "Toyota", "Volkswagen", "Volvo"));
  EXPECT_THAT(ModelsOf(makes, "Peugeot"), ElementsAre("405", "505", "Z - Not Listed"));
  EXPECT_THAT(ModelsOf(makes, "Plymouth"),
              ElementsAre("Neon", "Breeze", "Acclaim", "Colt", "Sundance", "Laser", "Horizon",
                          "Voyager", "Grand Voyager", "Prowler", "Z - Not Listed"));
  EXPECT_THAT(ModelsOf(makes, "Tatra"), IsEmpty());
}

TEST_F(MakesTest, AnOddListIsReadAsFarAsItGoes) {
  disk_.Write("Makes.Dat", "  lost\r\nFord\r\n  Focus\r\n\r\n \n  Escort\nGeo");
  const std::vector<Make> makes = ReadMakes(supplied_);
  ASSERT_EQ(makes.size(), 2u);
  EXPECT_THAT(makes[0].models, ElementsAre("Focus", "Escort"));
  EXPECT_THAT(makes[1].models, IsEmpty());
}

TEST(YearsTest, TheFirstYearIsTodays) {
  EXPECT_EQ(FirstYear(text::MakeDate(2026, 3, 9)), "2026");
  EXPECT_EQ(FirstYear(text::MakeDate(2090, 3, 9)), "1990");
  EXPECT_EQ(FirstYear(text::MakeDate(1999, 3, 9)), "1999");
  const auto years = YearsOffered(text::MakeDate(2026, 3, 9));
  EXPECT_EQ(years.front(), "2027");
  EXPECT_EQ(years.back(), "1950");
}

}  // namespace
}  // namespace tarnwell::vehicles
