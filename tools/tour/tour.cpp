// tarnwell-tour FOLDER PICTURES: the journey on the display at hand, with FOLDER for the user's
// files. Prints what went otherwise; exits with 0 when all went well.

#include <QTextStream>

#include "desktop/application.h"
#include "tour/journey.h"

int main(int argc, char* argv[]) {
  QApplication application(argc, argv);
  if (argc != 3) {
    QTextStream(stderr) << "usage: tarnwell-tour FOLDER PICTURES\n";
    return 2;
  }
  tarnwell::desktop::Prepare(application);
  const QString supplied =
      tarnwell::desktop::ChooseFolders(QApplication::applicationDirPath(), argv[1]).supplied;
  const QStringList notes = tarnwell::testing::TravelJourney({{argv[1], supplied}, argv[2]});
  for (const QString& note : notes) QTextStream(stderr) << note << "\n";
  return notes.isEmpty() ? 0 : 1;
}
