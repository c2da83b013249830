// Somebody who doesn't know what he does.

#pragma once

#include <QObject>
#include <QPoint>
#include <QPointer>
#include <QStringList>
#include <QWidget>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "desktop/desktop.h"
#include "walk/patience.h"

namespace tarnwell::testing {

struct WalkPlan {
  desktop::Folders folders;
  unsigned seed = 1;
  int steps = 10000;
  QString log;  // a file that gets each step before it is made; empty for none
};

struct WalkReport {
  int steps = 0;                      // made
  int starts = 0;                     // of the program, which is started again when it has ended
  std::map<std::string, int> visits;  // steps by the name of the form on top
  QStringList faults;                 // with the last steps before it; the walk ends at the first
};

// Makes random steps (clicks, keys, wheel, closed windows) in the real window until the plan's
// number is reached, and looks between any two whether all is sound:
//  - StackFaults finds nothing;
//  - a box has a title, a text and a way out, and says that something was saved only if a file was
//    written since the last step;
//  - the wheel changes no field, choice or mark.
// The same seed makes the same choices, as far as the program's own timing allows. A program that
// does nothing for a minute is ended with the log's last line telling why.
//
// Never leaves the folder: file dialogues are closed at once, and the export panel's place stays as
// it is.
class Walker : public QObject {
 public:
  explicit Walker(WalkPlan plan) : plan_(std::move(plan)), random_(plan_.seed) {}

  WalkReport Walk();

 private:
  void Run();
  void StepSoon();
  void Step();
  void Look();
  void LookAtBox(QWidget& box);
  void Fault(const QString& what);
  void Note(const QString& what);
  void Leave();

  void Gesture();
  void Click();
  void Wheel();
  void PressKey();
  void TypeText();
  void CloseWindow();

  int Random(int below);
  QWidget* Room() const;
  QWidget* RandomWidget();
  QPoint RandomPlace(QWidget& widget, QWidget& window);
  std::vector<std::string> Content();
  std::size_t FolderStamp() const;

  WalkPlan plan_;
  WalkReport report_;
  std::mt19937 random_;
  desktop::Desktop* desktop_ = nullptr;
  QStringList last_steps_;
  QPointer<QWidget> last_box_;
  std::size_t stamp_before_box_ = 0;
  bool leaving_ = false;
  Patience patience_;
};

}  // namespace tarnwell::testing
