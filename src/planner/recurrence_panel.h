#pragma once

#include <functional>
#include <optional>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/panel.h"
#include "forms/progress_bar.h"
#include "planner/recurrence_choice.h"
#include "planner/recurrence_step.h"

namespace tarnwell::planner {

// The Recurrence Option panel: copies one row of the day on screen onto other days, or removes such
// copies. While a run lasts, nothing but its stop box is live.
class RecurrencePanel {
 public:
  RecurrencePanel(forms::Form& form, forms::Context& context);

  forms::Panel panel;
  forms::Label appointment{panel, "Label14", {}, forms::LabelRole::kHeading};
  RecurrenceChoice choice;
  forms::Command ok{panel, "SSCommand4", "OK", forms::CommandStyle{.is_default = true}};
  forms::Command remove{panel, "SSCommand5", "Remove This Recurrence"};
  forms::Command cancel{panel, "SSCommand3", "Cancel", forms::CommandStyle{.cancel = true}};

  forms::Panel run_panel{panel, "SSPanel9",
                         "Program is Updating Files:(This may take a minute of two)"};
  forms::ProgressBar progress{run_panel, "ProgressBar1", "Recurrence done so far"};
  forms::Label warning{
      run_panel, "Label15",
      " Please Do Not Try to Cancel Program Operation during this action or Program may Stop "
      "Functioning or Files may be corrupted!  Click below to safely Stop Updating!"};
  forms::CheckBox stop{run_panel, "Check1", "If Needed - Click ONCE to Stop Updating!"};

  // Offers a recurrence of the row, which has a text, from its day on. The owner shows the panel.
  void Open(text::Date date, const DayRow& row);

  // A run is over: the day on screen may stand differently on the disk.
  std::function<void()> on_run;
  // The owner hides the panel.
  std::function<void()> on_close;

 private:
  void RunWalk(ChangeMode change_mode);
  void Start(ChangeMode change_mode);
  void AskToRemove();
  void ShowRunning(bool running);
  std::optional<text::Date> Walk(const RecurrenceRequest& request, RecurrenceRun& run,
                                 DayBook& book);

  forms::Form& form_;
  forms::Context& context_;
  DayRow appointment_;  // both texts trimmed
  bool asked_to_stop_ = false;
};

}  // namespace tarnwell::planner
