#include "tour/journey.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QDir>
#include <QImage>
#include <QLocale>

#include "support/temporary_folder.h"

namespace tarnwell::testing {
namespace {

// Where today's day stands in its year file: 900 bytes for each day, numbered by the day's digits
// before the month's, and from October on by counts of their own.
std::size_t OffsetOf(const QDate& today) {
  const int counted_from[] = {320, 360, 400};
  const int record = today.month() < 10 ? today.day() * 10 + today.month()
                                        : counted_from[today.month() - 10] + today.day();
  return static_cast<std::size_t>(record - 1) * 900;
}

// What the journey leaves of the hub and the calendar sheet, byte for byte.
void ExpectLists(const TemporaryFolder& user, const QDate& today) {
  const auto format = [&](const char* mask) {
    return QLocale::c().toString(today, QLatin1String(mask)).toStdString();
  };
  const auto blanks = [](int lines) {
    std::string all;
    for (int i = 0; i < lines; ++i) all += "\"\"\r\n";
    return all;
  };
  const std::string report = user.Read("Ann Lee - 03-09-2026.Fl7");
  EXPECT_TRUE(report.starts_with("{\\rtf1"));
  const std::string copy = " " + format("MMM-dd-yy") + ".Fla";
  const std::pair<std::string, std::string> files[] = {
      {"TODOActv.FIL", "\"Pay rent\"\r\n" + blanks(2499)},
      {"TODONAME.FIL", "\"Pay rent\"\r\n"},
      {"Location.Fil", "\" \"\r\n"},
      {"EvalHold.Fl7", "\"Ann Lee / 03/09/2026\"\r\n"},
      {"ArchiveHold.Fla", "\"Ann Lee / 03/09/2026" + copy + "\"\r\n"},
      {"Ann Lee - 03-09-2026" + copy, report},
      {"RAList.Fl2", std::string("\x0b\0Fire Safety", 13)},
      {format("yyyyMM") + ".Fil",
       blanks((today.day() - 1) * 10) + "\"Dentist\"\r\n" + blanks(309 - (today.day() - 1) * 10) +
           "\"Times New Roman\"\r\n\"10\"\r\n\"No\"\r\n\"No\"\r\n\"No\"\r\n\"No\"\r\n\"0\"\r\n"},
  };
  for (const auto& [name, bytes] : files) EXPECT_EQ(user.Read(name), bytes) << name;
}

TEST(Journey, AnAppointmentIsWrittenSavedAndComesBackAsAReminder) {
  const TemporaryFolder user;
  const TemporaryFolder pictures;
  const QDate today = QDate::currentDate();
  const QStringList notes = TravelJourney(
      {{QString::fromStdString(user.path()), QStringLiteral(TARNWELL_SOURCE_DIR "/data")},
       QString::fromStdString(pictures.path())});
  if (today != QDate::currentDate()) GTEST_SKIP() << "the journey went over midnight";
  EXPECT_TRUE(notes.isEmpty()) << notes.join('\n').toStdString();

  const std::string bytes = user.Read(" " + std::to_string(today.year()) + ".Cal");
  const std::string expected = "9:30 AM   " + std::string(13 * 10, ' ') + "Dentist" +
                               std::string(43, ' ') + std::string(13 * 50, ' ') + "Full      ";
  ASSERT_GE(bytes.size(), OffsetOf(today) + expected.size());
  EXPECT_EQ(bytes.substr(OffsetOf(today), expected.size()), expected);

  ExpectLists(user, today);

  const auto names = pictures.Names();
  EXPECT_GE(names.size(), 63u);
  for (const std::string& name : names) {
    EXPECT_EQ(QImage(QString::fromStdString(pictures.path() + "/" + name)).size(), QSize(1024, 768))
        << name;
  }
}

}  // namespace
}  // namespace tarnwell::testing
