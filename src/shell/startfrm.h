#pragma once

#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/panel.h"

namespace tarnwell::shell {

// The start screen. It stays loaded under everything for the whole run.
class Startfrm : public forms::Form {
 public:
  explicit Startfrm(forms::Context& context);

  forms::Panel center{*this, "SSPanel1"};
  forms::Label welcome{center, "Label1", "Welcome to"};
  forms::Label product{center, "Label2", "Tarnwell", forms::LabelRole::kTitle};
  forms::Label purpose{center, "Label3", "Everything a small company keeps, in one place"};
  forms::Label today{center, "Label4", {}, forms::LabelRole::kHeading};
  forms::Label hidden_title{center, "Label8"};
  forms::Label data_place{center, "Label9", {}, forms::LabelRole::kNote};  // at the first start
  forms::Picture emblem{center, "Image1", "tarnwell.svg"};
  forms::Picture scene{center, "Image2", "start-scene.svg"};
  forms::Command begin{center, "Command2", "&Click to Begin Program"};
  forms::Command full_screen{center, "Command1(0)", "&Full Screen Display"};
  forms::Command smaller_screen{center, "Command1(1)", "&Smaller Screen Display"};
  forms::Command exit{center, "Command1(2)", "&Exit Program", {.cancel = true}};

  forms::Panel reminder{*this, "SSPanel3", "Daily Planner Reminder"};
  forms::Label reminder_text{reminder, "Label5",
                             "You have an appointment or activity listed for today."};
  forms::Label reminder_clock{reminder, "Label6"};
  forms::Command view_planner{reminder, "Command3", "&View"};
  forms::Command close_reminder{reminder, "Command4", "&Close"};

  void Load() override;
  void Activate() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  void Resized() override;

 private:
  void BuildMenus();
  void RunLoadRoutine();
  bool ScreenIsLargeEnough();
  forms::Size LeastSize();
  void TakeDisplay();
  void TakeBackground();
  void ShowReminder();
  void ShowClock();
  void ShowDisplayButtons();

  void FullScreen();
  void SmallerScreen();
  void ReturnToSmallerScreen();
  void DefaultScreenSize();
  void FollowWindowState();
  void RepeatLoadRoutine();

  void ChooseBackground();
  void Begin();
  void Exit();
  void KeepNormalSize();
  void KeepWindowSize();
  void TellDisplay(const storage::Outcome& written);

  forms::MenuItem* full_screen_entry_ = nullptr;
  forms::MenuItem* smaller_screen_entry_ = nullptr;
  bool loading_ = false;
};

}  // namespace tarnwell::shell
