#include "parts/color_choice.h"

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "text/letters.h"

namespace tarnwell::parts {
namespace {

settings::StoredColor Stored(const std::optional<forms::Color>& color) {
  return color ? settings::StoredColor::Number(*color) : settings::StoredColor::Default();
}

}  // namespace

void ColorConflict(forms::Context& context) {
  forms::ShowMessage(
      context,
      {"Color Conflict", "Selected Color would cause a conflict with Text and Background Colors!",
       forms::Icon::kCritical});
}

void SaveAllPanelColors(forms::Context& context) {
  forms::ProgramVariables& variables = context.variables;
  const std::string color = text::Trim(variables.PanelColorNew);
  if (color.empty() || color == text::Trim(variables.PanelColorLast)) return;
  const forms::Answer answer =
      forms::ShowMessage(context, {"Complete Program Panel Color Update Option",
                                   "Save Panel Color Changes for ALL of the Program Functions?",
                                   forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2});
  if (answer != forms::Answer::kYes) return;
  const auto written = settings::WritePanelColorForAll(
      context.folder, settings::StoredColor::FromText(color), [&context] { context.loop.Yield(); });
  if (!written) {
    return forms::TellRefused(context, "The color of all functions", written.fault(),
                              "Some of them may have it.");
  }
  variables.PanelColorLast = color;
  variables.PanelColorNew.clear();
  context.loop.Yield();
}

forms::Answer AskForColor(forms::Context& context, const char* title) {
  return forms::ShowMessage(context, {title,
                                      "Select New Color or Use System Default Color?\n"
                                      "Yes = Color Selection Panel will appear.\n"
                                      "No = Current System Default Color will be selected.",
                                      forms::Icon::kInformation, forms::Buttons::kYesNoCancel});
}

void ColorChoice::Load() {
  panel_ = settings::ReadPanelColor(context_.folder, panel_record_).color();
  background_.reset();
  if (background_record_) {
    background_ = settings::ReadFieldColor(context_.folder, *background_record_).color();
  }
  text_ = settings::ReadTextColor(context_.folder).color().value_or(forms::kBlack);
  // The text colour is shared, so another screen may have taken this one's background.
  if (text_ == background()) text_ = background() == forms::kBlack ? forms::kWhite : forms::kBlack;
  changed_ = panel_chosen_ = background_chosen_ = false;
  if (on_change) on_change();
}

void ColorChoice::Choose(ColorTarget target) {
  if (target != ColorTarget::kText) {
    const forms::Answer answer = AskForColor(context_, "Panel Color");
    if (answer == forms::Answer::kCancel) return;
    if (answer == forms::Answer::kNo) return TakeDefault(target);
  }
  if (const auto color = context_.dialogs.ChooseColor(StartColor(target))) Take(target, *color);
}

void ColorChoice::TakeDefault(ColorTarget target) {
  if (target == ColorTarget::kBackground) return ApplyBackground(std::nullopt);
  panel_.reset();
  panel_chosen_ = true;
  Changed();
}

void ColorChoice::Take(ColorTarget target, forms::Color color) {
  if (target == ColorTarget::kBackground) return ApplyBackground(color);
  if (target == ColorTarget::kText) return ApplyText(color);
  panel_ = color;
  panel_chosen_ = true;
  Changed();
}

void ColorChoice::ApplyBackground(std::optional<forms::Color> color) {
  if (color.value_or(forms::kWhite) == text_) return ColorConflict(context_);
  background_ = color;
  background_chosen_ = true;
  Changed();
}

void ColorChoice::ApplyText(forms::Color color) {
  if (color == background()) return ColorConflict(context_);
  text_ = color;
  const auto written = settings::WriteTextColor(context_.folder, color);
  Changed();
  if (!written) forms::TellNotSaved(context_, "The text color", written.fault());
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
    forms::TellNotSaved(context_, "The chosen color", written.fault());
    return false;
  }
  changed_ = panel_chosen_ = background_chosen_ = false;
  return true;
}

bool ColorChoice::Leave(forms::Buttons buttons) {
  if (!changed_) return true;
  const forms::Answer answer = forms::ShowMessage(
      context_, {"Color Changes", "Save changes made to Panel and or Text Color?",
                 forms::Icon::kQuestion, buttons});
  if (answer == forms::Answer::kYes) return Save() || forms::AskToLeaveUnsaved(context_);
  return answer != forms::Answer::kCancel;
}

forms::Color ColorChoice::StartColor(ColorTarget target) const {
  switch (target) {
    case ColorTarget::kBackground:
      return background();
    case ColorTarget::kText:
      return text_;
    case ColorTarget::kPanel:
      break;
  }
  return panel_.value_or(forms::kNeutral);
}

}  // namespace tarnwell::parts
