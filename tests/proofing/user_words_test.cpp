#include "proofing/user_words.h"

#include <gtest/gtest.h>

#include "support/failing_file_system.h"
#include "support/format_page.h"
#include "support/temporary_folder.h"

namespace tarnwell::proofing {
namespace {

class UserWordsTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder disk_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), disk_.path()};
};

TEST_F(UserWordsTest, TheListLiesOnTheDiskAsItsPageSays) {
  UserWords words(folder_);
  EXPECT_TRUE(words.Add("widgets"));
  EXPECT_TRUE(words.Add("Tarnwell's"));
  EXPECT_TRUE(words.Add("widgets"));
  EXPECT_EQ(disk_.Read("UserWords.Fil"),
            testing::FileOf(testing::ReadFormatExample("user-words.md")));
  EXPECT_TRUE(UserWords(folder_).Has("Tarnwell"));
}

TEST_F(UserWordsTest, AWordCountsInTheCapitalsThatItsPlaceGivesIt) {
  UserWords words(folder_);
  words.Add("widget");
  words.Add("Tarnwell");
  words.Add("eBay");
  for (const auto& [word, has] : {std::pair{"widget", true},
                                  {"Widget", true},
                                  {"WIDGET", true},
                                  {"wIdget", false},
                                  {"widget's", true},
                                  {"widgets", false},
                                  {"Tarnwell's", true},
                                  {"TARNWELL", true},
                                  {"tarnwell", false},
                                  {"eBay", true},
                                  {"Ebay", false},
                                  {"", false}}) {
    EXPECT_EQ(words.Has(word), has) << word;
  }
}

}  // namespace
}  // namespace tarnwell::proofing
