// The templates and texts in data/, from which a company's own documents begin.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <filesystem>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "richtext/plain_text.h"
#include "richtext/rich_text_files.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::richtext {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::Lt;

constexpr char kData[] = TARNWELL_SOURCE_DIR "/data/";
constexpr std::size_t kMarkLength = 45;

std::map<std::string, std::string> SuppliedFiles() {
  std::map<std::string, std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(kData)) {
    const std::string extension = entry.path().extension().string();
    if (extension != ".Fl1" && extension != ".Fl2") continue;
    files[entry.path().filename().string()] = FileBytes(entry.path().string());
  }
  return files;
}

std::vector<const Paragraph*> AllParagraphs(const RichDocument& document) {
  std::vector<const Paragraph*> all;
  for (const Block& block : document.blocks) {
    if (const auto* const paragraph = std::get_if<Paragraph>(&block)) {
      all.push_back(paragraph);
      continue;
    }
    for (const TableRow& row : std::get<Table>(block).rows) {
      for (const Cell& cell : row.cells) {
        for (const Paragraph& paragraph : cell.paragraphs) all.push_back(&paragraph);
      }
    }
  }
  return all;
}

// The lengths of all unbroken rows of ampersands.
std::vector<std::size_t> AmpersandRows(const std::string& text) {
  std::vector<std::size_t> lengths;
  for (std::size_t place = text.find('&'); place != std::string::npos;) {
    const std::size_t end = std::min(text.find_first_not_of('&', place), text.size());
    lengths.push_back(end - place);
    place = text.find('&', end);
  }
  return lengths;
}

TEST(SuppliedDocuments, EachIsWhatItsNameSaysAndHasPlacesToFillIn) {
  const struct {
    const char* file;
    const char* title;
    std::ptrdiff_t least_marks;
    std::ptrdiff_t least_words;
  } cases[] = {
      {"EmployPolicy5.Fl1", "Employment Agreement", 30, 2500},
      {"EmployPolicy13.Fl1", "Mutual Non-Disclosure Agreement", 15, 1200},
      {"EmployPolicy20.Fl1", "Vacation Request Form", 10, 60},
      {"EmployPolicy25.Fl1", "Employee Handbook", 45, 5000},
      {"EmployPolicy33.Fl1", "Acceptable Use Policy", 12, 1200},
      {"DRPln1.Fl1", "Disaster Recovery Plan", 100, 3500},
      {"EmployAction1.Fl2", "Disclaimer and How To Use", 0, 800},
      {"Misc60.Fl1", "Company Disaster Recovery Plan", 0, 300},
  };
  for (const auto& c : cases) {
    const RichDocument document = ReadRichText(FileBytes(std::string(kData) + c.file));
    const std::string text = PlainText(document);
    EXPECT_EQ(text.substr(0, text.find('\n')), c.title) << c.file;
    EXPECT_NE(document.prologue.find("{\\title " + std::string(c.title) + "}"), std::string::npos);

    const std::vector<std::size_t> rows = AmpersandRows(text);
    EXPECT_THAT(rows, Each(AnyOf(1U, kMarkLength))) << c.file;
    EXPECT_GE(std::count(rows.begin(), rows.end(), kMarkLength), c.least_marks) << c.file;
    std::istringstream words(text);
    using Words = std::istream_iterator<std::string>;
    EXPECT_GE(std::distance(Words(words), Words()), c.least_words) << c.file;
  }
}

TEST(SuppliedDocuments, EverythingIsShownAndInOneOfTwoFonts) {
  for (const auto& [name, bytes] : SuppliedFiles()) {
    const RichDocument document = ReadRichText(bytes);
    EXPECT_TRUE(IsRtf(bytes) && !IsBlank(document)) << name;
    for (const Paragraph* paragraph : AllParagraphs(document)) {
      for (const auto& run : paragraph->runs) {
        EXPECT_FALSE(std::holds_alternative<Opaque>(run.content)) << name;
        EXPECT_THAT(run.format.font, AnyOf("Times New Roman", "Arial")) << name;
      }
    }
  }
}

TEST(SuppliedDocuments, OneThatNobodyChangedIsSavedByteForByteAndAChangedOneLosesNothing) {
  for (const auto& [name, bytes] : SuppliedFiles()) {
    const RichDocument document = ReadRichText(bytes);
    EXPECT_TRUE(SaveRichText(document, StoredFormOf(bytes, ReadRichText(bytes))) == bytes) << name;
    EXPECT_TRUE(ReadRichText(WriteRichText(document)) == document) << name;
  }
}

// The marker that the item should have, once `counts`, by list and level, has taken it in.
std::string Expected(const ListItem& item, std::map<int, std::array<int, 3>>& counts) {
  std::array<int, 3>& of_levels = counts[item.list_number];
  const auto level = static_cast<std::size_t>(item.level);
  const int count = ++of_levels.at(level);
  std::fill(of_levels.begin() + item.level + 1, of_levels.end(), 0);
  if (level == 0) return std::to_string(count) + ".";
  if (level == 1) return std::to_string(of_levels[0]) + "." + std::to_string(count);
  return {'(', static_cast<char>('a' + count - 1), ')'};
}

// Numbers are text in the file: a clause that comes or goes must change those behind it.
TEST(SuppliedDocuments, NumbersCountOnAndReferencesLeadToThem) {
  static const std::regex kReference("Sections? ([0-9]{1,2}(\\.[0-9]+)?)(?![0-9A-Z])");
  for (const auto& [name, bytes] : SuppliedFiles()) {
    const RichDocument document = ReadRichText(bytes);
    std::map<int, std::array<int, 3>> counts;
    std::set<std::string> markers;
    for (const Paragraph* paragraph : AllParagraphs(document)) {
      const auto& item = paragraph->format.list;
      if (!item || !item->numbered) continue;
      EXPECT_EQ(item->marker, Expected(*item, counts)) << name;
      markers.insert(item->marker);
    }
    const std::string text = PlainText(document);
    using Matches = std::sregex_iterator;
    for (Matches match(text.begin(), text.end(), kReference), end; match != end; ++match) {
      const std::string number = (*match)[1];
      EXPECT_TRUE(markers.contains(number) || markers.contains(number + "."))
          << name << ": " << match->str();
    }
  }
}

TEST(SuppliedDocuments, EachSectionOfTheDisclaimerBeginsWithItsOwnSearchMark) {
  const RichDocument document = ReadRichText(FileBytes(std::string(kData) + "EmployAction1.Fl2"));
  const std::string text = PlainText(document);
  std::size_t sections = 0;
  for (const Paragraph* paragraph : AllParagraphs(document)) {
    if (paragraph->format.style != 1) continue;
    const auto& heading = std::get<std::string>(paragraph->runs.front().content);
    EXPECT_TRUE(heading.starts_with("< ")) << heading;
    ++sections;
  }
  EXPECT_GE(sections, 10U);
  EXPECT_EQ(std::count(text.begin(), text.end(), '<'), std::ptrdiff_t(sections));
}

TEST(SuppliedDocuments, TheFilesReadWellInATextEditor) {
  for (const auto& [name, bytes] : SuppliedFiles()) {
    std::istringstream lines(bytes);
    std::vector<std::size_t> lengths;
    for (std::string line; std::getline(lines, line);) lengths.push_back(line.size());
    EXPECT_THAT(lengths, Each(Lt(200U))) << name;
    EXPECT_TRUE(std::all_of(bytes.begin(), bytes.end(), [](char c) {
      return c == '\n' || (c >= ' ' && c <= '~');
    })) << name;
  }
}

}  // namespace
}  // namespace tarnwell::richtext
