// The program with the hub on the screen, and a disaster recovery plan of the user's own.

#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "shell/startfrm.h"
#include "support/program_rig.h"
#include "workarea/workarea1.h"

namespace tarnwell::workarea {

inline constexpr const char* kSaveTitle = "Save Changes?";
inline constexpr const char* kSaveText = "Save changes/entries before next action?";
inline constexpr const char* kSaved = "File Save Command";

inline forms::MessageBox TemplateQuestion(const std::string& what = "Agreement/Doc.") {
  return {"Insert Template",
          "The program has detected an existing " + what +
              "\nIf you insert template and save file the existing file will be overwritten!"
              "\nInsert new Template?",
          forms::Icon::kExclamation, forms::Buttons::kYesNoCancel, 2};
}

inline std::string Rtf(const std::string& text) {
  return R"({\rtf1\ansi\deff0{\fonttbl{\f0 Times New Roman;}}\pard )" + text + "\\par}\r\n";
}

class WorkAreaTest : public ::testing::Test {
 protected:
  void SetUp() override { rig.temporary.Write("DRPln1.Fl2", Rtf("Our plan")); }
  // The hub on an area; it begins with the To Do list.
  void Open(Area area = kAgreements) {
    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    ASSERT_EQ(rig.top(), "WorkArea1");
    if (area != kToDoList) Press("SSCommand11(" + std::to_string(area) + ")");
  }
  WorkArea1& hub() { return rig.Get<WorkArea1>("WorkArea1"); }
  forms::Command& Button(std::string_view name) {
    return dynamic_cast<forms::Command&>(*hub().Find(name));
  }
  void Press(std::string_view name) { Button(name).Click(); }
  std::string Shown() { return richtext::PlainText(hub().document.text.document()); }
  std::string Stored(const std::string& file) {
    return richtext::PlainText(richtext::ReadRichText(rig.temporary.Read(file)));
  }
  void ExpectSaveQuestion(forms::Answer answer) {
    rig.dialogs.ExpectYesNo(kSaveTitle, kSaveText, answer);
  }
  void ExpectSaved() {
    rig.dialogs.ExpectNote(kSaved, "Document, Form, Policy, etc. Has Been Saved/Updated!");
  }

  testing::ProgramRig rig;
};

}  // namespace tarnwell::workarea
