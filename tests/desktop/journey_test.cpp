#include "tour/journey.h"

#include <gtest/gtest.h>

#include <QDate>
#include <QDir>
#include <QImage>

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

  const auto names = pictures.Names();
  EXPECT_EQ(names.size(), 44u);
  for (const std::string& name : names) {
    EXPECT_EQ(QImage(QString::fromStdString(pictures.path() + "/" + name)).size(), QSize(1024, 768))
        << name;
  }
}

}  // namespace
}  // namespace tarnwell::testing
