#include <gtest/gtest.h>

#include <QStandardPaths>

#include "desktop/pdf_lines.h"
#include "desktop/services/page_output.h"
#include "shell/startfrm.h"
#include "support/program_rig.h"
#include "workarea/workarea1.h"

namespace tarnwell::desktop {
namespace {

std::string Rtf(int number) {
  const std::string name = std::to_string(number);
  return "{\\rtf1\\ansi\\pard\\qc\\b Begin " + name + "\\par\\trowd\\cellx3000\\pard\\intbl Row " +
         name + "\\cell\\row\\pard\\plain End " + name + "\\par}";
}

TEST(PrintAll, OnePdfHoldsAllFortySevenDocumentsInOrder) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
  for (const char* entry : {"mOPAll", "mOPAllB"}) {
    testing::ProgramRig rig;
    std::vector<std::string> expected;
    for (int number = 0; number <= 46; ++number) {
      rig.temporary.Write("EmployPolicy" + std::to_string(number) + ".Fl2", Rtf(number));
      for (const char* line : {"Begin ", "Row ", "End "}) {
        expected.push_back(line + std::to_string(number));
      }
    }
    rig.Start();
    rig.Get<shell::Startfrm>("Startfrm").begin.Click();
    rig.ClickMenu(entry);
    rig.Get<workarea::WorkArea1>("WorkArea1").printing.print.print.Click();

    const QString file = QString::fromStdString(rig.temporary.path()) + "/all.pdf";
    ASSERT_TRUE(WritePdf(rig.pages.printed.at(0), file));
    EXPECT_EQ(testing::LinesOfPdf(file), expected) << entry;
  }
}

}  // namespace
}  // namespace tarnwell::desktop
