#include <gtest/gtest.h>

#include "storage/structure.h"
#include "storage/tagged_value.h"

namespace tarnwell::storage {
namespace {

using namespace std::literals;

TEST(TaggedValueTest, EveryTypeHasItsTagAndPayload) {
  const std::pair<TaggedValue, std::string> cases[] = {
      {{}, "\0\0"s},
      {std::int16_t{-2}, "\x02\0\xFE\xFF"s},
      {std::int32_t{16711680}, "\x03\0\0\0\xFF\0"s},
      {11200.0f, "\x04\0\0\0\x2F\x46"s},
      {-0.5, "\x05\0\0\0\0\0\0\0\xE0\xBF"s},
      {SerialDate{45000.5}, "\x07\0\0\0\0\0\x10\xF9\xE5\x40"s},
      {"Def"s, "\x08\0\x03\0Def"s},
      {""s, "\x08\0\0\0"s},
  };
  for (const auto& [value, bytes] : cases) {
    EXPECT_EQ(PackTagged(value), bytes);
    EXPECT_EQ(UnpackTagged(bytes + "behind it"), value);
  }
}

TEST(TaggedValueTest, ReadsAsNumberOrAsTextWhateverItHolds) {
  EXPECT_EQ(NumberOf(std::int16_t{-2}), -2);
  EXPECT_EQ(NumberOf(SerialDate{45000.5}), 45000.5);
  EXPECT_EQ(NumberOf("15100 twips"s), 15100);
  EXPECT_EQ(NumberOf({}), 0);
  EXPECT_EQ(TextOf("Def"s), "Def");
  EXPECT_EQ(TextOf(2.0), "");
}

TEST(StructureTest, FieldsStandBehindEachOtherWithoutPadding) {
  const std::string bytes = StructureWriter()
                                .FixedText("9:00 AM", 10)
                                .FixedText("cut here", 3)
                                .Int16(-2)
                                .Int32(65536)
                                .Float(1.0f)
                                .Double(-0.5)
                                .Text("Yes")
                                .bytes();
  EXPECT_EQ(bytes,
            "9:00 AM   "
            "cut"
            "\xFE\xFF"
            "\0\0\x01\0"
            "\0\0\x80\x3F"
            "\0\0\0\0\0\0\xE0\xBF"
            "\x03\0Yes"s);
  StructureReader reader(bytes);
  EXPECT_EQ(reader.FixedText(10), "9:00 AM   ");
  EXPECT_EQ(reader.FixedText(3), "cut");
  EXPECT_EQ(reader.Int16(), -2);
  EXPECT_EQ(reader.Int32(), 65536);
  EXPECT_EQ(reader.Float(), 1.0f);
  EXPECT_EQ(reader.Double(), -0.5);
  EXPECT_EQ(reader.Text(), "Yes");
}

TEST(StructureTest, AFieldThatIsNotWholeIsEmptyAndSoIsAllBehindIt) {
  StructureReader torn_text("\x04\0Yes"sv);
  EXPECT_EQ(torn_text.Text(), "");
  EXPECT_EQ(torn_text.FixedText(1), "");
  StructureReader torn_number("\x01\x02\x03");
  EXPECT_EQ(torn_number.Int32(), 0);
  EXPECT_EQ(torn_number.Int16(), 0);
  StructureReader torn_width("abc");
  EXPECT_EQ(torn_width.FixedText(4), "");
  EXPECT_EQ(torn_width.FixedText(1), "");
  StructureReader not_finite("\0\0\xC0\x7F\0\0\0\0\0\0\xF0\xFF"sv);
  EXPECT_EQ(not_finite.Float(), 0);
  EXPECT_EQ(not_finite.Double(), 0);
}

}  // namespace
}  // namespace tarnwell::storage
