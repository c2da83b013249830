#include "forms/color_choice.h"

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "text/letters.h"

namespace tarnwell::forms {
namespace {

settings::StoredColor Stored(const std::optional<Color>& color) {
  return color ? settings::StoredColor::Number(*color) : settings::StoredColor::Default();
}

}  // namespace

void ColorConflict(Context& context) {
  ShowMessage(context, {"Color Conflict",
                        "Selected Color would cause a conflict with Text and Background Colors!",
                        Icon::kCritical});
}

void SaveAllPanelColors(Context& context) {
  ProgramVariables& variables = context.variables;
  const std::string color = text::Trim(variables.PanelColorNew);
  if (color.empty() || color == text::Trim(variables.PanelColorLast)) return;
  const Answer answer =
      ShowMessage(context, {"Complete Program Panel Color Update Option",
                            "Save Panel Color Changes for ALL of the Program Functions?",
                            Icon::kQuestion, Buttons::kYesNoCancel, 2});
  if (answer != Answer::kYes) return;
  settings::WritePanelColorForAll(context.folder, settings::StoredColor::FromText(color),
                                  [&context] { context.loop.Yield(); });
  variables.PanelColorLast = color;
  variables.PanelColorNew.clear();
  context.loop.Yield();
}

Answer AskForColor(Context& context, const char* title) {
  return ShowMessage(context, {title,
                               "Select New Color or Use System Default Color?\n"
                               "Yes = Color Selection Panel will appear.\n"
                               "No = Current System Default Color will be selected.",
                               Icon::kInformation, Buttons::kYesNoCancel});
}

void ColorChoice::Load() {
  panel_ = settings::ReadPanelColor(context_.folder, panel_record_).color();
  background_.reset();
  if (background_record_) {
    background_ = settings::ReadFieldColor(context_.folder, *background_record_).color();
  }
  text_ = settings::ReadTextColor(context_.folder).color().value_or(kBlack);
  // The text colour is shared, so another screen may have taken this one's background.
  if (text_ == background()) text_ = background() == kBlack ? kWhite : kBlack;
  changed_ = panel_chosen_ = background_chosen_ = false;
  if (on_change) on_change();
}

void ColorChoice::Choose(ColorTarget target) {
  if (target != ColorTarget::kText) {
    const Answer answer = AskForColor(context_, "Panel Color");
    if (answer == Answer::kCancel) return;
    if (answer == Answer::kNo) return TakeDefault(target);
  }
  if (const auto color = context_.dialogs.ChooseColor(StartColor(target))) Take(target, *color);
}

void ColorChoice::TakeDefault(ColorTarget target) {
  if (target == ColorTarget::kBackground) return ApplyBackground(std::nullopt);
  panel_.reset();
  panel_chosen_ = true;
  Changed();
}

void ColorChoice::Take(ColorTarget target, Color color) {
  if (target == ColorTarget::kBackground) return ApplyBackground(color);
  if (target == ColorTarget::kText) return ApplyText(color);
  panel_ = color;
  panel_chosen_ = true;
  Changed();
}

void ColorChoice::ApplyBackground(std::optional<Color> color) {
  if (color.value_or(kWhite) == text_) return ColorConflict(context_);
  background_ = color;
  background_chosen_ = true;
  Changed();
}

void ColorChoice::ApplyText(Color color) {
  if (color == background()) return ColorConflict(context_);
  text_ = color;
  const auto written = settings::WriteTextColor(context_.folder, color);
  Changed();
  if (!written) TellNotSaved(context_, "The text color", written.fault());
}

void ColorChoice::Changed() {
  changed_ = true;
  if (on_change) on_change();
}

bool ColorChoice::Save() {
  storage::Outcome written;
  if (panel_chosen_) {
    written = settings::WritePanelColor(context_.folder, panel_record_, Stored(panel_));
    if (written) context_.variables.PanelColorNew = Stored(panel_).Text();
  }
  if (written && background_chosen_ && background_record_) {
    written = settings::WriteFieldColor(context_.folder, *background_record_, Stored(background_));
  }
  if (!written) {
    TellNotSaved(context_, "The chosen color", written.fault());
    return false;
  }
  changed_ = panel_chosen_ = background_chosen_ = false;
  return true;
}

bool ColorChoice::Leave(Buttons buttons) {
  if (!changed_) return true;
  const Answer answer = ShowMessage(
      context_,
      {"Color Changes", "Save changes made to Panel and or Text Color?", Icon::kQuestion, buttons});
  if (answer == Answer::kYes) return Save() || AskToLeaveUnsaved(context_);
  return answer != Answer::kCancel;
}

Color ColorChoice::StartColor(ColorTarget target) const {
  switch (target) {
    case ColorTarget::kBackground:
      return background();
    case ColorTarget::kText:
      return text_;
    case ColorTarget::kPanel:
      break;
  }
  return panel_.value_or(kNeutral);
}

}  // namespace tarnwell::forms
