#include "storage/program_folder.h"

#include <gmock/gmock.h>
#include <sys/stat.h>
#include <unistd.h>

#include "storage/file_names.h"
#include "support/failing_file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::storage {
namespace {

using namespace std::string_literals;
using tarnwell::testing::FailingFileSystem;
using tarnwell::testing::TemporaryFolder;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class ProgramFolderTest : public ::testing::Test {
 protected:
  TemporaryFolder disk_;
  TemporaryFolder supplied_;
  FailingFileSystem files_{RealFileSystem()};
  ProgramFolder folder_{files_, disk_.path(), supplied_.path()};
};

TEST_F(ProgramFolderTest, SpellingsThatDifferInCapitalsReachOneFile) {
  EXPECT_TRUE(folder_.WriteWhole("TODONAME.Fil", "one"));
  EXPECT_EQ(folder_.ReadWhole("TODONAME.FIL"), "one");
  EXPECT_TRUE(folder_.WriteWhole("todoname.fil", "two"));
  EXPECT_TRUE(folder_.Open("TodoName.fil", OpenMode::kCreate)->WriteAt(3, "!"));
  EXPECT_EQ(folder_.Open("TodoName.fil", OpenMode::kCreateFresh), nullptr);
  EXPECT_EQ(folder_.Length("Todoname.Fil"), 4u);
  EXPECT_THAT(disk_.Names(), ElementsAre("TODONAME.Fil"));
  EXPECT_EQ(disk_.Read("TODONAME.Fil"), "two!");
  EXPECT_TRUE(folder_.WriteWhole("TODOName.Fl2", "another file"));
  EXPECT_TRUE(folder_.Delete("TODONAME.FIL"));
  EXPECT_FALSE(folder_.Exists("TODONAME.Fil"));
  EXPECT_THAT(disk_.Names(), ElementsAre("TODOName.Fl2"));
}

TEST_F(ProgramFolderTest, AccentedLettersFoldTooAndNamesAreUtf8OnTheDisk) {
  EXPECT_TRUE(folder_.WriteWhole("Caf\xE9 \x80.Fil", "x"));
  EXPECT_EQ(folder_.ReadWhole("CAF\xC9 \x80.FIL"), "x");
  EXPECT_THAT(disk_.Names(), ElementsAre("Caf\xC3\xA9 \xE2\x82\xAC.Fil"));
}

TEST_F(ProgramFolderTest, AKnownNameCostsOneOpenCall) {
  disk_.Write("A.FIL", "x");
  folder_.ReadWhole("a.fil");
  const int before = files_.calls();
  EXPECT_NE(folder_.Open("a.Fil", OpenMode::kCreate), nullptr);
  EXPECT_EQ(files_.log()[static_cast<std::size_t>(before)], "open");
  EXPECT_EQ(files_.calls(), before + 1);
}

TEST_F(ProgramFolderTest, FollowsAFolderThatChangesBehindItsBack) {
  EXPECT_TRUE(folder_.WriteWhole("a.fil", "ours"));
  disk_.Remove("a.fil");
  disk_.Write("A.FIL", "theirs");
  EXPECT_EQ(folder_.ReadWhole("a.fil"), "theirs");
  EXPECT_TRUE(folder_.WriteWhole("a.fil", "ours again"));
  EXPECT_THAT(disk_.Names(), ElementsAre("A.FIL"));
  disk_.Remove("A.FIL");
  EXPECT_FALSE(folder_.Exists("a.fil"));
  EXPECT_EQ(folder_.ReadWhole("a.fil"), std::nullopt);
  disk_.Write("a.FIL", "new");
  EXPECT_NE(folder_.Open("A.fil", OpenMode::kCreate), nullptr);
  EXPECT_THAT(disk_.Names(), ElementsAre("a.FIL"));
}

TEST_F(ProgramFolderTest, OfTwoFilesThatDifferInCapitalsItIsAlwaysTheSameOne) {
  disk_.Write("a.fil", "second");
  disk_.Write("A.FIL", "first");
  for (const char* name : {"a.fil", "A.FIL", "A.fil"}) {
    EXPECT_EQ(folder_.ReadWhole(name), "first") << name;
    EXPECT_EQ(ProgramFolder(files_, disk_.path()).ReadWhole(name), "first") << name;
  }
  EXPECT_TRUE(folder_.WriteWhole("a.fil", "changed"));
  EXPECT_EQ(disk_.Read("a.fil"), "second");

  disk_.Write("b.fil", "used");
  EXPECT_EQ(folder_.ReadWhole("B.FIL"), "used");
  disk_.Write("B.FIL", "came later");
  EXPECT_FALSE(folder_.Exists("makes it read the folder again"));
  EXPECT_EQ(folder_.ReadWhole("B.FIL"), "used");
}

TEST_F(ProgramFolderTest, SuppliedFilesStandBehindTheUsersOwn) {
  supplied_.Write("Misc1.fl1", "supplied");
  EXPECT_EQ(folder_.ReadWhole("MISC1.Fl1"), "supplied");
  EXPECT_TRUE(folder_.Exists("MISC1.Fl1"));
  EXPECT_EQ(folder_.Length("MISC1.Fl1"), 0u);
  EXPECT_TRUE(folder_.Delete("MISC1.Fl1"));
  EXPECT_EQ(folder_.Open("MISC1.Fl1", OpenMode::kReadWrite), nullptr);
  EXPECT_TRUE(folder_.Copy("MISC1.Fl1", "copy.Fl2"));
  EXPECT_TRUE(folder_.WriteWhole("MISC1.Fl1", "own"));
  EXPECT_EQ(folder_.ReadWhole("misc1.Fl1"), "own");
  EXPECT_EQ(disk_.Read("copy.Fl2"), "supplied");
  EXPECT_EQ(supplied_.Read("Misc1.fl1"), "supplied");
  EXPECT_FALSE(folder_.Copy("missing.Fl1", "copy.Fl2"));
  EXPECT_EQ(disk_.Read("copy.Fl2"), "supplied");
}

TEST_F(ProgramFolderTest, SuppliedAddressesLieInAFolderOfTheirOwn) {
  ASSERT_EQ(::mkdir((supplied_.path() + "/links").c_str(), 0777), 0);
  supplied_.Write("links/states.txt", "supplied");
  EXPECT_EQ(folder_.ReadWhole("STATES.txt"), "supplied");
  EXPECT_TRUE(folder_.Exists("states.txt"));
  EXPECT_TRUE(folder_.WriteWhole("states.txt", "own"));
  EXPECT_EQ(folder_.ReadWhole("states.txt"), "own");
  EXPECT_EQ(supplied_.Read("links/states.txt"), "supplied");
}

TEST_F(ProgramFolderTest, NamesThatAreNotPlainNeverTouchAnything) {
  ASSERT_EQ(::mkdir((disk_.path() + "/inside").c_str(), 0777), 0);
  ProgramFolder inside(files_, disk_.path() + "/inside");
  disk_.Write("victim.fil", "safe");
  const std::string names[] = {"",
                               ".",
                               "..",
                               "../victim.fil",
                               "..\\victim.fil",
                               "/victim.fil",
                               disk_.path() + "/victim.fil",
                               "C:victim.fil",
                               "sub/victim.fil",
                               "victim.fil\n",
                               "victim\0.fil"s,
                               "\x1Bvictim.fil",
                               "\x7F.fil",
                               "\x81.fil",
                               ".tarnwell-lock",
                               ".Tarnwell-SAVE-00000000",
                               std::string(256, 'a'),
                               std::string(128, '\xE9')};
  const int before = files_.calls();
  for (const std::string& name : names) {
    EXPECT_FALSE(IsPlainFileName(name)) << name;
    for (const OpenMode mode :
         {OpenMode::kRead, OpenMode::kReadWrite, OpenMode::kCreate, OpenMode::kCreateFresh}) {
      EXPECT_EQ(inside.Open(name, mode), nullptr) << name;
    }
    EXPECT_EQ(inside.ReadWhole(name), std::nullopt) << name;
    EXPECT_FALSE(inside.WriteWhole(name, "x")) << name;
    EXPECT_FALSE(inside.Delete(name)) << name;
    EXPECT_FALSE(inside.Exists(name)) << name;
    EXPECT_EQ(inside.Length(name), 0u) << name;
  }
  EXPECT_EQ(files_.calls(), before) << "the disk was asked";
  EXPECT_EQ(disk_.Read("victim.fil"), "safe");
  for (const std::string& name :
       {" 2026.Cal"s, "..."s, "a..b"s, std::string(255, 'a'), "Letter (1) \x80.Fl5"s, ".hidden"s}) {
    EXPECT_TRUE(IsPlainFileName(name)) << name;
    EXPECT_TRUE(inside.WriteWhole(name, name)) << name;
    EXPECT_EQ(inside.ReadWhole(name), name);
  }
}

TEST(FileNamesTest, AnyNameOfAUsersMakesAPlainFileName) {
  const std::pair<std::string, std::string> cases[] = {
      {"Ann Lee / 03/09/2026", "Ann Lee - 03-09-2026.Fl5"},
      {"  Welder  ", "Welder.Fl5"},
      {"a\\b:c*d?e\"f<g>h|i\tj\x7Fk\x9Dl", "a-b-c-d-e-f-g-h-i-j-k-l.Fl5"},
      {"Mr. X.", "Mr. X..Fl5"},
      {"Zo\xEB \x80", "Zo\xEB \x80.Fl5"},
      {".tarnwell-lock", "-tarnwell-lock.Fl5"},
      {"..", "-..Fl5"},
      {"", "-.Fl5"},
      {"welder.fL5", "welder.Fl5"},
      {"JOBHOLD", "JOBHOLD-.Fl5"},
      {std::string(255, 'x'), std::string(251, 'x') + ".Fl5"},
      {std::string(255, '\x80'), std::string(83, '\x80') + ".Fl5"},
  };
  for (const auto& [name, file] : cases) {
    EXPECT_EQ(file_names::OfUserName(name, ".Fl5"), file);
    EXPECT_TRUE(IsPlainFileName(file)) << file;
  }
}

TEST_F(ProgramFolderTest, AFolderOfThatNameIsNoFile) {
  ASSERT_EQ(::mkdir((disk_.path() + "/a.fil").c_str(), 0777), 0);
  EXPECT_EQ(folder_.ReadWhole("a.fil"), std::nullopt);
  EXPECT_FALSE(folder_.WriteWhole("a.fil", "x"));
  EXPECT_EQ(folder_.Open("a.fil", OpenMode::kCreate), nullptr);
  EXPECT_THAT(disk_.Names(), ElementsAre("a.fil"));
}

TEST_F(ProgramFolderTest, AVanishedReadOnlyOrFullFolderFailsQuietlyAndKeepsTheOldFile) {
  disk_.Write("a.fil", "old");
  struct Trouble {
    const char* name;
    std::function<void()> start;
    Fault fault;
  };
  const Trouble troubles[] = {
      {"full", [this] { files_.AllowBytes(1); }, Fault::kFull},
      {"read-only", [this] { files_.MakeReadOnly(); }, Fault::kReadOnly},
      {"broken", [this] { files_.Vanish(); }, Fault::kBroken},
  };
  for (const auto& [trouble, start, fault] : troubles) {
    start();
    EXPECT_EQ(folder_.WriteWhole("a.fil", "new").fault(), fault) << trouble;
    EXPECT_FALSE(folder_.WriteWhole("b.fil", "new")) << trouble;
    EXPECT_FALSE(folder_.Copy("a.fil", "b.fil")) << trouble;
    EXPECT_EQ(disk_.Read("a.fil"), "old") << trouble;
    EXPECT_THAT(disk_.Names(), ElementsAre("a.fil")) << trouble;
  }
  EXPECT_EQ(folder_.ReadWhole("a.fil"), std::nullopt);
  EXPECT_TRUE(folder_.Read("a.fil").is_unreadable());
  ProgramFolder gone(RealFileSystem(), disk_.path() + "/gone");
  EXPECT_EQ(gone.WriteWhole("a.fil", "x").fault(), Fault::kGone);
  EXPECT_EQ(gone.Read("a.fil").fault, Fault::kGone);
}

TEST_F(ProgramFolderTest, WhatIsMissingIsTakenForEmptyAndWhatCannotBeReadIsNot) {
  EXPECT_TRUE(folder_.Read("a.fil").is_missing());
  EXPECT_FALSE(folder_.Read("a.fil").is_unreadable());
  disk_.Write("a.fil", "four");
  EXPECT_EQ(folder_.Read("a.fil").content, "four");
  EXPECT_EQ(folder_.Read("a.fil", 3).fault, Fault::kTooLarge);
  bool has_failed = true;
  for (int call = 1; has_failed; ++call) {
    FailingFileSystem files(RealFileSystem());
    files.FailAt(call);
    const auto read = ProgramFolder(files, disk_.path()).Read("a.fil");
    has_failed = files.calls() >= call;
    EXPECT_TRUE(read.is_unreadable() || read.content == "four") << call;
  }
}

// A link could lead out of the folder, and who opens a pipe waits for good.
TEST_F(ProgramFolderTest, LinksAndPipesInAFilesPlaceAreNeitherReadNorReplaced) {
  const TemporaryFolder outside;
  outside.Write("victim", "safe");
  const std::string target = outside.path() + "/victim";
  ASSERT_EQ(::symlink(target.c_str(), (disk_.path() + "/link.fil").c_str()), 0);
  ASSERT_EQ(::symlink((target + "2").c_str(), (disk_.path() + "/dangling.fil").c_str()), 0);
  ASSERT_EQ(::mkfifo((disk_.path() + "/pipe.fil").c_str(), 0666), 0);
  for (const char* name : {"link.fil", "dangling.fil", "pipe.fil"}) {
    EXPECT_EQ(folder_.Read(name).fault, Fault::kNotPlain) << name;
    EXPECT_EQ(folder_.WriteWhole(name, "x").fault(), Fault::kNotPlain) << name;
    EXPECT_EQ(folder_.Open(name, OpenMode::kCreate), nullptr) << name;
  }
  EXPECT_EQ(outside.Read("victim"), "safe");
  EXPECT_THAT(outside.Names(), ElementsAre("victim"));
  EXPECT_THAT(disk_.Names(), ElementsAre("dangling.fil", "link.fil", "pipe.fil"));
}

TEST_F(ProgramFolderTest, AFileTooLargeForMemoryIsNotRead) {
  disk_.Write("a.fil", "x");
  ASSERT_EQ(::truncate((disk_.path() + "/a.fil").c_str(), off_t{1} << 40), 0);
  EXPECT_EQ(folder_.ReadWhole("a.fil"), std::nullopt);
}

}  // namespace
}  // namespace tarnwell::storage
