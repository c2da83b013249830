// Formatted documents on paper.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QFile>
#include <QStandardPaths>

#include "desktop/pdf_lines.h"
#include "desktop/services/page_output.h"
#include "desktop/widgets/page_fonts.h"
#include "print/rich_text.h"
#include "richtext/rich_text_reader.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsSupersetOf;

forms::Document PagesOf(const richtext::RichDocument& document, forms::TextMetrics& metrics) {
  print::PageEngine engine(metrics);
  engine.Start({.margins = {1440, 1440, 1440, 1440}}, {});
  print::AddRichText(engine, document);
  return engine.document();
}

forms::Document EveryLook(forms::TextMetrics& metrics) {
  QFile file(QStringLiteral(TARNWELL_TEST_DATA "/rtf/every-look.rtf"));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly));
  return PagesOf(richtext::ReadRichText(file.readAll().toStdString()), metrics);
}

// Of what is darker than paper on a page.
QRect InkOf(const QImage& image) {
  QRect ink;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) ink |= QRect(x, y, 1, 1);
    }
  }
  return ink;
}

std::string Joined(const std::vector<std::string>& lines) {
  std::string all;
  for (const std::string& line : lines) all += line + ' ';
  return all;
}

TEST(RichPages, APdfHoldsTheTextOfEveryFormatAndScriptInReadingOrder) {
  if (QStandardPaths::findExecutable("pdftotext").isEmpty()) GTEST_SKIP() << "no pdftotext";
  const testing::TemporaryFolder folder;
  const QString file = QString::fromStdString(folder.path()) + "/document.pdf";
  PageMetrics metrics;
  const forms::Document document = EveryLook(metrics);
  EXPECT_EQ(document.pages.size(), 4u);
  ASSERT_TRUE(WritePdf(document, file));
  const auto lines = testing::LinesOfPdf(file);
  EXPECT_THAT(
      lines,
      IsSupersetOf({"Company Equipment Policy", "Café €5, Łódź, Αθήνα, Москва, “quoted” – dash.",
                    "right aligned", "left at 1.5\" right 12.50", "a centred on three inches",
                    "Signature: Date:", "1. First number", "Item Count Price",
                    "Laptop computer with a bag, 2 1,999.00", "Picture: , in the line.",
                    "example.com"}));
  // Wherever its lines end.
  EXPECT_THAT(Joined(lines), HasSubstr("was lent on the last day of work. The employee agrees to "
                                       "follow the company policy on the use"));
  EXPECT_EQ(lines.back(), "Fourth page");
}

TEST(RichPages, ACopiedPageIsReadLineByLine) {
  PageMetrics metrics;
  const forms::Document document = PagesOf(
      richtext::ReadRichText("{\\rtf1 Plain {\\b bold {\\fs40 large}} end\\par\\tx3000 a\\tab b}"),
      metrics);
  EXPECT_EQ(TextOf(document.pages.at(0)), QStringLiteral("Plain bold large end\na\tb"));
}

// What was measured for any script is what is painted: the right margin is straight.
TEST(RichPages, JustifiedTextEndsAtTheMargin) {
  std::string words;
  for (int i = 0; i < 14; ++i) words += "Tovariat {\\b bold} \\u1052?\\u1086?\\u1089? ";
  PageMetrics metrics;
  const auto document =
      PagesOf(richtext::ReadRichText("{\\rtf1\\fs28\\qj " + words + "\\par}"), metrics);
  const QImage image = ImageOf(document, 0);
  constexpr double kPixelsPerTwip = 150.0 / 1440;
  const QRect ink = InkOf(image);
  EXPECT_NEAR(ink.left(), 1440 * kPixelsPerTwip, 3);
  EXPECT_NEAR(ink.right(), (12240 - 1440) * kPixelsPerTwip, 3);
}

TEST(RichPages, APictureOfADocumentIsPaintedInItsColoursAndABrokenOneIsCrossedOut) {
  PageMetrics metrics;
  forms::Document document = EveryLook(metrics);
  const auto is_image = [](const forms::Mark& mark) {
    return std::holds_alternative<forms::PlacedImage>(mark);
  };
  forms::Page& page = document.pages.at(0);
  const auto found = std::ranges::find_if(page, is_image);
  ASSERT_NE(found, page.end());
  auto& place = std::get<forms::PlacedImage>(*found);
  const QPointF middle_of_a_tile(place.x + place.width * 0.44, place.y + place.height * 0.12);
  const QPoint pixel = (middle_of_a_tile * 150 / 1440).toPoint();
  EXPECT_EQ(QColor(ImageOf(document, 0).pixel(pixel)), QColor(31, 95, 191));
  place.bytes = std::make_shared<const std::string>(place.bytes->substr(0, 60));
  const QPointF middle(place.x + place.width * 0.5, place.y + place.height * 0.5);
  const QImage broken = ImageOf(document, 0);
  EXPECT_EQ(QColor(broken.pixel((middle * 150 / 1440).toPoint())), QColor(0x8A, 0x92, 0x9A));
  EXPECT_EQ(QColor(broken.pixel(pixel)), QColor(0xF4, 0xF5, 0xF6));
}

TEST(RichPages, APdfHasTheTitleThePaperAndTheFootersOfEachSection) {
  if (QStandardPaths::findExecutable("pdfinfo").isEmpty()) GTEST_SKIP() << "no pdfinfo";
  const testing::TemporaryFolder folder;
  const QString file = QString::fromStdString(folder.path()) + "/document.pdf";
  PageMetrics metrics;
  print::PageEngine engine(metrics);
  engine.Start({}, {});
  engine.SetTitle("Caf\xE9 rules");
  print::AddRichPages(
      engine, richtext::ReadRichText(
                  "{\\rtf1\\paperw11906\\paperh16838{\\footer Page \\chpgn\\par}\\pard one\\sect"
                  "\\sectd\\lndscpsxn\\pgwsxn15840\\pghsxn12240 two\\par}"));
  ASSERT_TRUE(WritePdf(engine.document(), file));
  EXPECT_THAT(
      testing::LinesOf(QStringLiteral("pdfinfo"), {"-enc", "UTF-8", "-f", "1", "-l", "2", file}),
      IsSupersetOf({"Title: Café rules", "Page 1 size: 595 x 842 pts (A4)",
                    "Page 2 size: 792 x 612 pts (letter)"}));
  EXPECT_THAT(testing::LinesOfPdf(file), ElementsAre("one", "Page 1", HasSubstr("two"), "Page 2"));
}

}  // namespace
}  // namespace tarnwell::desktop
