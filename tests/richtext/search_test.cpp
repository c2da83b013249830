#include "richtext/search.h"

#include <gtest/gtest.h>

#include "richtext/picture_file.h"
#include "richtext/sketch.h"

namespace tarnwell::richtext {
namespace {

std::string Found(const std::optional<Range>& place) {
  if (!place) return "none";
  return std::to_string(place->from.paragraph) + ":" + std::to_string(place->from.offset) + "-" +
         std::to_string(place->to.offset);
}

TEST(Searching, MindsCapitalsAndWholeWordsWhereAskedTo) {
  const struct {
    const char* sketch;
    Search search;
    Position from;
    const char* next;
    const char* previous;
    std::size_t all;
  } cases[] = {
      {"one two|One", {"one"}, {0, 1}, "1:0-3", "none", 2},
      {"one two|One", {"one"}, {1, 3}, "none", "1:0-3", 2},
      {"one two|One", {"one", false, true}, {0, 0}, "0:0-3", "none", 1},
      {"cat concat cat.", {"cat", true}, {0, 1}, "0:11-14", "none", 2},
      {"cat concat cat.", {"cat", true}, {0, 14}, "none", "0:11-14", 2},
      {"[a,cat;b,x]|cat", {"CAT"}, {1, 1}, "4:0-3", "none", 2},
      {"aaaa", {"aa"}, {0, 0}, "0:0-2", "none", 2},
      {"abc", {""}, {0, 0}, "none", "none", 0},
  };
  for (const auto& c : cases) {
    const RichDocument document = FromSketch(c.sketch);
    EXPECT_EQ(Found(FindNext(document, c.search, c.from)), c.next) << c.sketch;
    EXPECT_EQ(Found(FindPrevious(document, c.search, c.from)), c.previous) << c.sketch;
    EXPECT_EQ(FindAll(document, c.search).size(), c.all) << c.sketch;
  }
}

TEST(Searching, KnowsLettersBeyondEnglish) {
  RichDocument document = FromSketch("x");
  std::get<Paragraph>(document.blocks[0]).runs[0].content = "caf\u00E9s CAF\u00C9";
  EXPECT_EQ(Found(FindNext(document, {"CAF\u00C9", true}, {})), "0:7-12");
  EXPECT_EQ(Found(FindNext(document, {"caf\u00C9"}, {})), "0:0-5");
}

// The beginning of a PNG file of that many pixels, and of a JPEG file with a comment before them.
std::string Png(const std::string& sizes) {
  return "\x89PNG\r\n\x1a\n" + std::string("\0\0\0\rIHDR", 8) + sizes;
}

TEST(PictureFiles, ShrinkToTheRoomThatTheyHave) {
  const std::string small("\0\0\0\x64\0\0\0\x32", 8);  // 100 by 50
  const auto picture = PictureFromFile(Png(small), 3000, 3000);
  ASSERT_TRUE(picture);
  EXPECT_EQ(picture->width, 1500);
  EXPECT_EQ(picture->height, 750);
  const auto narrow = PictureFromFile(Png(small), 750, 3000);
  EXPECT_EQ(narrow->width, 750);
  EXPECT_EQ(narrow->height, 375);
  const auto jpeg = PictureFromFile(
      std::string("\xFF\xD8\xFF\xFE\0\4ab\xFF\xC0\0\x11\x08\0\x32\0\x64", 17), 3000, 3000);
  ASSERT_TRUE(jpeg);
  EXPECT_EQ(jpeg->kind, Picture::Kind::kJpeg);
  EXPECT_EQ(jpeg->width, 1500);
}

TEST(PictureFiles, OtherFilesAndHugePicturesAreNone) {
  for (const std::string& bytes :
       {std::string(), std::string("GIF89a"), Png(""), Png(std::string("\0\1\0\0\0\1\0\0", 8)),
        std::string("\xFF\xD8\xFF\xE0\xFF\xFF", 6), std::string("\xFF\xD8", 2)}) {
    EXPECT_FALSE(PictureFromFile(bytes, 3000, 3000)) << bytes.size();
  }
}

}  // namespace
}  // namespace tarnwell::richtext
