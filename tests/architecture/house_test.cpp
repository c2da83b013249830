#include "architecture/house.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace tarnwell::architecture {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;

TEST(HouseTest, EveryArrowInOurSourcePointsDown) {
  const auto files = ReadTree(TARNWELL_SOURCE_DIR "/src");
  EXPECT_THAT(files, SizeIs(testing::Gt(20)));
  EXPECT_THAT(Breaches(files), IsEmpty());
}

TEST(HouseTest, WhatIsAllowedIsLeftInPeace) {
  EXPECT_THAT(
      Breaches({
          {"text/date.cpp", "#include \"text/date.h\"\n#include <string>\n#include <cstdint>\n"},
          {"storage/posix_file.cpp", "#include <fcntl.h>\n#include <sys/stat.h>\n"},
          {"text/system_code_pages.cpp", "#include <iconv.h>\n"},
          {"shell/reminder.cpp", "#include \"planner/day_store.h\"\n"},
          {"shell/display.cpp", "SetSmaller();  // lies in GColor3.Fil\n"},
          {"storage/file_names.h", "inline constexpr auto kGColor3 = \"GColor3.Fil\";\n"},
          {"settings/display.cpp", "storage::RecordFile file(folder, storage::kGColor3, 20);\n"},
          {"desktop/views/start.cpp", "#include <QLabel>\n#include \"shell/startfrm.h\"\n"},
      }),
      IsEmpty());
}

TEST(HouseTest, EachKindOfBreachIsFoundWithItsLine) {
  const struct {
    SourceFile file;
    const char* breach;
  } cases[] = {
      {{"text/date.cpp", "\n#include \"storage/record_file.h\"\n"},
       "text/date.cpp:2: text may not use storage/record_file.h"},
      {{"forms/form.h", "#include \"shell/startfrm.h\""}, "forms may not use shell/startfrm.h"},
      {{"leave/grid.cpp", "#include \"budget/grid.h\""}, "leave may not use budget/grid.h"},
      {{"shell/startfrm.cpp", "#include \"planner/zcalandar1.h\""}, "shell may not use planner/z"},
      {{"planner/a.cpp", "#include \"shell/hinfo1.h\""}, "planner may not use shell/hinfo1.h"},
      {{"forms/form.cpp", "#include \"form.h\""}, "\"form.h\" is in no room"},
      {{"planner/a.cpp", "  #  include <QDate>"}, "only the desktop may include Qt: <QDate>"},
      {{"planner/a.cpp", "#include <QtCore/qdate.h>"}, "only the desktop may include Qt"},
      {{"planner/a.cpp", "#include <boost/regex.hpp>"}, "standard library alone"},
      {{"planner/a.cpp", "#include <unistd.h>"}, "standard library alone"},
      {{"text/date.cpp", "#include <iconv.h>"}, "standard library alone"},
      {{"text/system_code_pages.cpp", "#include <unistd.h>"}, "standard library alone"},
      {{"planner/a.cpp", "RecordFile file(folder, storage::kGColor3, 20);"}, "only the settings"},
      {{"utilities/a.cpp", ""}, "utilities/a.cpp:1: this folder has no floor"},
  };
  for (const auto& [file, breach] : cases) {
    EXPECT_THAT(Breaches({file}), ElementsAre(HasSubstr(breach)));
  }
}

}  // namespace
}  // namespace tarnwell::architecture
