// Somebody who sits before the window.

#pragma once

#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QTimer>
#include <functional>
#include <vector>

#include "desktop/desktop.h"

namespace tarnwell::testing {

// Clicks, types and looks. What isn't as expected is noted, and the journey goes on as far as it
// can.
class Traveller {
 public:
  explicit Traveller(QString pictures);

  // The program that the gestures below go to.
  void Use(desktop::Desktop& desktop) { desktop_ = &desktop; }

  void ExpectTop(const char* form);
  void ExpectText(const char* control, const QString& text);
  void Click(const char* control);
  void Type(const QString& text);
  void Press(Qt::Key key);
  void ChooseFromMenu(const char* name);
  // Does `act`, which brings a box of that title, and answers it.
  void Answer(const QString& title, QMessageBox::StandardButton button,
              const std::function<void()>& act, const char* picture = nullptr);
  // Likewise for boxes that come one behind the other.
  struct Box {
    QString title;
    QMessageBox::StandardButton button;
  };
  void AnswerAll(const std::vector<Box>& boxes, const std::function<void()>& act,
                 const char* picture = nullptr);
  // Does `act`, which brings a box of that title with a line to type in, and fills it in.
  void FillIn(const QString& title, const QString& text, const std::function<void()>& act);
  // Does `act`, which brings that modal form, and `in_form` when it is there.
  void Meet(const char* form, const std::function<void()>& act,
            const std::function<void()>& in_form);
  // Saves what is on the screen as the next picture.
  void TakePicture(const char* name);
  // The same, a little later: for a screen that comes and goes while the program is busy.
  void TakePictureSoon(const char* name);

  const QStringList& notes() const { return notes_; }

 private:
  QWidget* Find(const char* control);
  void Note(const QString& text) { notes_ << text; }
  void DismissUnexpectedBox();

  QString pictures_;
  desktop::Desktop* desktop_ = nullptr;
  QStringList notes_;
  int pictures_taken_ = 0;
  bool expects_box_ = false;
  QTimer watch_;
};

}  // namespace tarnwell::testing
