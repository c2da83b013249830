#include "shell/startfrm.h"

#include <algorithm>

#include "forms/color.h"
#include "forms/disk_trouble.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "parts/backup_menu.h"
#include "parts/color_choice.h"
#include "parts/help_menu.h"
#include "settings/display_settings.h"
#include "shell/data_place.h"
#include "shell/reminder.h"
#include "text/date_mask.h"
#include "text/letters.h"

namespace tarnwell::shell {
namespace {

constexpr std::int16_t kSplashWasShown = 99;
constexpr std::int16_t kSmallerScreenDisplay = 9;
// Marks in ProgramVariables::Answer that the load routine runs again.
constexpr double kRepeatedLoad = -99;

constexpr forms::Size kLeastSize{settings::kDefaultWidth, settings::kDefaultHeight};
// No screen is larger, whatever a damaged settings file says.
constexpr double kMostTwips = 32000.0 * forms::kTwipsPerPixel;

int StoredOr(double stored, int least, int otherwise) {
  return stored >= least ? static_cast<int>(std::min(stored, kMostTwips)) : otherwise;
}

// The height that is asked for is deliberately larger than the least one that is accepted.
forms::Size NormalWindowSize(const settings::Display& stored) {
  return {StoredOr(stored.width, settings::kDefaultWidth, settings::kDefaultWidth),
          StoredOr(stored.height, settings::kLeastStoredHeight, settings::kDefaultHeight)};
}

}  // namespace

Startfrm::Startfrm(forms::Context& context)
    : Form(context, forms::form_names::kStartfrm, "Tarnwell") {
  hidden_title.SetVisible(false);
  data_place.SetVisible(false);
  reminder.SetVisible(false);

  emblem.SetSpokenName("Begin");
  scene.SetSpokenName("Begin");
  begin.on_click = [this] { Begin(); };
  for (forms::Label* label : {&product, &purpose, &hidden_title}) label->on_click = begin.on_click;
  for (forms::Picture* picture : {&emblem, &scene}) picture->on_click = begin.on_click;
  full_screen.on_click = [this] {
    KeepWindowSize();
    FullScreen();
  };
  smaller_screen.on_click = [this] { ReturnToSmallerScreen(); };
  exit.on_click = [this] { Exit(); };
  view_planner.on_click = [this] {
    reminder.SetVisible(false);
    context_.navigator.Show(forms::form_names::kZcalandar1);
  };
  close_reminder.on_click = [this] { reminder.SetVisible(false); };
  BuildMenus();
}

void Startfrm::BuildMenus() {
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  options.AddEntry("mOBC", "&Background Color", [this] { ChooseBackground(); });
  forms::MenuItem& display = options.AddSubmenu("mOP", "&Program Display");
  full_screen_entry_ = &display.AddEntry("mOPF", "&Full Screen Display", [this] { FullScreen(); });
  smaller_screen_entry_ =
      &display.AddEntry("mOPS", "&Smaller Screen Display", [this] { SmallerScreen(); });
  full_screen_entry_->SetCheckable();
  smaller_screen_entry_->SetCheckable();
  display.AddEntry("mOPDefault", "&Default Screen Size", [this] { DefaultScreenSize(); });
  options.on_open = display.on_open = [this] {
    const bool smaller = context_.variables.SmallerScreen == kSmallerScreenDisplay;
    full_screen_entry_->SetChecked(!smaller);
    smaller_screen_entry_->SetChecked(smaller);
  };
  options.AddEntry("mOBegin", "&Begin Program", [this] { Begin(); });
  options.AddEntry("mOE", "E&xit", [this] { Exit(); });
  parts::AddBackupEntries(menus().AddSubmenu("mU", "&Utilities"), context_,
                          {.set = parts::kDocumentsSet, .reload = [this] { RunLoadRoutine(); }});
  SetPopupMenu(options);
  SetHelpContext(parts::kProgramOverview);
  parts::AddHelpMenu(*this, context_);
}

void Startfrm::Load() {
  // Asked before anything is read, as that makes the files of the settings.
  if (settings::IsFirstStart(context_.folder)) {
    data_place.SetCaption(DataPlaceText(context_.folders.ProgramPath()));
    data_place.SetVisible(true);
  }
  RunLoadRoutine();
}

void Startfrm::RunLoadRoutine() {
  const forms::Hourglass hourglass(context_.window);
  loading_ = true;
  TakeDisplay();
  hidden_title.SetCaption(
      "Tarnwell\nAgreements, policies and forms\nPlanner, budget and people\n"
      "for a small company");
  if (!ScreenIsLargeEnough()) return;
  if (context_.variables.SmallerScreen == kSmallerScreenDisplay) context_.window.CenterOnScreen();
  if (context_.variables.SplashShown == 0) {
    context_.navigator.ShowModal(forms::form_names::kSplash1);
    context_.variables.SplashShown = kSplashWasShown;
  }
  TakeBackground();
  ShowDisplayButtons();
  today.SetCaption(text::FormatDate(
      context_.clock.Today(), context_.variables.day_first() ? "d mmmm yyyy" : "mmmm d, yyyy"));
  ShowReminder();
  loading_ = false;
  context_.loop.Yield();
}

void Startfrm::TakeDisplay() {
  const settings::Display stored = settings::ReadDisplay(context_.folder);
  context_.window.SetMinimumSize(LeastSize());
  if (!stored.smaller_screen) {
    context_.variables.SmallerScreen = 0;
    return context_.window.SetMaximized(true);
  }
  context_.variables.SmallerScreen = kSmallerScreenDisplay;
  context_.window.SetMaximized(false);
  context_.window.SetSize(NormalWindowSize(stored));
}

bool Startfrm::ScreenIsLargeEnough() {
  const forms::Size screen = context_.window.screen();
  if (screen.width >= kLeastSize.width && screen.height >= kLeastSize.height) return true;
  Message({"Wessoby Display Option",
           "Monitor Resolution Settings (Screen Area) and Program Size requirements are at least "
           "1024 by 768 or Higher.\n\nIf you do not set your screen resolution to this setting or "
           "higher this program will not function properly!",
           forms::Icon::kInformation});
  context_.navigator.EndProgram();
  return false;
}

// A monitor that is large enough may show everything enlarged, with less room for the window.
forms::Size Startfrm::LeastSize() {
  const forms::Size room = context_.window.room();
  return {std::min(kLeastSize.width, room.width), std::min(kLeastSize.height, room.height)};
}

void Startfrm::TakeBackground() {
  const storage::TaggedValue stored = settings::ReadStartBackground(context_.folder);
  forms::Color color = forms::kPureBlue;
  if (text::TrimRight(storage::TextOf(stored)) == "Def") {
    color = forms::kNeutral;
  } else if (!storage::IsEmpty(stored)) {
    color = forms::ColorFromNumber(storage::NumberOf(stored)).value_or(forms::kPureBlue);
  }
  context_.variables.StartBackColor = color;
  SetBackground(color);
}

void Startfrm::ShowDisplayButtons() {
  const bool smaller = context_.variables.SmallerScreen == kSmallerScreenDisplay;
  full_screen.SetVisible(smaller);
  smaller_screen.SetVisible(!smaller);
}

void Startfrm::ShowReminder() {
  const bool remind = HasAppointments(context_.folder, context_.clock.Today());
  if (remind) ShowClock();
  reminder.SetVisible(remind);
}

void Startfrm::ShowClock() {
  reminder_clock.SetCaption(text::FormatDate(context_.clock.Now(), "h:nn AM/PM"));
}

void Startfrm::Activate() {
  // The splash screen has gone, but the load routine that showed it is still under way.
  if (loading_) return;
  if (reminder.visible()) ShowClock();
  FollowWindowState();
  if (const auto* color = std::get_if<std::int32_t>(&context_.variables.StartBackColor)) {
    SetBackground(*color);
  }
  context_.variables.Answer = 0;
  center.SetVisible(true);
  begin.Focus();
}

void Startfrm::Resized() {
  if (loading_) return;
  const forms::Size size = context_.window.size();
  const forms::Size least = LeastSize();
  if (size.width < least.width) {
    context_.window.SetSize({least.width, size.height});
  } else if (size.height < least.height) {
    context_.window.SetSize({size.width, least.height});
  } else {
    FollowWindowState();
  }
}

// A click on the window's own maximise or restore button counts as a change of the setting.
void Startfrm::FollowWindowState() {
  const bool smaller = context_.variables.SmallerScreen == kSmallerScreenDisplay;
  if (!context_.window.maximized() && !smaller) SmallerScreen();
  if (context_.window.maximized() && smaller) FullScreen();
}

void Startfrm::FullScreen() {
  if (full_screen_entry_->checked()) return;
  smaller_screen_entry_->SetChecked(false);
  full_screen_entry_->SetChecked(true);
  TellDisplay(settings::WriteSmallerScreen(context_.folder, false));
  RepeatLoadRoutine();
}

void Startfrm::SmallerScreen() {
  if (smaller_screen_entry_->checked()) return;
  smaller_screen_entry_->SetChecked(true);
  full_screen_entry_->SetChecked(false);
  loading_ = true;
  context_.window.SetMaximized(false);
  KeepWindowSize();
  RepeatLoadRoutine();
}

void Startfrm::ReturnToSmallerScreen() {
  loading_ = true;
  context_.window.SetMaximized(false);
  context_.window.SetSize(NormalWindowSize(settings::ReadDisplay(context_.folder)));
  SmallerScreen();
  loading_ = false;
}

void Startfrm::DefaultScreenSize() {
  full_screen_entry_->SetChecked(false);
  smaller_screen_entry_->SetChecked(false);
  const auto smaller = settings::WriteSmallerScreen(context_.folder, true);
  TellDisplay(smaller ? settings::WriteDefaultWindowSize(context_.folder) : smaller);
  RunLoadRoutine();
}

void Startfrm::RepeatLoadRoutine() {
  context_.variables.Answer = kRepeatedLoad;
  RunLoadRoutine();
  context_.variables.Answer = 0;
  center.SetVisible(true);
  begin.Focus();
}

void Startfrm::ChooseBackground() {
  const forms::Answer answer = parts::AskForColor(context_, "Background Color");
  if (answer == forms::Answer::kCancel) return;
  storage::TaggedValue stored = std::string("Def");
  forms::Color color = forms::kNeutral;
  if (answer == forms::Answer::kYes) {
    const auto chosen = context_.dialogs.ChooseColor(background().value_or(forms::kNeutral));
    if (!chosen) return;
    color = *chosen;
    stored = color;
  }
  context_.variables.StartBackColor = color;
  SetBackground(color);
  const auto written = settings::WriteStartBackground(context_.folder, stored);
  if (!written) forms::TellHoldsForNow(context_, "The background", written.fault());
}

void Startfrm::Begin() {
  KeepNormalSize();
  context_.navigator.Show(forms::form_names::kWorkArea1);
}

bool Startfrm::QueryUnload(forms::UnloadCause) {
  Exit();
  return false;
}

void Startfrm::Exit() {
  KeepNormalSize();
  context_.loop.Yield();
  context_.navigator.EndProgram();
}

// A window that is left while it is normal-sized comes back in the smaller-screen display.
void Startfrm::KeepNormalSize() {
  if (!context_.window.maximized()) KeepWindowSize();
}

// What is stored already isn't written again: a disk that takes nothing is told of only when it
// matters.
void Startfrm::KeepWindowSize() {
  const forms::Size size = context_.window.size();
  const settings::Display stored = settings::ReadDisplay(context_.folder);
  if (stored.smaller_screen && stored.height == size.height && stored.width == size.width) return;
  const auto smaller = settings::WriteSmallerScreen(context_.folder, true);
  TellDisplay(smaller ? settings::WriteWindowSize(context_.folder, static_cast<float>(size.height),
                                                  static_cast<float>(size.width))
                      : smaller);
}

void Startfrm::TellDisplay(const storage::Outcome& written) {
  if (written) return;
  forms::TellRefused(context_, "The size of the window", written.fault(),
                     "The next start takes the one before.");
}

}  // namespace tarnwell::shell
