// tarnwell-tour FOLDER PICTURES: the journey on the display at hand, or on a screen in memory where
// the platform is "offscreen", with FOLDER for the user's files. Both folders are made where they
// are missing. FOLDER has to be empty: files of before would bring other boxes. Prints what went
// otherwise; exits with 0 when all went well.

#include <QDir>
#include <QTextStream>

#include "desktop/application.h"
#include "tour/journey.h"

int main(int argc, char* argv[]) {
  // The plain "offscreen" has a screen that the program refuses as too small.
  if (qEnvironmentVariable("QT_QPA_PLATFORM") == QLatin1String("offscreen")) {
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" TARNWELL_LEAST_SCREEN);
  }
  QApplication application(argc, argv);
  if (argc != 3) {
    QTextStream(stderr) << "usage: tarnwell-tour FOLDER PICTURES\n";
    return 2;
  }
  for (const char* folder : {argv[1], argv[2]}) QDir().mkpath(QFile::decodeName(folder));
  if (!QDir(QFile::decodeName(argv[1])).isEmpty()) {
    QTextStream(stderr) << "tarnwell-tour: " << argv[1] << " isn't empty\n";
    return 2;
  }
  tarnwell::desktop::Prepare(application);
  const QString supplied =
      tarnwell::desktop::ChooseFolders(QApplication::applicationDirPath(), argv[1]).supplied;
  const QStringList notes = tarnwell::testing::TravelJourney({{argv[1], supplied}, argv[2]});
  for (const QString& note : notes) QTextStream(stderr) << note << "\n";
  return notes.isEmpty() ? 0 : 1;
}
