// Holds the reader and the writer to the worked example of docs/formats/rich-text.md.

#include <gtest/gtest.h>

#include "richtext/plain_text.h"
#include "richtext/rich_text_files.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::richtext {
namespace {

// The bytes between the page's next "```rtf" and "```", from `place` on, which moves behind them.
std::string TakeExample(const std::string& page, std::size_t& place) {
  constexpr std::string_view kBegin = "```rtf\n";
  const std::size_t found = page.find(kBegin, place);
  if (found == std::string::npos) return {};
  const std::size_t begin = found + kBegin.size();
  place = page.find("```", begin);
  return page.substr(begin, place - begin);
}

TEST(RichTextPage, TheExampleReadsAndIsWrittenAsThePageSays) {
  const std::string page = FileBytes(TARNWELL_SOURCE_DIR "/docs/formats/rich-text.md");
  std::size_t place = 0;
  const std::string stored = TakeExample(page, place);
  const std::string written = TakeExample(page, place);
  ASSERT_FALSE(stored.empty() || written.empty());

  const RichDocument document = ReadRichText(stored);
  EXPECT_EQ(PlainText(document), "Leave Policy\nDays per year – by Čapek\nStaff\t15");
  EXPECT_EQ(document.page.left_margin, 1440);
  EXPECT_EQ(ParagraphAt(document, 0).format.alignment, Alignment::kCenter);
  EXPECT_EQ(FormatOf(ParagraphAt(document, 0), "Leave Policy").font, "Arial");
  const Table& table = std::get<Table>(document.blocks.at(2));
  const CharacterFormat number = FormatOf(table.rows.at(0).cells.at(1).paragraphs.at(0), "15");
  EXPECT_EQ(number.color, (Color{0, 0, 128}));

  EXPECT_EQ(WriteRichText(document), written);
  EXPECT_EQ(ReadRichText(written), document);
  EXPECT_EQ(SaveRichText(document, StoredFormOf(stored, ReadRichText(stored))), stored);
}

}  // namespace
}  // namespace tarnwell::richtext
