#include "parts/save_question.h"

#include <gtest/gtest.h>

#include "support/form_rig.h"

namespace tarnwell::parts {
namespace {

using forms::Answer;

TEST(SaveQuestionTest, WorkIsLeftOnlySavedOrKnowingly) {
  const struct {
    bool unsaved;
    Answer answer;
    SaveResult save;
    std::optional<Answer> leave;  // to the question behind a failed save
    bool may_go;
    int saves;
  } cases[] = {
      {false, {}, {}, {}, true, 0},
      {true, Answer::kNo, {}, {}, true, 0},
      {true, Answer::kCancel, {}, {}, false, 0},
      {true, Answer::kYes, SaveResult::kSaved, {}, true, 1},
      {true, Answer::kYes, SaveResult::kDeclined, {}, true, 1},
      {true, Answer::kYes, SaveResult::kFailed, Answer::kNo, false, 1},
      {true, Answer::kYes, SaveResult::kFailed, Answer::kYes, true, 1},
  };
  for (const auto& c : cases) {
    testing::FormRig rig;
    int saves = 0;
    SaveQuestion question(rig.context, [&] {
      ++saves;
      return c.save;
    });
    question.SetUnsaved(c.unsaved);
    if (c.unsaved) rig.dialogs.ExpectYesNoCancel("Title", "Save?", c.answer);
    if (c.leave) rig.dialogs.ExpectLeaveUnsaved(*c.leave);
    EXPECT_EQ(question.Settle({"Title", "Save?", forms::Buttons::kYesNoCancel}), c.may_go);
    EXPECT_EQ(saves, c.saves);
  }
}

TEST(SaveQuestionTest, AnOfferMaySaveInItsOwnWay) {
  testing::FormRig rig;
  SaveQuestion question(rig.context, [] { return SaveResult::kFailed; });
  EXPECT_EQ(question.Offer(), SaveResult::kSaved);  // nothing to ask
  question.SetUnsaved(true);
  rig.dialogs.ExpectYesNo("Save Changes?", "Save changes/entries before next action?",
                          Answer::kYes);
  EXPECT_EQ(question.Offer({}, [] { return SaveResult::kDeclined; }), SaveResult::kDeclined);
}

}  // namespace
}  // namespace tarnwell::parts
