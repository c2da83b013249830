#include "proofing/grid_corrections.h"

#include <gmock/gmock.h>

#include "support/form_rig.h"

namespace tarnwell::proofing {
namespace {

using ::testing::ElementsAre;

TEST(CorrectRowsTest, ACorrectionGoesToWholeWordsBetweenBlanks) {
  const struct {
    const char* row;
    std::vector<SpellingChange> changes;
    std::string corrected;
  } cases[] = {
      {"teh end of teh", {{"teh", "the"}}, "the end of the"},
      {"Teh TEH tEh", {{"teh", "the"}}, "The TEH THE"},  // the 2nd shares its blank with the 1st
      {"TEH end Teh end", {{"Teh", "the"}}, "THE end The end"},
      {"teh, tehran", {{"teh", "the"}}, "teh, tehran"},
      {"i and i", {{"i", "I"}}, "I and I"},
      {"Alot of", {{"alot", "a lot"}}, "A lot of"},
      {"one two", {{"one", "two"}, {"two", "three"}}, "three two"},
      {"teh adn", {{"teh", "the"}, {"theEND1", "x"}, {"adn", "and"}}, "the adn"},
      {"  kept ", {}, "  kept "},
      {"  trimmed ", {{"teh", "the"}}, "trimmed"},
      {"   ", {{"teh", "the"}}, "   "},
      {"caf\xE9 \xC9T\xC9", {{"\xE9t\xE9", "summer"}}, "caf\xE9 SUMMER"},
  };
  for (const auto& one : cases) {
    std::vector<std::string> rows{one.row};
    CorrectRows(rows, one.changes, 45);
    EXPECT_EQ(rows[0], one.corrected) << one.row;
  }
}

TEST(CorrectRowsTest, ARowIsCutToItsFirstCharacters) {
  const std::string filler(40, 'x');
  std::vector<std::string> rows{filler + " alot", filler + " alo", filler + " other"};
  CorrectRows(rows, {{"alot", "a lot"}}, 45);
  EXPECT_THAT(rows, ElementsAre(filler + " a lo", filler + " alo", filler + " othe"));
}

TEST(CorrectRowsTest, AWordThatWasKeptStaysInItsCapitals) {
  std::vector<std::string> rows{"HSA hsa Hsa HSA account"};
  CorrectRows(rows, {{"hsa", "has"}}, 45, {"HSA"});
  EXPECT_THAT(rows, ElementsAre("HSA has Hsa HSA account"));
}

TEST(CheckSpellingOfColumnTest, TheCheckersChangesAreCarriedOverToAllRows) {
  testing::FormRig rig;
  rig.speller.misspelled = {{"teh", {}}, {"Teh", {}}};
  forms::Grid grid(rig.form, "VSGd1", "List");
  grid.SetColumns({{.title = "No"}, {.title = "Item"}}, 1);
  grid.SetRows(4);
  grid.SetText(1, 1, "Cal\xE9 teh bank");
  grid.SetText(3, 1, "Teh end. Teh, last");
  EXPECT_EQ(CheckSpellingOfColumn(rig.context, grid, 1, 45), 3u);
  EXPECT_EQ(grid.text(1, 1), "Cal\xE9 the bank");
  EXPECT_EQ(grid.text(2, 1), "");
  EXPECT_EQ(grid.text(3, 1), "The end. Teh, last");
  EXPECT_EQ(CheckSpellingOfColumn(rig.context, grid, 1, 45), 1u) << "the checker finds it again";
  grid.SetText(3, 1, "The end");
  EXPECT_EQ(CheckSpellingOfColumn(rig.context, grid, 1, 45), 0u);
}

}  // namespace
}  // namespace tarnwell::proofing
