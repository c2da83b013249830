#include "program/command_line.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <vector>

#include "shell/product.h"

namespace tarnwell::program {
namespace {

using ::testing::HasSubstr;
using ::testing::Optional;

std::string SourceFile(const std::string& name) {
  std::ifstream file(TARNWELL_SOURCE_DIR "/" + name);
  return {std::istreambuf_iterator<char>(file), {}};
}

TEST(CommandLineTest, OptionsAreAnsweredAndAnythingElseStarts) {
  const auto answer_to = [](std::vector<const char*> arguments) { return AnswerTo(arguments); };
  EXPECT_EQ(answer_to({}), std::nullopt);
  EXPECT_EQ(answer_to({"-style", "fusion"}), std::nullopt);
  for (const char* version : {"-v", "--version"}) {
    EXPECT_THAT(answer_to({"-style", version}), Optional(std::string("tarnwell 2.5\n")));
  }
  for (const char* help : {"-h", "--help"}) {
    for (const Option& option : Options()) {
      EXPECT_THAT(answer_to({help}), Optional(HasSubstr(std::string(option.word))));
    }
  }
  EXPECT_THAT(RefusalOf("--colour"), HasSubstr("--colour"));
}

TEST(CommandLineTest, TheManualPageHasTheOptionsAndNoOther) {
  std::string page = SourceFile("packaging/tarnwell.1");
  std::erase(page, '\\');
  static const std::regex kHead("\\.BR (-[a-z]) \", \" (--[a-z]+)");
  std::set<std::string> told, taken;
  for (std::sregex_iterator head(page.begin(), page.end(), kHead), end; head != end; ++head) {
    told.insert((*head)[1].str() + (*head)[2].str());
  }
  for (const Option& option : Options()) {
    taken.insert(std::string(option.letter) + std::string(option.word));
  }
  EXPECT_EQ(told, taken);
}

TEST(CommandLineTest, EveryFileTellsTheSameVersion) {
  const std::string version = shell::kVersion;
  EXPECT_EQ(shell::kVersionText, "Version " + version);
  const struct {
    const char* file;
    std::string text;
  } cases[] = {
      {"CMakeLists.txt", "project(Tarnwell VERSION " + version + " "},
      {"packaging/changelog", "tarnwell (" + version + ") "},
      {"packaging/tarnwell.1", "\"Tarnwell " + version + "\""},
      {"packaging/example.tarnwell.tarnwell.metainfo.xml", "<release version=\"" + version + "\""},
  };
  for (const auto& one : cases) {
    EXPECT_THAT(SourceFile(one.file), HasSubstr(one.text)) << one.file;
  }
}

}  // namespace
}  // namespace tarnwell::program
