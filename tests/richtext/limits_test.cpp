#include "richtext/limits.h"

#include <gtest/gtest.h>

#include "richtext/fragment.h"
#include "richtext/paragraphs.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_reader.h"
#include "richtext/typed_text.h"

namespace tarnwell::richtext {
namespace {

std::string Times(std::size_t count, std::string_view piece) {
  std::string all;
  for (std::size_t i = 0; i < count; ++i) all += piece;
  return all;
}

std::string Rtf(const std::string& body) { return "{\\rtf1\\ansi\\pard " + body + "}"; }

std::size_t CountRuns(const RichDocument& document) {
  std::size_t count = 0;
  ForEachParagraph(document, [&](const Paragraph& paragraph) { count += paragraph.runs.size(); });
  return count;
}

std::string Cells(int count) {
  std::string row = "\\trowd";
  for (int i = 1; i <= count; ++i) row += "\\cellx" + std::to_string(40 * i);
  return row + "\\pard\\intbl ";
}

// Each beside its like that has just enough room.
TEST(Limits, ALongerDocumentIsReadInPart) {
  const struct {
    const char* what;
    std::string bytes;
    bool is_part;
  } cases[] = {
      {"paragraphs", Rtf(Times(kMostParagraphs, "\\par")), false},
      {"more paragraphs", Rtf(Times(kMostParagraphs + 1, "\\par")), true},
      {"rows", Rtf(Cells(1) + Times(kMostParagraphs + 1, "\\intbl x\\cell\\row ")), true},
      {"cells", Rtf(Times(kMostParagraphs / 250 + 1, Cells(250) + Times(250, "\\cell") + "\\row")),
       true},
      {"cells that hold nothing",
       Rtf(Cells(250) + Times(kMostParagraphs / 250 + 1, "\\intbl x\\cell\\row")), true},
      {"a long row", Rtf(Cells(2) + "x\\cell " + Times(kLongestRow - 2, "\\par") + "\\cell\\row"),
       false},
      {"a longer row", Rtf(Cells(2) + "x\\cell " + Times(kLongestRow, "\\par") + "\\cell\\row"),
       true},
      {"runs", Rtf(Times(kMostRuns / 20 - 1, Times(10, "\\b a\\b0 b") + "\\par ")), false},
      {"more runs", Rtf(Times(kMostRuns / 20 + 1, Times(10, "\\b a\\b0 b") + "\\par ")), true},
      {"a paragraph's runs", Rtf(Times(kMostRunsOfParagraph / 2, "\\b a\\b0 b")), false},
      {"more of them", Rtf(Times(kMostRunsOfParagraph / 2, "\\b a\\b0 b") + "{\\*\\bkmkstart x}"),
       true},
      {"a paragraph", Rtf(std::string(kLongestParagraph, 'x')), false},
      {"a longer one", Rtf(std::string(kLongestParagraph + 1, 'x')), true},
      {"text", Rtf(Times(kMostText / 10'000 + 1, std::string(10'000, 'x') + "\\par ")), true},
      {"words that say nothing", Rtf(Times(kMostTokens, "\\b")), true},
      {"long formats", Rtf(Times(100, "\\brdrs") + Times(80'000, "\\par")), true},
      {"plain line ends", std::string(kMostParagraphs, '\n'), false},
      {"more line ends", std::string(kMostParagraphs + 1, '\n'), true},
      {"a plain line", std::string(kLongestParagraph + 1, 'x'), true},
      {"plain text", Times(kMostText / 10'000 + 1, std::string(9'999, 'x') + "\n"), true},
  };
  for (const auto& c : cases) {
    const RichDocument document = ReadRichText(c.bytes);
    EXPECT_EQ(document.is_part, c.is_part) << c.what;
    EXPECT_LE(CountParagraphs(document), static_cast<int>(kMostParagraphs) + 256) << c.what;
    EXPECT_LE(CountRuns(document), kMostRuns + 1) << c.what;
    EXPECT_LE(PlainText(document).size(), kMostText + kMostParagraphs) << c.what;
  }
}

TEST(Limits, TheBeginningIsShownUpToAWholeCharacter) {
  const std::string rtf = Rtf("a" + Times(kLongestParagraph / 2, "\\u233 ?") + "\\par b");
  const RichDocument document = ReadRichText(rtf);
  EXPECT_TRUE(document.is_part);
  EXPECT_EQ(PlainText(document), "a" + Times(kLongestParagraph / 2 - 1, "é"));
}

TEST(Limits, APastedParagraphIsPartedAndLosesNothing) {
  const std::string word = "a" + Times(kLongestParagraph, "é");
  RichDocument fragment;
  fragment.blocks.emplace_back().emplace<Paragraph>().runs = {{{}, word, kNoField}};
  PartLong(fragment);
  for (std::string text : {PlainText(fragment), TypedText(word)}) {
    for (std::string_view rest = text; !rest.empty();) {
      const std::size_t end = std::min(rest.find('\n'), rest.size());
      EXPECT_LE(end, kLongestPasted + 1);
      rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    std::erase(text, '\n');
    EXPECT_EQ(text, word);
  }
}

}  // namespace
}  // namespace tarnwell::richtext
