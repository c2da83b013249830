#include <gtest/gtest.h>

#include "richtext/limits.h"
#include "shell/startfrm.h"
#include "support/program_rig.h"
#include "workarea/workarea1.h"

namespace tarnwell::workarea {
namespace {

TEST(LongDocument, IsShownInPartAndItsFileStaysWhole) {
  std::string bytes = "{\\rtf1\\ansi\\pard first";
  for (std::size_t i = 0; i <= richtext::kMostParagraphs; ++i) bytes += "\\par";
  bytes += " last}";
  testing::ProgramRig rig;
  rig.temporary.Write("EmployPolicy5.Fl2", bytes);
  rig.temporary.Write("EmployPolicy6.Fl2", "short");
  rig.Start();
  rig.Get<shell::Startfrm>("Startfrm").begin.Click();
  WorkArea1& hub = rig.Get<WorkArea1>("WorkArea1");
  const auto press = [&](const char* name) {
    dynamic_cast<forms::Command&>(*hub.Find(name)).Click();
  };
  press("SSCommand11(2)");
  rig.dialogs.ExpectNote(
      "Document",
      "This document is too long to be shown whole. Its beginning can be read and "
      "copied, but not changed; the file stays as it is.");
  press("SSCommand14(5)");
  forms::RichTextBox& text = hub.document.text;
  EXPECT_EQ(text.ParagraphText(0), "first");
  text.Type("x");
  text.Replace({{0, 0}, {0, 5}}, "x");
  text.SetSelectionAlignment(richtext::Alignment::kRight);
  EXPECT_EQ(text.ParagraphText(0), "first");
  EXPECT_TRUE(text.locked());
  EXPECT_FALSE(hub.document.unsaved());
  press("SSCommand14(6)");
  text.Type("not ");
  EXPECT_EQ(text.ParagraphText(0), "not short");
  EXPECT_EQ(rig.temporary.Read("EmployPolicy5.Fl2"), bytes);
}

}  // namespace
}  // namespace tarnwell::workarea
