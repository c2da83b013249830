#include "proofing/synonyms.h"

#include <gmock/gmock.h>

#include "forms/form_names.h"
#include "proofing/vsthesaurus1.h"
#include "support/form_rig.h"

namespace tarnwell::proofing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(SynonymRulesTest, BlanksAndSignsBehindASelectionArentLookedUp) {
  for (const auto& [selection, word] : {std::pair{"house", "house"},
                                        {"house. ", "house"},
                                        {"a house;:,", "a house"},
                                        {" house", " house"},
                                        {"house!", "house!"},
                                        {" .,", ""},
                                        {"", ""}}) {
    EXPECT_EQ(WordToLookUp(selection), word) << selection;
  }
}

TEST(SynonymRulesTest, AReplacementEndsAtItsFirstBlankAndKeepsTheCapitals) {
  const struct {
    const char* word;
    const char* chosen;
    const char* written;
  } cases[] = {{"house", "firm (generic term)", "firm"},
               {"House", "business firm", "Business"},
               {"HOUSE", "firm", "FIRM"},
               {"house", "Congress", "Congress"},
               {"house", "", ""}};
  for (const auto& one : cases) {
    EXPECT_EQ(ReplacementFor(one.word, one.chosen), one.written) << one.chosen;
  }
}

class ThesaurusTest : public ::testing::Test {
 protected:
  ThesaurusTest() {
    rig.navigator.Register(forms::form_names::kVSThesaurus1, [](forms::Context& context) {
      return std::make_unique<VSThesaurus1>(context);
    });
    rig.thesaurus.meanings = {{"House",
                               {{"(noun) dwelling", {"dwelling", "home (generic term)"}},
                                {"(noun) firm", {"business firm", "concern (generic term)"}}}},
                              {"concern", {{"(verb) worry", {"worry"}}}},
                              {"business firm", {{"(noun) company", {"company"}}}}};
  }
  std::optional<std::string> LookUp(std::string_view selection,
                                    std::function<void(VSThesaurus1&)> act) {
    rig.loop.during_modal = [this, act] { act(dynamic_cast<VSThesaurus1&>(*rig.navigator.top())); };
    return LookUpSynonym(rig.context, selection);
  }

  testing::FormRig rig;
};

TEST_F(ThesaurusTest, ASynonymOfTheMeaningInHandReplacesTheWord) {
  const auto chosen = LookUp("House,", [](VSThesaurus1& form) {
    EXPECT_EQ(form.word.caption(), "House");
    EXPECT_FALSE(form.note.visible());
    EXPECT_THAT(form.meanings.items(), ElementsAre("(noun) dwelling", "(noun) firm"));
    EXPECT_EQ(form.replace_with.text(), "Dwelling");
    form.meanings.Pick(1);
    EXPECT_THAT(form.synonyms.items(), ElementsAre("business firm", "concern (generic term)"));
    form.synonyms.Pick(1);
    EXPECT_EQ(form.replace_with.text(), "Concern");
    form.replace.Click();
  });
  EXPECT_EQ(chosen, "Concern");
}

TEST_F(ThesaurusTest, TheWayLeadsOverSynonymsAndBack) {
  const auto chosen = LookUp("House", [](VSThesaurus1& form) {
    EXPECT_FALSE(form.previous.enabled());
    form.meanings.Pick(1);
    form.look_up.Click();
    EXPECT_EQ(form.word.caption(), "business firm") << "the whole of it";
    EXPECT_EQ(form.replace_with.text(), "Company");
    form.previous.Click();
    form.meanings.Pick(1);
    form.synonyms.Pick(1);
    form.look_up.Click();
    EXPECT_EQ(form.word.caption(), "concern");
    form.replace_with.Type("fret");
    form.look_up.Click();
    EXPECT_EQ(form.word.caption(), "fret");
    EXPECT_TRUE(form.note.visible());
    EXPECT_THAT(form.synonyms.items(), IsEmpty());
    form.replace_with.Type("caf\xE9 noir");
    form.replace_with.PressEnter();
  });
  EXPECT_EQ(chosen, "Caf\u00e9");
}

TEST_F(ThesaurusTest, LeavingReplacesNothing) {
  EXPECT_EQ(LookUp("House", [](VSThesaurus1& form) { form.PressEscape(); }), std::nullopt);
  EXPECT_EQ(LookUp("unknown",
                   [](VSThesaurus1& form) {
                     EXPECT_FALSE(form.replace.enabled()) << "it is the word itself";
                     form.PressEscape();
                   }),
            std::nullopt);
}

TEST_F(ThesaurusTest, WithoutASelectionItAsksForOne) {
  for (const char* nothing : {"", " ."}) {
    rig.dialogs.Expect(
        {"Thesaurus", "Please highlight word you desire to look up!", forms::Icon::kQuestion},
        forms::Answer::kOk);
    EXPECT_EQ(LookUpSynonym(rig.context, nothing), std::nullopt);
  }
}

TEST_F(ThesaurusTest, AMissingThesaurusIsToldOnceAndAWordCanStillBeTyped) {
  rig.thesaurus.installed = false;
  rig.dialogs.ExpectNote("Thesaurus",
                         "There is no thesaurus of American English on this computer.");
  for (int round = 0; round < 2; ++round) {
    EXPECT_EQ(LookUp("house",
                     [](VSThesaurus1& form) {
                       form.replace_with.Type("home");
                       form.replace.Click();
                     }),
              "home");
  }
}

}  // namespace
}  // namespace tarnwell::proofing
