#include "reference/link_tables.h"

#include <gmock/gmock.h>

#include <cstdio>
#include <set>

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

// The supplied tables.
class SuppliedLinksTest : public ::testing::Test {
 protected:
  testing::TemporaryFolder disk_;
  storage::ProgramFolder folder_{storage::RealFileSystem(), disk_.path(),
                                 TARNWELL_SOURCE_DIR "/data"};
};

// Of one panel: each place has an address, and none has another's.
template <typename Links>
void ExpectWhole(const Links& links, std::string_view panel) {
  std::set<std::string> addresses;
  for (const Link& link : links) addresses.insert(link.address);
  EXPECT_EQ(addresses.size(), links.size()) << panel;
  EXPECT_FALSE(addresses.contains("")) << panel;
}

TEST_F(SuppliedLinksTest, EveryPlaceHasAnAddressOfItsOwn) {
  const auto states = ReadStateLinks(folder_);
  EXPECT_EQ(states.trouble, "");
  for (std::size_t i = 0; i < kStates.size(); ++i) {
    ExpectWhole(states.rows[i], kStates[i]);
    for (const Link& link : states.rows[i]) EXPECT_LT(link.label.size(), kLongestLabel);
  }
  const auto federal = ReadFederalLinks(folder_);
  EXPECT_EQ(federal.trouble, "");
  ExpectWhole(federal.rows, "federal");
  const auto internet = ReadInternetLinks(folder_);
  EXPECT_EQ(internet.trouble, "");
  ExpectWhole(internet.rows, "internet");
  EXPECT_EQ(internet.rows[5].label, "NIST Special Publications (800 Series)");
  EXPECT_EQ(internet.rows[6].label, "Workgroup for Electronic Data Interchange (WEDI)");
}

TEST_F(SuppliedLinksTest, TheListToTryHasEachAddress) {
  std::multiset<std::string> expected;
  for (const auto& places : ReadStateLinks(folder_).rows) {
    for (const Link& link : places) expected.insert(link.address);
  }
  for (const Link& link : ReadFederalLinks(folder_).rows) expected.insert(link.address);
  for (const Link& link : ReadInternetLinks(folder_).rows) expected.insert(link.address);

  std::FILE* list = ::popen(TARNWELL_SOURCE_DIR "/tools/list_links", "r");
  ASSERT_NE(list, nullptr);
  std::multiset<std::string> printed;
  for (char line[kLongestAddress + 2]; std::fgets(line, sizeof line, list);) {
    printed.insert(std::string(line, std::string(line).find('\n')));
  }
  EXPECT_EQ(::pclose(list), 0);
  EXPECT_EQ(printed, expected);
}

}  // namespace
}  // namespace tarnwell::reference
