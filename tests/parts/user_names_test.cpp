#include "parts/user_names.h"

#include <gmock/gmock.h>

#include <functional>

#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::parts {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UserNamesTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder disk_;
  testing::FailingFileSystem files_{storage::RealFileSystem()};
  storage::ProgramFolder folder_{files_, disk_.path()};
  UserNames names_{folder_, {.file = "List.Fil", .most = 3, .goes_when_empty = true}};
};

TEST_F(UserNamesTest, EachChangeIsOnTheDiskAtOnceInListOrder) {
  ASSERT_TRUE(names_.Read());
  ASSERT_TRUE(names_.Add("Zoe"));
  ASSERT_TRUE(names_.Add("Ann"));
  ASSERT_TRUE(names_.Add("  zOE "));  // counts as there
  EXPECT_EQ(disk_.Read("List.Fil"), "\"Zoe\"\r\n\"Ann\"\r\n");
  ASSERT_TRUE(names_.Add("15\" pipe"));
  EXPECT_EQ(names_.Find("15\" PIPE"), 2) << "a quote would end the text in the file";
  EXPECT_FALSE(names_.has_room());
  ASSERT_TRUE(names_.Add("One more"));
  EXPECT_EQ(disk_.Read("List.Fil"), "\"Zoe\"\r\n\"Ann\"\r\n\"15' pipe\"\r\n");
  for (const char* gone : {"ZOE", "Nobody", "15\" pipe", "Ann"}) ASSERT_TRUE(names_.Remove(gone));
  EXPECT_THAT(names_.names(), IsEmpty());
  EXPECT_FALSE(folder_.Exists("List.Fil"));
}

TEST_F(UserNamesTest, AListThatCantBeReadOrWrittenStaysAsItWas) {
  const std::string list = "\"Zoe\"\r\n\"Ann\"\r\n";
  const std::pair<const char*, std::function<void()>> troubles[] = {
      {"read-only", [&] { files_.MakeReadOnly(); }},
      {"full", [&] { files_.AllowBytes(4); }},
      {"unreadable", [&] { files_.FailWhen([&](int) { return files_.log().back() == "read"; }); }},
      {"gone", [&] { files_.Vanish(); }},
  };
  for (const auto& [trouble, begin] : troubles) {
    SCOPED_TRACE(trouble);
    disk_.Write("List.Fil", list);
    ASSERT_TRUE(names_.Read());
    begin();
    EXPECT_FALSE(names_.Add("Bob"));
    EXPECT_FALSE(names_.Remove("Zoe"));
    EXPECT_FALSE(names_.Replace({"Zoe"}));
    EXPECT_THAT(names_.names(), ElementsAre("Zoe", "Ann"));
    EXPECT_EQ(disk_.Read("List.Fil"), list);
    files_.MakeReadOnly(false);
    files_.AllowBytes(1000);
    files_.Recover();
  }
}

TEST_F(UserNamesTest, AFailedReadNeverBecomesAShorterList) {
  const std::string list = "\"Zoe\"\r\n";
  disk_.Write("List.Fil", list);
  files_.FailWhen([&](int) { return files_.log().back() == "read"; });
  EXPECT_FALSE(names_.Read());
  EXPECT_FALSE(names_.Add("Bob"));
  EXPECT_FALSE(names_.Replace({}));
  EXPECT_EQ(disk_.Read("List.Fil"), list);
}

}  // namespace
}  // namespace tarnwell::parts
