#include "planner/recurrence_panel.h"

#include "forms/disk_trouble.h"
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
    auto day = planner::ReadDay(folder_, date, &fault_);
    if (!day) return std::nullopt;
    return std::move(day->rows);
  }
  bool WriteDay(text::Date date, const DayRows& rows) override {
    const auto written = planner::WriteDay(folder_, date, rows);
    if (!written) fault_ = written.fault();
    return static_cast<bool>(written);
  }

  // Why the last day that couldn't be read or written couldn't.
  storage::Fault fault() const { return fault_; }

 private:
  storage::ProgramFolder& folder_;
  storage::Fault fault_ = storage::Fault::kNone;
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
  auto question = BoxOf(RemovalQuestion(), forms::Icon::kQuestion, forms::Buttons::kYesNoCancel);
  question.default_button = 2;
  if (form_.Confirmed(question)) Start(ChangeMode::kRemove);
}

void RecurrencePanel::Start(ChangeMode change_mode) {
  if (choice.mode() == RecurrenceMode::kNone) {
    context_.window.Beep();
    form_.Message(BoxOf(NoOptionSelected(), forms::Icon::kExclamation));
    return ok.Focus();
  }
  RunWalk(change_mode);
  on_run();
  on_close();
}

void RecurrencePanel::RunWalk(ChangeMode change_mode) {
  RecurrenceRequest request = choice.Request();
  request.appointment = appointment_;
  const int sort_time = settings::ReadSortTime(context_.folder);
  RecurrenceRun run{change_mode, request.appointment, static_cast<SortTimeOption>(sort_time), {}};
  FolderDayBook book(context_.folder);
  ShowRunning(true);
  const auto stopped_at = Walk(request, run, book);
  ShowRunning(false);
  if (stopped_at) {
    form_.Message(BoxOf(Interruption(request.end_kind, *stopped_at), forms::Icon::kCritical));
  }
  if (run.counts.failed_days > 0) {
    const auto reason = forms::ReasonOf(book.fault());
    form_.Message(BoxOf(FailureReport(run.counts.failed_days, reason), forms::Icon::kCritical));
  }
  const auto report = change_mode == ChangeMode::kAdd ? RunReport(run.counts) : std::nullopt;
  if (report) form_.Message(BoxOf(*report, forms::Icon::kInformation));
}

void RecurrencePanel::ShowRunning(bool running) {
  choice.panel.SetEnabled(!running);
  ok.SetEnabled(!running);
  remove.SetVisible(!running);
  cancel.SetVisible(!running);
  run_panel.SetVisible(running);
  if (running) stop.Focus();
  stop.SetChecked(false);
  progress.Start(0);
  asked_to_stop_ = false;
}

// The candidate behind which the user stopped the walk; none if it came to its end.
std::optional<text::Date> RecurrencePanel::Walk(const RecurrenceRequest& request,
                                                RecurrenceRun& run, DayBook& book) {
  const forms::Form::BusyScope busy(form_, {&stop});
  RecurrenceWalk walk(request);
  progress.Start(walk.ProgressMaximum());
  while (const auto candidate = walk.Next()) {
    if (candidate->applies) ApplyToDay(run, candidate->date, book);
    progress.SetValue(walk.Progress());
    context_.loop.Yield();
    if (asked_to_stop_ && !walk.HasCountedAll()) return candidate->date;
  }
  progress.SetValue(walk.Progress());
  return std::nullopt;
}

}  // namespace tarnwell::planner
