// The one window of the program.

#pragma once

#include <QLabel>
#include <QMainWindow>
#include <QStackedWidget>
#include <QTimer>
#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "desktop/form_page.h"
#include "desktop/window_keys.h"
#include "forms/navigator.h"
#include "forms/services.h"

namespace tarnwell::desktop {

// How a form comes into the window: its view, and for a modal form whether it has a frame.
struct FormLook {
  QWidget* view = nullptr;
  bool frameless = false;
};

// Shows the navigator's stack: forms lie above each other in the window, and the top one lends its
// menus, title and status. Modal forms are dialogs over it. Closing the window asks the top form.
//
// Pages of unloaded forms go when no handler can be on the stack any more, and the forms after
// them.
class MainWindow : public QMainWindow, public forms::NavigatorObserver, public forms::Window {
 public:
  using MakeLook = std::function<FormLook(forms::Form&)>;

  MainWindow(MakeLook make_look, forms::HelpViewer& help);
  ~MainWindow() override;

  // Shows what `navigator` does from now on. It may go before the window, once it has ended.
  void Follow(forms::Navigator& navigator);
  // Comes to the front, from under other programs or from the task bar.
  void ComeForward();
  // The page of a loaded form, or nullptr.
  FormPage* PageOf(const forms::Form& form) const;
  // The page of the form on top, or nullptr.
  FormPage* TopPage() const;
  forms::HelpViewer& help() { return help_; }
  // The desktop ends the session. Each screen with something that isn't on the disk asks; false
  // where something is still unsaved, because a person wants to stay or nobody may be asked.
  bool EndSession(bool may_ask);

  void FormLoaded(forms::Form& form, bool modal) override;
  void FormRaised(forms::Form& form) override;
  void FormUnloaded(forms::Form& form) override;
  void ProgramEnded() override;

  forms::Size screen() override;
  forms::Size room() override;
  forms::Size size() override;
  void SetSize(forms::Size size) override;
  void SetMinimumSize(forms::Size size) override;
  bool maximized() override { return isMaximized(); }
  void SetMaximized(bool maximized) override;
  void CenterOnScreen() override;
  void SetHourglass(bool on) override;
  void Beep() override;

 protected:
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void changeEvent(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void FollowSurroundings();
  bool HasUnsaved() const;
  void ComeBackOnScreen();
  void ShowChrome(FormPage& page);
  void CloseTop();
  void AnnounceSize();
  QSize Frame() const;
  void MeetFrame();
  void FillScreenUnmanaged();
  void FreeRetired();

  MakeLook make_look_;
  forms::HelpViewer& help_;
  forms::Navigator* navigator_ = nullptr;
  QStackedWidget* stack_;
  QLabel* status_;
  std::vector<FormPage*> pages_;
  std::vector<std::unique_ptr<QWidget>> retired_;  // pages and dialogs of unloaded forms
  QTimer sweep_;
  QTimer size_announcement_;
  QTimer meet_frame_{this};
  QSize least_size_;   // pixels, with the frame
  QSize wanted_size_;  // likewise; empty once the window has it
  QSize frame_;        // what frame and title bar added to the window before it was maximised
  bool hourglass_ = false;
  WindowKeys keys_{*this};
};

}  // namespace tarnwell::desktop
