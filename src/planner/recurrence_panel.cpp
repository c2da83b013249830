#include "planner/recurrence_panel.h"

#include "planner/day_store.h"
#include "planner/recurrence_messages.h"
#include "settings/planner_settings.h"
#include "text/letters.h"

namespace tarnwell::planner {
namespace {

// The days on the disk. A year's file is open for one record at a time only.
class FolderDayBook : public DayBook {
 public:
  explicit FolderDayBook(storage::ProgramFolder& folder) : folder_(folder) {}

  std::optional<DayRows> ReadDay(text::Date date) override {
    auto day = planner::ReadDay(folder_, date);
    if (!day) return std::nullopt;
    return std::move(day->rows);
  }
  bool WriteDay(text::Date date, const DayRows& rows) override {
    return planner::WriteDay(folder_, date, rows);
  }

 private:
  storage::ProgramFolder& folder_;
};

forms::MessageBox BoxOf(const RecurrenceMessage& message, forms::Icon icon,
                        forms::Buttons buttons = forms::Buttons::kOk) {
  return {message.title, message.text, icon, buttons};
}

}  // namespace

RecurrencePanel::RecurrencePanel(forms::Form& form, forms::Context& context)
    : panel(form, "SSPanel7"), choice(form, panel, context.clock), form_(form), context_(context) {
  panel.SetVisible(false);
  run_panel.SetVisible(false);
  ok.on_click = [this] { Start(ChangeMode::kAdd); };
  remove.on_click = [this] { AskToRemove(); };
  cancel.on_click = [this] { on_close(); };
  stop.on_change = [this] { asked_to_stop_ = true; };
}

void RecurrencePanel::Open(text::Date date, const DayRow& row) {
  appointment_ = {text::Trim(row.time), text::Trim(row.entry)};
  const std::string time = appointment_.time.empty() ? "" : appointment_.time + " ";
  appointment.SetCaption(" Appointment: " + time + appointment_.entry + " ");
  choice.Start(date);
  ShowRunning(false);
  choice.modes.option(0).Focus();
}

void RecurrencePanel::AskToRemove() {
  choice.ChooseEveryDayOfRange();
  const auto question =
      BoxOf(RemovalQuestion(), forms::Icon::kQuestion, forms::Buttons::kYesNoCancel);
  if (form_.Confirmed(question)) Start(ChangeMode::kRemove);
}

void RecurrencePanel::Start(ChangeMode change_mode) {
  const forms::Form::BusyScope busy(form_);
  ShowRunning(true);
  if (choice.mode() == RecurrenceMode::kNone) {
    context_.window.Beep();
    form_.Message(BoxOf(NoOptionSelected(), forms::Icon::kExclamation));
    ShowRunning(false);
    return ok.Focus();
  }
  RecurrenceRequest request = choice.Request();
  request.appointment = appointment_;
  const int sort_time = settings::ReadSortTime(context_.folder);
  RecurrenceRun run{change_mode, request.appointment, static_cast<SortTimeOption>(sort_time), {}};
  const auto stopped_at = Walk(request, run);
  ShowRunning(false);
  if (stopped_at) {
    form_.Message(BoxOf(Interruption(request.end_kind, *stopped_at), forms::Icon::kCritical));
  }
  const auto report = change_mode == ChangeMode::kAdd ? RunReport(run.counts) : std::nullopt;
  if (report) form_.Message(BoxOf(*report, forms::Icon::kInformation));
  on_run();
  on_close();
}

// While it runs only the stop box can be reached, so nothing can start a second run.
void RecurrencePanel::ShowRunning(bool running) {
  choice.panel.SetEnabled(!running);
  ok.SetEnabled(!running);
  remove.SetVisible(!running);
  cancel.SetVisible(!running);
  run_panel.SetVisible(running);
  if (running) stop.Focus();
  stop.SetChecked(false);
  asked_to_stop_ = false;
}

// The candidate behind which the user stopped the walk; none if it came to its end.
std::optional<text::Date> RecurrencePanel::Walk(const RecurrenceRequest& request,
                                                RecurrenceRun& run) {
  FolderDayBook book(context_.folder);
  RecurrenceWalk walk(request);
  progress.Start(walk.ProgressMaximum());
  while (const auto candidate = walk.Next()) {
    if (candidate->applies) ApplyToDay(run, candidate->date, book);
    progress.SetValue(walk.Progress());
    context_.loop.Yield();
    if (asked_to_stop_) return candidate->date;
  }
  progress.SetValue(walk.Progress());
  return std::nullopt;
}

}  // namespace tarnwell::planner
