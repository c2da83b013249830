// The templates and texts in data/, from which a company's own documents begin.

#include "richtext/supplied_documents.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <map>
#include <regex>
#include <set>
#include <sstream>

#include "richtext/paragraphs.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::richtext {
namespace {

using testing::AnyOf;
using testing::Each;
using testing::HasSubstr;
using testing::Lt;

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
    std::ptrdiff_t marks;
    std::ptrdiff_t least_words;
  } cases[] = {
      {"EmployPolicy0.Fl1", "Commission Agreement", 19, 1350},
      {"EmployPolicy1.Fl1", "Computer Repair Agreement", 15, 1150},
      {"EmployPolicy2.Fl1", "Consulting Agreement", 22, 1400},
      {"EmployPolicy4.Fl1", "Copyright Licensing Agreement", 25, 1200},
      {"EmployPolicy5.Fl1", "Employment Agreement", 27, 2500},
      {"EmployPolicy6.Fl1", "Employment Application", 4, 450},
      {"EmployPolicy7.Fl1", "Employment Contract - Sales", 29, 1650},
      {"EmployPolicy8.Fl1", "Freelance Contract", 25, 1200},
      {"EmployPolicy9.Fl1", "General Release of Liability", 12, 700},
      {"EmployPolicy10.Fl1", "Independent Contractor Agreement", 24, 1300},
      {"EmployPolicy11.Fl1", "IT Consulting Agreement", 30, 1650},
      {"EmployPolicy12.Fl1", "Job Description", 18, 200},
      {"EmployPolicy13.Fl1", "Mutual Non-Disclosure Agreement", 14, 1200},
      {"EmployPolicy14.Fl1", "Job Description - Short Form", 11, 50},
      {"EmployPolicy15.Fl1", "Temporary Employment Contract", 20, 950},
      {"EmployPolicy16.Fl1", "Unilateral Non-Disclosure Agreement", 12, 1000},
      {"EmployPolicy17.Fl1", "Work for Hire Agreement", 25, 1250},
      {"EmployPolicy18.Fl1", "Fax Cover Sheet", 6, 100},
      {"EmployPolicy19.Fl1", "Sick Leave Request Form", 3, 200},
      {"EmployPolicy20.Fl1", "Vacation Request Form", 3, 60},
      {"EmployPolicy23.Fl1", "Disciplinary Action Form", 13, 150},
      {"EmployPolicy24.Fl1", "Drug Testing Consent Form", 7, 400},
      {"EmployPolicy25.Fl1", "Employee Handbook", 46, 5000},
      {"EmployPolicy26.Fl1", "Employee Evaluation", 12, 140},
      {"EmployPolicy27.Fl1", "Loan Application Form", 5, 450},
      {"EmployPolicy28.Fl1", "Non-Compete Form", 15, 900},
      {"EmployPolicy29.Fl1", "Return to Work Form", 3, 250},
      {"EmployPolicy30.Fl1", "Termination and Release Form", 15, 950},
      {"EmployPolicy31.Fl1", "Termination of Employment Letter", 19, 300},
      {"EmployPolicy32.Fl1", "Warning Notice Form", 14, 170},
      {"EmployPolicy33.Fl1", "Acceptable Use Policy", 11, 1200},
      {"EmployPolicy34.Fl1", "Anti-Harassment Policy", 13, 1300},
      {"EmployPolicy35.Fl1", "Company Policy Manual", 54, 4500},
      {"EmployPolicy36.Fl1", "Cell Phone Use Policy", 10, 1000},
      {"EmployPolicy37.Fl1", "Confidentiality Policy", 10, 1200},
      {"EmployPolicy38.Fl1", "Email Use Policy", 12, 1200},
      {"EmployPolicy39.Fl1", "Jury Duty Policy", 8, 900},
      {"EmployPolicy40.Fl1", "Smoking Policy", 8, 700},
      {"EmployPolicy41.Fl1", "Vacation Policy", 9, 1000},
      {"DRPln1.Fl1", "Disaster Recovery Plan", 141, 4000},
      {"EmployAction1.Fl2", "Disclaimer and How To Use", 0, 800},
      {"Misc1.Fl1", "Disclaimer", 0, 400},
      {"Misc2.Fl1", "Program Information", 0, 600},
      {"Misc8.Fl1", "Getting Started", 0, 900},
      {"Misc57.Fl1", "Sample Incident Report", 0, 700},
      {"Misc59.Fl1", "Worksheet", 9, 100},
      {"SamplePol.Dat", "Sample Worksheet", 0, 400},
      {"Misc61.Fl1", "Implementation Specifications", 0, 300},
      {"Misc62.Fl1", "References in Rule", 0, 300},
      {"Misc63.Fl1", "Additional Information", 0, 300},
      {"Misc60.Fl1", "Company Disaster Recovery Plan", 0, 300},
  };
  for (const auto& c : cases) {
    const std::string bytes = FileBytes(std::string(kData) + c.file);
    const RichDocument document = ReadRichText(bytes);
    const std::string text = PlainText(document);
    EXPECT_EQ(text.substr(0, text.find('\n')), c.title) << c.file;
    EXPECT_NE(bytes.find("{\\title " + std::string(c.title) + "}"), std::string::npos);
    EXPECT_THAT(bytes, HasSubstr("{\\footer\\pard\\plain\\tqr\\tx9360\\f1\\fs16 " +
                                 std::string(c.title) + "\\tab Page \\chpgn\\par}"));

    const std::vector<std::size_t> rows = AmpersandRows(text);
    EXPECT_THAT(rows, Each(AnyOf(1U, kMarkLength))) << c.file;
    EXPECT_EQ(std::count(rows.begin(), rows.end(), kMarkLength), c.marks) << c.file;
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

// The numbers in "Sections 8.3 through 8.7, 9 and 10", and in a cell that holds nothing else.
std::vector<std::string> References(const std::string& text) {
  static const std::regex kInText(
      "Sections? [0-9]{1,2}(\\.[0-9]+)?(?![0-9A-Z])"
      "((, | and | or | through )[0-9]{1,2}(\\.[0-9]+)?(?![0-9A-Z]))*");
  static const std::regex kInCell("[0-9]+\\.[0-9]+(, [0-9]+\\.[0-9]+)*");
  static const std::regex kNumber("[0-9]+(\\.[0-9]+)?");
  using Matches = std::sregex_iterator;
  std::string named = std::regex_match(text, kInCell) ? text : "";
  for (Matches match(text.begin(), text.end(), kInText), end; match != end; ++match) {
    named += ' ' + match->str();
  }
  std::vector<std::string> numbers;
  for (Matches match(named.begin(), named.end(), kNumber), end; match != end; ++match) {
    numbers.push_back(match->str());
  }
  return numbers;
}

// Numbers are text in the file: a clause that comes or goes must change those behind it.
TEST(SuppliedDocuments, NumbersCountOnAndReferencesLeadToThem) {
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
    for (const Paragraph* paragraph : AllParagraphs(document)) {
      for (const std::string& number : References(ShownText(*paragraph))) {
        EXPECT_TRUE(markers.contains(number) || markers.contains(number + "."))
            << name << ": " << number << " in " << ShownText(*paragraph);
      }
    }
  }
}

TEST(SuppliedDocuments, EachSectionOfTheDisclaimerBeginsWithItsOwnSearchMark) {
  const RichDocument document = Supplied("EmployAction1.Fl2");
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
