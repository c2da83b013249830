// What somebody who fills in and signs a supplied document relies on.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <map>
#include <regex>
#include <set>

#include "richtext/paragraphs.h"
#include "richtext/supplied_documents.h"

namespace tarnwell::richtext {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

const std::string kMark(kMarkLength, '&');

// The texts of all paragraphs from the one that is `first` up to the one that is `behind`, or all
// that follow.
std::vector<std::string> Texts(const std::string& file, const std::string& first,
                               const std::string& behind = {}) {
  const RichDocument document = Supplied(file);
  std::vector<std::string> texts;
  for (const Paragraph* paragraph : AllParagraphs(document)) {
    const std::string text = ShownText(*paragraph);
    if (texts.empty() ? text != first : !behind.empty() && text == behind) {
      if (texts.empty()) continue;
      break;
    }
    texts.push_back(text);
  }
  return texts;
}

std::vector<std::string> ClausesWithMarks(const std::string& file) {
  const RichDocument document = Supplied(file);
  std::vector<std::string> clauses;
  for (const Paragraph* paragraph : AllParagraphs(document)) {
    const auto& item = paragraph->format.list;
    if (!item || ShownText(*paragraph).find(kMark) == std::string::npos) continue;
    clauses.push_back(item->marker);
  }
  return clauses;
}

std::vector<std::string> LabelsOfMarks(const std::string& file) {
  const RichDocument document = Supplied(file);
  std::vector<std::string> labels;
  std::string before;
  for (const Paragraph* paragraph : AllParagraphs(document)) {
    const std::string text = ShownText(*paragraph);
    if (text == kMark) labels.push_back(before);
    before = text;
  }
  return labels;
}

TEST(SuppliedWording, AnEmploymentAgreementAsksForTitleAndPayOnceInTheScheduleThatGoverns) {
  EXPECT_THAT(ClausesWithMarks("EmployPolicy5.Fl1"),
              ElementsAre("1.5", "4.2", "5.3", "8.1", "8.3", "10.3"));
  EXPECT_THAT(
      LabelsOfMarks("EmployPolicy5.Fl1"),
      ElementsAre("Date of Agreement", "Company", "Entity and state", "Company address", "Employee",
                  "Employee address", "Start Date", "Name and title", "Title", "Department",
                  "Reports to", "Main duties", "Other duties", "Regular hours",
                  "Exempt or non-exempt", "Base Pay", "Paydays",
                  "Incentive pay and how it is earned", "Licenses required", "Equipment provided"));
}

TEST(SuppliedWording, AnAgreementNamesTheLawItsSignersAndTheSchedulesThatItHas) {
  for (const int number : {0, 1, 2, 4, 5, 7, 8, 9, 10, 11, 13, 15, 16, 17, 28, 30}) {
    const std::string file = "EmployPolicy" + std::to_string(number) + ".Fl1";
    const RichDocument document = Supplied(file);
    std::string all;
    std::set<std::string> schedules;
    std::map<std::string, int> labels;
    for (const Paragraph* paragraph : AllParagraphs(document)) {
      const std::string text = ShownText(*paragraph);
      all += text + '\n';
      ++labels[text];
      if (paragraph->format.style == 1) schedules.insert(text.substr(0, text.find(':')));
    }
    EXPECT_THAT(all, HasSubstr("governed by the law of the state of " + kMark)) << file;
    EXPECT_GE(labels["Signature"], 2) << file;
    EXPECT_GE(labels["Date"], labels["Signature"]) << file;
    static const std::regex kSchedule("Schedule [A-Z]\\b");
    using Matches = std::sregex_iterator;
    for (Matches match(all.begin(), all.end(), kSchedule), end; match != end; ++match) {
      EXPECT_TRUE(schedules.contains(match->str())) << file << ": " << match->str();
    }
  }
}

// What an employer in any state had better not know before it hires.
TEST(SuppliedWording, AnApplicationAsksForNothingThatTheLawForbidsToAsk) {
  static const std::regex kForbidden(
      "birth|\\bage\\b|marr|marital|maiden|child|pregnan|religio|\\brace\\b|citizen|national|"
      "native|"
      "disabilit|health|illness|arrest|convict|crim|union|salary|wage|social security|photo",
      std::regex::icase);
  const std::vector<std::string> asked = Texts(
      "EmployPolicy6.Fl1", "Position", "Notices that the law of our state or city requires here");
  EXPECT_GT(asked.size(), 50U);
  for (const std::string& text : asked) {
    EXPECT_FALSE(std::regex_search(text, kForbidden)) << text;
  }
}

TEST(SuppliedWording, AMarkInAClauseStandsWhereItsWordsAre) {
  for (const auto& [name, bytes] : SuppliedFiles()) {
    const RichDocument document = ReadRichText(bytes);
    for (const Paragraph* paragraph : AllParagraphs(document)) {
      const auto& item = paragraph->format.list;
      if (!item || !item->numbered) continue;
      EXPECT_THAT(ShownText(*paragraph), Not(HasSubstr(": " + kMark))) << name;
    }
  }
}

TEST(SuppliedWording, WhatIsFilledInByHandHasNoMarks) {
  const struct {
    const char* file;
    const char* first;
    const char* behind;
  } cases[] = {
      {"EmployPolicy1.Fl1", "Work Order", ""},
      {"EmployPolicy6.Fl1", "Position", "Notices that the law of our state or city requires here"},
      {"EmployPolicy18.Fl1", "To", ""},
      {"EmployPolicy19.Fl1", "Employee", ""},
      {"EmployPolicy20.Fl1", "Employee", ""},
      {"EmployPolicy27.Fl1", "Employee", "Loan Agreement"},
      {"EmployPolicy29.Fl1", "Employee", ""},
      {"EmployPolicy5.Fl1", "Schedule B: Prior Inventions and Works", ""},
      {"EmployPolicy25.Fl1", "Acknowledgment of Receipt", ""},
      {"EmployPolicy33.Fl1", "Acknowledgment", ""},
      {"EmployPolicy34.Fl1", "Acknowledgment", ""},
      {"EmployPolicy35.Fl1", "Approval", ""},
      {"EmployPolicy36.Fl1", "Acknowledgment", ""},
      {"EmployPolicy37.Fl1", "Acknowledgment", ""},
      {"EmployPolicy38.Fl1", "Acknowledgment", ""},
      {"EmployPolicy39.Fl1", "Jury Duty Notice", ""},
      {"EmployPolicy40.Fl1", "Acknowledgment", ""},
      {"EmployPolicy41.Fl1", "Acknowledgment", ""},
      {"DRPln1.Fl1", "Log of the Event", "Disaster Recovery Plan, Long Form"},
      {"DRPln1.Fl1", "Appendix A: Log of the Event", "Appendix C: Messages"},
  };
  for (const auto& c : cases) {
    const std::vector<std::string> texts = Texts(c.file, c.first, c.behind);
    EXPECT_GT(texts.size(), 3U) << c.file << ": " << c.first;
    EXPECT_GT(std::count(texts.begin(), texts.end(), ""), 1) << c.file << ": " << c.first;
    EXPECT_EQ(std::count(texts.begin(), texts.end(), kMark), 0) << c.file << ": " << c.first;
  }
}

TEST(SuppliedWording, NothingIsToBeFilledInThatTheSearchForMarksPasses) {
  static const std::regex kOther(
      "\\((date|time|name|place|amount|title)\\)|\\((fill|write|insert)|\\[ *[A-Za-z]|[Xx]{3}");
  for (const auto& [name, bytes] : SuppliedFiles()) {
    const RichDocument document = ReadRichText(bytes);
    for (const Paragraph* paragraph : AllParagraphs(document)) {
      const std::string text = ShownText(*paragraph);
      EXPECT_FALSE(std::regex_search(text, kOther)) << name << ": " << text;
    }
  }
}

// What the company may choose stands in the list at the front; what the law sets, in the chapters.
TEST(SuppliedWording, TheChaptersOfTheHandbookNameNoNumberThatTheCompanyChooses) {
  static const std::regex kNumber(
      "([0-9][0-9.,]*|one|two|three|four|five|six|seven|eight|nine|ten|twelve|once|twice)"
      "( and one-half times|( |-)(a |in a |business |working |paid |more )?"
      "(days?|hours?|weeks?|months?|years?|minutes?|miles?|pounds?|percent)\\b)");
  std::vector<std::string> numbers;
  bool in_chapters = false;
  for (const std::string& text : Texts("EmployPolicy25.Fl1", "Our Figures")) {
    in_chapters = in_chapters || text == "A Word of Welcome";
    if (!in_chapters) continue;
    using Matches = std::sregex_iterator;
    for (Matches match(text.begin(), text.end(), kNumber), end; match != end; ++match) {
      numbers.push_back(match->str());
    }
  }
  EXPECT_THAT(numbers,
              ElementsAre("one year", "three business days", "one and one-half times", "12 months",
                          "1,250 hours", "12 months", "75 miles", "12 weeks", "12-month",
                          "26 weeks", "12-month", "30 days", "30 days", "60 days", "60 days"));
}

// A policy that limits what people say or do is read against what the law protects.
TEST(SuppliedWording, EveryPolicyOnConductSaysInTheSameWordsWhatItDoesNotLimit) {
  const auto rights = [](const std::string& file) {
    const std::vector<std::string> texts = Texts(file, "Rights That This Policy Does Not Limit");
    return texts.size() > 1 ? texts[1] : "";
  };
  const std::string usual = rights("EmployPolicy33.Fl1");
  EXPECT_THAT(usual, HasSubstr("National Labor Relations Act"));
  for (const int number : {34, 36, 37, 38}) {
    EXPECT_EQ(rights("EmployPolicy" + std::to_string(number) + ".Fl1"), usual) << number;
  }
}

TEST(SuppliedWording, TheRecoveryPlanBeginsWithTheChoiceOfOneOfTwoPlansEachOnPagesOfItsOwn) {
  const RichDocument document = Supplied("DRPln1.Fl1");
  std::vector<std::string> titles;
  for (const Paragraph* paragraph : AllParagraphs(document)) {
    if (paragraph->format.style != 15) continue;
    EXPECT_EQ(paragraph->format.page_break_before, !titles.empty());
    titles.push_back(ShownText(*paragraph));
  }
  ASSERT_THAT(titles, ElementsAre("Disaster Recovery Plan", "Disaster Recovery Plan, Short Form",
                                  "Disaster Recovery Plan, Long Form"));
  const std::vector<std::string> choice = Texts("DRPln1.Fl1", titles[0], titles[1]);
  std::string all;
  for (const std::string& text : choice) all += text + '\n';
  EXPECT_THAT(all, HasSubstr(kMark));
  for (const std::string& title : {titles[1], titles[2]}) {
    EXPECT_THAT(all, HasSubstr("Click before the title " + title));
  }
}

}  // namespace
}  // namespace tarnwell::richtext
