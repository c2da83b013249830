#include "reference/link_tables.h"

#include <gmock/gmock.h>

#include "storage/file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::reference {
namespace {

using ::testing::HasSubstr;

class LinkTablesTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder disk_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), disk_.path()};
};

TEST_F(LinkTablesTest, ATableIsReadWhateverItsLineEnds) {
  disk_.Write("states.txt",
              "\xEF\xBB\xBF# by state\r\n\r\n"
              "Alabama\t3\tAlabama SBDC\thttps://asbdc.org/\r\n"
              "D. C.\t0\t\thttps://dc.gov/");
  const auto states = ReadStateLinks(folder_);
  EXPECT_EQ(states.rows[0][3].label, "Alabama SBDC");
  EXPECT_EQ(states.rows[0][3].address, "https://asbdc.org/");
  EXPECT_EQ(states.rows[8][0].label, "");
  EXPECT_EQ(states.rows[8][0].address, "https://dc.gov/");
  EXPECT_EQ(states.rows[0][0].address, "");
  EXPECT_THAT(states.trouble, HasSubstr("states.txt isn't whole: 206 addresses are missing."));
}

TEST_F(LinkTablesTest, ALineThatIsNoneIsLeftOutAndTold) {
  const std::string bad[] = {"Alabama",
                             "Alabama\t1\thttps://a.gov/",
                             "Alabama\t4\t\thttps://a.gov/",
                             "Alabama\t-1\t\thttps://a.gov/",
                             "Alabama\t12\t\thttps://a.gov/",
                             "Atlantis\t1\t\thttps://a.gov/",
                             "Alabama\t1\t\thttp://a.gov/",
                             "Alabama\t1\t\tfile:///etc/passwd",
                             "Alabama\t1\t\thttps://a.gov/\tmore",
                             "Alabama\t1\t\thttps://a.gov/one two",
                             "Alabama\t1\t\thttps://",
                             "Alabama\t1\t\thttps://a.gov/\xE9",
                             "Alabama\t1\tbell\a\thttps://a.gov/",
                             "Alabama\t0\t\thttps://again.gov/",
                             "Alabama\t1\t\thttps://a.gov/" + std::string(kLongestAddress, 'a'),
                             std::string("\0\0\0", 3)};
  for (const std::string& line : bad) {
    disk_.Write("states.txt", "Alabama\t0\t\thttps://first.gov/\n" + line +
                                  "\nAlabama\t2\tGuide\thttps://last.gov/\n");
    const auto states = ReadStateLinks(folder_);
    EXPECT_EQ(states.rows[0][0].address, "https://first.gov/") << line;
    EXPECT_EQ(states.rows[0][1].address, "") << line;
    EXPECT_EQ(states.rows[0][2].address, "https://last.gov/") << line;
    EXPECT_THAT(states.trouble, HasSubstr("has a line that can't be used: line 2.")) << line;
  }
  disk_.Write("internet.txt", "0\t\thttps://a.gov/\n1\tB\thttps://b.gov/\n7\tC\thttps://c.gov/\n");
  const auto internet = ReadInternetLinks(folder_);
  EXPECT_EQ(internet.rows[0].address, "");
  EXPECT_EQ(internet.rows[1].label, "B");
  EXPECT_THAT(internet.trouble, HasSubstr("2 lines that can't be used. The first is line 1."));
}

TEST_F(LinkTablesTest, ATableThatIsNotThereOrCannotBeReadIsToldAndEmpty) {
  EXPECT_EQ(ReadFederalLinks(folder_).trouble, "The list of web sites in federal.txt is missing.");
  disk_.Write("federal.txt", std::string((1u << 20) + 1, '#'));
  EXPECT_THAT(ReadFederalLinks(folder_).trouble, HasSubstr("can't be read: it is too large."));
  disk_.Write("federal.txt", "");
  EXPECT_THAT(ReadFederalLinks(folder_).trouble, HasSubstr("7 addresses are missing."));
  disk_.Write("federal.txt", "6\thttps://www.dol.gov/\n0\thttps://www.sb");
  const auto cut = ReadFederalLinks(folder_);
  EXPECT_EQ(cut.rows[6].address, "https://www.dol.gov/");
  EXPECT_EQ(cut.rows[0].address, "https://www.sb") << "no reader can tell";
}

}  // namespace
}  // namespace tarnwell::reference
