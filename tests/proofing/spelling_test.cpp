#include "proofing/spelling.h"

#include <gmock/gmock.h>

#include "forms/form_names.h"
#include "proofing/vsspell1.h"
#include "support/form_rig.h"

namespace tarnwell::proofing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

// A text in memory; `shown` has each word that was asked about.
class MemoryText : public CheckedText {
 public:
  explicit MemoryText(std::vector<std::string> parts) : content(std::move(parts)) {}

  int parts() override { return static_cast<int>(content.size()); }
  std::string part(int index) override { return content.at(static_cast<std::size_t>(index)); }
  void Show(int index, std::size_t offset, std::size_t length) override {
    shown.push_back(part(index).substr(offset, length));
  }
  void Replace(int index, std::size_t offset, std::size_t length, std::string_view utf8) override {
    content.at(static_cast<std::size_t>(index)).replace(offset, length, utf8);
  }

  std::vector<std::string> content;
  std::vector<std::string> shown;
};

class SpellingTest : public ::testing::Test {
 protected:
  SpellingTest() {
    rig.navigator.Register(forms::form_names::kVSSpell1, [](forms::Context& context) {
      return std::make_unique<VSSpell1>(context);
    });
  }
  // Checks the text; while the dialogue stands open, each answer is given once, in turn.
  SpellingResult Check(MemoryText& text, std::vector<std::function<void(VSSpell1&)>> answers = {}) {
    rig.loop.during_modal = [&] {
      for (const auto& answer : answers) {
        auto* form = dynamic_cast<VSSpell1*>(rig.navigator.top());
        ASSERT_NE(form, nullptr) << "closed too early";
        answer(*form);
      }
    };
    return CheckSpelling(rig.context, text);
  }

  testing::FormRig rig;
};

TEST_F(SpellingTest, TheTableCorrectsWithoutAskingWhatTheDictionaryDoesntHave) {
  rig.speller.misspelled = {{"Teh", {}}, {"alot", {}}, {"adn", {}}, {"CNA", {}}};
  MemoryText text({"Teh man adn i", "CNA", "like alot. Their  are, their is fora", "i. (i)"});
  const SpellingResult result = Check(text);
  EXPECT_THAT(text.content, ElementsAre("The man and I", "CAN",
                                        "like a lot. There are, there is fora", "i. (i)"));
  EXPECT_THAT(text.shown, IsEmpty());
  EXPECT_THAT(
      result.changes,
      ElementsAre(SpellingChange{"Teh", "the"}, SpellingChange{"adn", "and"},
                  SpellingChange{"i", "I"}, SpellingChange{"CNA", "can"},
                  SpellingChange{"alot", "a lot"}, SpellingChange{"Their  are", "there are"},
                  SpellingChange{"their is", "there is"}));
  EXPECT_FALSE(result.canceled);
}

TEST_F(SpellingTest, AKeyOfTheTableInCapitalsIsAskedAboutAndCanStay) {
  const char* keys[] = {"HSA", "CNA", "EHR", "IHS"};
  for (const char* key : keys) rig.speller.misspelled[key] = {"HAS", "other"};
  rig.speller.misspelled["hsa"];
  MemoryText text({"The HSA of a CNA\nHSA\nand HSA hsa EHR", "IHS"});
  const SpellingResult result =
      Check(text, {[](VSSpell1& form) {
                     EXPECT_EQ(form.word.caption(), "HSA");
                     EXPECT_EQ(form.change_to.text(), "HAS");
                     EXPECT_THAT(form.suggestions.items(), ElementsAre("HAS", "other"));
                     form.ignore_all.Click();
                   },
                   [](VSSpell1& form) {
                     EXPECT_EQ(form.change_to.text(), "CAN");
                     form.add.Click();
                   },
                   [](VSSpell1& form) {
                     EXPECT_EQ(form.change_to.text(), "HER");
                     form.change.Click();
                   }});
  EXPECT_THAT(text.content, ElementsAre("The HSA of a CNA\nHSA\nand HSA has HER", "HIS"));
  EXPECT_THAT(result.kept, ElementsAre("CNA", "HSA"));
  EXPECT_EQ(CorrectedNote(result.changes.size()), "3 words corrected");

  MemoryText later({"CNA\ncna"});
  rig.speller.misspelled["cna"];
  Check(later);
  EXPECT_THAT(later.content, ElementsAre("CNA\ncan"));
}

TEST_F(SpellingTest, AWordThatCouldntBeAddedIsTold) {
  rig.speller.misspelled["zork"];
  rig.temporary.Write("UserWords.Fil", std::string(9u << 20, 'x'));
  rig.dialogs.ExpectError(
      "Not Saved", "The word could not be saved: it is too large.\nIt is still on the screen.");
  MemoryText text({"zork"});
  Check(text, {[](VSSpell1& form) { form.add.Click(); }});
}

TEST_F(SpellingTest, AnUnknownWordIsAskedAboutInItsSentence) {
  rig.speller.misspelled = {{"prise", {"prize", "price"}}, {"qwrt", {}}};
  MemoryText text({"Ask. The prise is caf\u00e9 qwrt."});
  const SpellingResult result =
      Check(text, {[](VSSpell1& form) {
                     EXPECT_EQ(form.before.caption(), "The ");
                     EXPECT_EQ(form.word.caption(), "prise");
                     EXPECT_EQ(form.after.caption(), " is caf\xE9 qwrt.");
                     EXPECT_THAT(form.suggestions.items(), ElementsAre("prize", "price"));
                     EXPECT_EQ(form.change_to.text(), "prize");
                     form.suggestions.Pick(1);
                     EXPECT_EQ(form.change_to.text(), "price");
                     form.suggestions.Open(1);
                   },
                   [](VSSpell1& form) {
                     EXPECT_EQ(form.word.caption(), "qwrt");
                     EXPECT_EQ(form.change_to.text(), "qwrt");
                     EXPECT_FALSE(form.change.enabled()) << "nothing to change it to";
                     form.change_to.Type(" ");
                     EXPECT_FALSE(form.change_all.enabled());
                     form.change_to.Type("na\xEFve ");
                     form.change_to.PressEnter();
                   }});
  EXPECT_THAT(text.content, ElementsAre("Ask. The price is caf\u00e9 na\u00efve."));
  EXPECT_THAT(text.shown, ElementsAre("prise", "qwrt"));
  EXPECT_THAT(result.changes,
              ElementsAre(SpellingChange{"prise", "price"}, SpellingChange{"qwrt", "na\xEFve"}));
}

TEST_F(SpellingTest, AnAnswerForAllHoldsToTheEndOfTheText) {
  rig.speller.misspelled = {{"recieveing", {"receiving"}},
                            {"Recieveing", {"Receiving"}},
                            {"Munday", {"Monday"}},
                            {"munday", {"Monday"}},
                            {"monday", {}},
                            {"xyz", {}}};
  MemoryText text({"xyz Recieveing munday", "recieveing xyz Munday RECIEVEING"});
  rig.speller.misspelled["RECIEVEING"];
  const SpellingResult result = Check(text, {[](VSSpell1& form) { form.ignore_all.Click(); },
                                             [](VSSpell1& form) { form.change_all.Click(); },
                                             [](VSSpell1& form) { form.change_all.Click(); }});
  EXPECT_THAT(text.content, ElementsAre("xyz Receiving Monday", "receiving xyz Monday RECEIVING"));
  EXPECT_THAT(result.changes.at(0), (SpellingChange{"Recieveing", "receiving"}));
  EXPECT_THAT(result.changes.at(1), (SpellingChange{"munday", "Monday"}));
  EXPECT_EQ(result.changes.size(), 5u);
}

TEST_F(SpellingTest, AnIgnoredWordIsAskedAboutAgainAndAnAddedOneNeverMore) {
  for (const char* word : {"tarnwell", "Tarnwell", "TARNWELL", "Tarnwell's", "zork"}) {
    rig.speller.misspelled[word];
  }
  MemoryText text({"zork zork tarnwell Tarnwell TARNWELL Tarnwell\u2019s"});
  Check(text,
        {[](VSSpell1& form) { form.ignore.Click(); }, [](VSSpell1& form) { form.ignore.Click(); },
         [](VSSpell1& form) { form.add.Click(); }});
  EXPECT_THAT(text.shown, ElementsAre("zork", "zork", "tarnwell"));
  MemoryText later({"tarnwell Tarnwell"});
  EXPECT_THAT(Check(later).changes, IsEmpty());
  EXPECT_THAT(later.shown, IsEmpty());
}

TEST_F(SpellingTest, EscapeAndTheCloseBoxKeepWhatWasChangedSoFar) {
  rig.speller.misspelled = {{"aaa", {"abc"}}, {"teh", {}}};
  for (const auto& leave : {std::function([](VSSpell1& form) { form.PressEscape(); }),
                            std::function([this](VSSpell1& form) {
                              rig.navigator.Close(form, forms::UnloadCause::kCloseBox);
                            })}) {
    MemoryText text({"teh aaa teh aaa teh"});
    const SpellingResult result = Check(text, {[](VSSpell1& form) { form.change.Click(); }, leave});
    EXPECT_THAT(text.content, ElementsAre("the abc the aaa teh"));
    EXPECT_TRUE(result.canceled);
    EXPECT_EQ(result.changes.size(), 3u);
  }
}

TEST_F(SpellingTest, TheHelpButtonOpensThePageOfTheDialogue) {
  rig.speller.misspelled["aaa"];
  MemoryText text({"aaa"});
  Check(text,
        {[](VSSpell1& form) { form.help.Click(); }, [](VSSpell1& form) { form.cancel.Click(); }});
  EXPECT_THAT(rig.help.shown, ElementsAre(5050));
}

TEST_F(SpellingTest, ATypographicApostropheStays) {
  rig.speller.misspelled["dont'nt"] = {"don't"};
  MemoryText text({"dont\u2019nt"});
  Check(text, {[](VSSpell1& form) { form.change.Click(); }});
  EXPECT_THAT(text.content, ElementsAre("don\u2019t"));
}

TEST_F(SpellingTest, WithoutADictionaryTheTableStillCorrectsAndThatIsToldOnce) {
  rig.speller.installed = false;
  rig.dialogs.ExpectNote("Spell Check",
                         "There is no dictionary of American English on this computer.\n"
                         "Only frequent slips of the typing are corrected.");
  for (int round = 0; round < 2; ++round) {
    MemoryText text({"teh zzzz"});
    Check(text);
    EXPECT_THAT(text.content, ElementsAre("the zzzz"));
  }
}

}  // namespace
}  // namespace tarnwell::proofing
