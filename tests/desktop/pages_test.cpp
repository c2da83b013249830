// Pages on their way out: as a PDF file, on the clipboard, through the printer's dialogues.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QLineEdit>
#include <QMimeData>
#include <QPrinterInfo>
#include <QStandardPaths>
#include <QTest>

#include "desktop/pdf_lines.h"
#include "desktop/services/page_output.h"
#include "desktop/services/qt_clipboard.h"
#include "desktop/services/qt_pages.h"
#include "desktop/when_modal.h"
#include "forms/program_variables.h"
#include "planner/planner_report.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using ::testing::ElementsAre;
using testing::LinesOfPdf;
using testing::WhenModal;

// The day's page as the core lays it out with the desktop's own metrics.
forms::Document DayPage(forms::TextMetrics& metrics, int pages = 1) {
  print::PageEngine engine(metrics);
  engine.Start({}, {});
  for (int page = 0; page < pages; ++page) {
    if (page > 0) engine.NewPage();
    forms::ProgramVariables variables;
    variables.CompanyLine = "Caf\xE9 Fjord";
    planner::DayRows rows;
    rows[0] = {"9:00 AM",
               "Call AVA about the office, fifty files \x80"
               "5"};
    rows[1] = {"", std::string("No time ") + std::to_string(page + 1)};
    planner::PrintDay(engine, variables, text::MakeDate(2026, 3, 9), rows, {.lines = true});
  }
  return engine.document();
}

// Whatever is asked of it: no file.

TEST(Pages, APdfHoldsTheTextOfEachPageAsTheReportHasIt) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
  const testing::TemporaryFolder folder;
  const QString file = QString::fromStdString(folder.path()) + "/day.pdf";
  PageMetrics metrics;
  ASSERT_TRUE(WritePdf(DayPage(metrics, 2), file));
  const char* title = "Café Fjord Appointments/Activities For Monday, March 09, 2026";
  EXPECT_THAT(LinesOfPdf(file),
              ElementsAre(title, "Time Appointment/Activity",
                          "9:00 AM Call AVA about the office, fifty files €5", "No time 1", title,
                          "Time Appointment/Activity",
                          "9:00 AM Call AVA about the office, fifty files €5", "No time 2"));
  EXPECT_FALSE(WritePdf(DayPage(metrics), "/nowhere/day.pdf"));
  EXPECT_FALSE(WritePdf(DayPage(metrics), "/dev/full"));
}

// A text that runs past the room that the core measured for it would run over its neighbour.
TEST(Pages, ATextIsPaintedAsWideAsItWasMeasured) {
  for (const forms::Font& font :
       {forms::Font{}, forms::Font{.name = "Arial", .size = 23.5, .bold = true}}) {
    PageMetrics metrics;
    const std::string text = "AVATAR Wave: office fifty \x80, 11 To";
    forms::Document document;
    document.setup = {metrics.Width(font, text) + 2000, 2000, false, {}};
    document.fonts = {font};
    document.pages = {{forms::PlacedText{1000, 200, 0, text + "."}}};
    const QImage image = ImageOf(document, 0);
    int right = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = right; x < image.width(); ++x) {
        if (qGray(image.pixel(x, y)) < 128) right = x;
      }
    }
    const double twips_a_pixel = 1440.0 / 150;
    const int end = 1000 + metrics.Width(font, text + ".");
    EXPECT_NEAR(right * twips_a_pixel, end, font.size * 20 * 0.25) << font.name;
    EXPECT_LE(right * twips_a_pixel, end) << font.name;
  }
}

TEST(Pages, ASheetComesBackFromThePageSetupAsItWent) {
  const forms::PageSetup letter;
  forms::PageSetup lying;
  lying.landscape = true;
  lying.margins = {720, 1440, 360, 100};
  const forms::PageSetup odd{6000, 7000, false, {}};
  for (const forms::PageSetup& setup : {letter, lying, odd}) {
    EXPECT_EQ(SetupOf(LayoutOf(setup)), setup);
  }
}

TEST(Pages, ACopiedPageIsAPictureAndItsText) {
  QtPages pages;
  pages.CopyPage(DayPage(pages.metrics()), 0);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->imageData().value<QImage>().size(), QSize(1275, 1650));
  EXPECT_EQ(copied->text().toStdString(),
            "Café Fjord Appointments/Activities For Monday, March 09, 2026\n"
            "Time\tAppointment/Activity\n"
            "9:00 AM\tCall AVA about the office, fifty files €5\n"
            "No time 1");
  QApplication::clipboard()->setText("kept");
  pages.CopyPage({}, 0);
  EXPECT_EQ(QApplication::clipboard()->text(), "kept");
}

TEST(Pages, TheDialoguesMayBeCancelledOnAMachineWithoutAPrinterToo) {
  QtPages pages;
  int shown = 0;
  const auto cancel = [&](QWidget* modal) {
    ++shown;
    qobject_cast<QDialog*>(modal)->reject();
  };
  WhenModal(cancel);
  EXPECT_EQ(pages.Print(DayPage(pages.metrics())), forms::PrintResult::kCancelled);
  WhenModal(cancel);
  EXPECT_EQ(pages.ChooseSetup({}), std::nullopt);
  EXPECT_EQ(shown, 2);
  pages.Print({});
  WhenModal([](QWidget* modal) { qobject_cast<QDialog*>(modal)->accept(); });
  forms::PageSetup lying;
  lying.landscape = true;
  EXPECT_EQ(pages.ChooseSetup(lying), lying);
}

TEST(Pages, OnAMachineWithoutAPrinterTheyGoIntoAPdfFile) {
  if (!QPrinterInfo::availablePrinterNames().isEmpty()) GTEST_SKIP() << "has a printer";
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
  const testing::TemporaryFolder folder;
  const QString file = QString::fromStdString(folder.path()) + "/printed.pdf";
  QtPages pages;
  WhenModal([&file](QWidget* modal) {
    auto* name = modal->findChild<QLineEdit*>(QStringLiteral("filename"));
    ASSERT_NE(name, nullptr);
    EXPECT_TRUE(name->text().endsWith(QStringLiteral("/Timeline-To Do.pdf")));
    name->setText(file);
    qobject_cast<QDialog*>(modal)->accept();
  });
  forms::Document days = DayPage(pages.metrics(), 3);
  days.title = "Timeline/To Do";
  EXPECT_EQ(pages.Print(days), forms::PrintResult::kDone);
  EXPECT_THAT(LinesOfPdf(file), ::testing::IsSupersetOf({"No time 1", "No time 2", "No time 3"}));
}

TEST(QtClipboard, RichTextGoesOutInEveryFormThatOtherProgramsLookFor) {
  QtClipboard clipboard;
  clipboard.SetText("Caf\xE9 \x80");
  EXPECT_EQ(QApplication::clipboard()->text(), QStringLiteral("Café €"));
  const std::string rtf = "{\\rtf1 Caf\\'e9 {\\b bold}}";
  clipboard.SetRichText(rtf);
  const QMimeData* copied = QApplication::clipboard()->mimeData();
  EXPECT_EQ(copied->data("text/rtf").toStdString(), rtf);
  EXPECT_EQ(copied->data("application/x-qt-windows-mime;value=\"Rich Text Format\"").toStdString(),
            rtf);
  EXPECT_EQ(copied->text(), QStringLiteral("Café bold"));
  EXPECT_TRUE(copied->html().contains(QStringLiteral("Café")));
  EXPECT_TRUE(copied->html().contains(QStringLiteral("bold")));
}

}  // namespace
}  // namespace tarnwell::desktop
