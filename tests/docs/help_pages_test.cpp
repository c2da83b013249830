#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <sstream>

#include "docs/help_page.h"

namespace tarnwell::docs {
namespace {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::IsEmpty;

const fs::path kSource = TARNWELL_SOURCE_DIR;

std::map<std::string, HelpPage> AllPages() {
  std::map<std::string, HelpPage> pages;
  for (const auto& entry : fs::directory_iterator(kSource / "data/help")) {
    if (entry.path().extension() != ".html") continue;
    pages[entry.path().filename().string()] = ParseHelpPage(ReadFile(entry.path()));
  }
  return pages;
}

TEST(HelpPagesTest, EveryPageThatTheCodeAsksForIsThere) {
  const auto pages = AllPages();
  std::set<int> contexts;
  for (const auto& entry : fs::recursive_directory_iterator(kSource / "src")) {
    if (!entry.is_regular_file()) continue;
    contexts.merge(HelpContexts(entry.path().filename(), ReadFile(entry.path())));
  }
  EXPECT_TRUE(contexts.contains(1000)) << "the program overview, which every screen offers";
  for (int context : contexts) {
    EXPECT_TRUE(pages.contains(std::to_string(context) + ".html")) << context;
  }
}

TEST(HelpPagesTest, EveryLinkLeadsToAPlace) {
  const auto pages = AllPages();
  for (const auto& [name, page] : pages) {
    EXPECT_THAT(page.tag_faults, IsEmpty()) << name;
    EXPECT_FALSE(page.links.empty()) << name;
    for (const Link& link : page.links) {
      const auto target = pages.find(link.file.empty() ? name : link.file);
      ASSERT_NE(target, pages.end()) << name << " links to " << link.file;
      EXPECT_TRUE(link.anchor.empty() || target->second.anchors.contains(link.anchor))
          << name << " links to " << link.file << "#" << link.anchor;
    }
  }
}

TEST(HelpPagesTest, TheIndexListsEveryPageByItsTitle) {
  const auto pages = AllPages();
  std::map<std::string, std::string> listed;
  for (const Link& link : pages.at("index.html").links) listed[link.file] = link.text;
  std::map<std::string, std::string> expected;
  for (const auto& [name, page] : pages) {
    if (name != "index.html") expected[name] = page.title;
  }
  EXPECT_EQ(listed, expected);
}

TEST(HelpPagesTest, AFaultyPageIsFound) {
  const HelpPage page = ParseHelpPage(
      "<title>T</title><p><a name=\"x\"></a><b>bold</p></b><blink></blink><li>"
      "<a href=\"1000.html#day\">Day</a>");
  EXPECT_EQ(page.title, "T");
  EXPECT_THAT(page.anchors, ElementsAre("x"));
  ASSERT_EQ(page.links.size(), 1u);
  EXPECT_EQ(page.links[0].file + "|" + page.links[0].anchor, "1000.html|day");
  EXPECT_THAT(page.tag_faults, ElementsAre("stray </p>", "unknown <blink>", "unknown <blink>",
                                           "unclosed <p>", "unclosed <li>"));
}

TEST(HelpPagesTest, ContextNumbersAreFoundWhereverTheCodeNamesThem) {
  const std::string code =
      "constexpr int kAreaHelp = 3010;  // help 4711\n"
      "int width = 1234;\n"
      "AddHelpMenu(*this, context_,\n    {{\"&Print\", 1014}, {\"Backup\", 1002}});\n"
      "context_.help.Show(2009);\n";
  EXPECT_THAT(HelpContexts("workarea1.cpp", code), ElementsAre(1002, 1014, 2009, 3010));
  EXPECT_THAT(HelpContexts("help_menu.h", "int kProgramOverview = 1000;"), ElementsAre(1000));
}

// What stands in a fence of backticks is an example, not a link of ours.
std::string WithoutExamples(const std::string& markdown) {
  std::istringstream lines(markdown);
  std::string rest;
  std::string fence;
  for (std::string line; std::getline(lines, line);) {
    const std::string ticks = line.substr(0, line.find_first_not_of('`'));
    if (fence.empty() && ticks.size() >= 3) {
      fence = ticks;
    } else if (fence.empty()) {
      rest += line + "\n";
    } else if (line == fence) {
      fence.clear();
    }
  }
  return rest;
}

TEST(MarkdownTest, EveryLinkBetweenDocumentsLeadsToAFile) {
  static const std::regex kLink("[^!]\\[[^\\]]*\\]\\(([^)#:]+)");
  std::vector<fs::path> documents = {kSource / "README.md", kSource / "CONTRIBUTING.md"};
  for (const auto& entry : fs::recursive_directory_iterator(kSource / "docs")) {
    if (entry.path().extension() == ".md") documents.push_back(entry.path());
  }
  int links = 0;
  for (const fs::path& document : documents) {
    const std::string text = WithoutExamples(ReadFile(document));
    for (std::sregex_iterator link(text.begin(), text.end(), kLink), end; link != end; ++link) {
      const std::string target = (*link)[1];
      EXPECT_TRUE(fs::exists(document.parent_path() / target))
          << document << " links to " << target;
      ++links;
    }
  }
  EXPECT_GT(links, 3);
}

}  // namespace
}  // namespace tarnwell::docs
