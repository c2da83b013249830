// tarnwell-walk SEED STEPS [FOLDER]: a random walk through the whole program. Without FOLDER it
// walks in one of its own, which goes afterwards; a FOLDER is kept, and the steps lie in
// FOLDER.log. Prints what it saw; exits with 0 when nothing was wrong. On a machine without a
// display start it with QT_QPA_PLATFORM=offscreen.

#include <QDir>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <QTextStream>

#include "desktop/application.h"
#include "walk/walker.h"

namespace {

constexpr int kDefaultSteps = 10000;

}  // namespace

int main(int argc, char* argv[]) {
  // Nothing of the user's own comes into reach, by "~" in a dialogue or as the place to print to.
  QTemporaryDir home;
  qputenv("HOME", home.path().toUtf8());
  const QString start = QDir::currentPath();
  QDir::setCurrent(home.path());
  QApplication application(argc, argv);
  if (argc < 2 || argc > 4) {
    QTextStream(stderr) << "usage: tarnwell-walk SEED [STEPS [FOLDER]]\n";
    return 2;
  }
  tarnwell::desktop::Prepare(application);
  const QString folder = argc > 3 ? QDir(start).absoluteFilePath(argv[3]) : home.filePath("data");
  QDir().mkpath(folder);
  tarnwell::testing::WalkPlan plan;
  plan.folders = tarnwell::desktop::ChooseFolders(QApplication::applicationDirPath(), folder);
  plan.folders.user = folder;
  plan.seed = QByteArray(argv[1]).toUInt();
  plan.steps = argc > 2 ? QByteArray(argv[2]).toInt() : kDefaultSteps;
  plan.log = folder + QStringLiteral(".log");

  QTextStream out(stdout);
  out << "seed " << plan.seed << ", " << plan.steps << " steps\n" << Qt::flush;
  QElapsedTimer timer;
  timer.start();
  const auto report = tarnwell::testing::Walker(plan).Walk();
  out << report.steps << " steps in " << timer.elapsed() / 1000 << " s, " << report.starts
      << " starts\n";
  for (const auto& [form, steps] : report.visits) {
    out << "  " << QString::fromStdString(form) << " " << steps << "\n";
  }
  for (const QString& fault : report.faults) out << "FAULT: " << fault << "\n";
  return report.faults.isEmpty() ? 0 : 1;
}
