#include "parts/grid_background_panel.h"

#include "forms/disk_trouble.h"
#include "storage/file_names.h"

namespace tarnwell::parts {

using storage::file_names::Wallpaper;

GridBackgroundPanel::GridBackgroundPanel(forms::Container& parent, forms::Context& context,
                                         settings::GridBackground function)
    : panel(parent, "SSPanel90", "Grid Background Selector"),
      context_(context),
      function_(function) {
  panel.SetVisible(false);
  preview.SetSpokenName("Background");
  for (std::size_t i = 0; i < thumbnails.size(); ++i) {
    const int number = static_cast<int>(i) + 1;
    thumbnails[i].SetFile(Wallpaper(number));
    thumbnails[i].SetSpokenName("Background " + std::to_string(number));
    thumbnails[i].on_click = [this, i] { Mark(i); };
  }
  exit.on_click = [this] { Exit(); };
  use_marked.on_click = [this] { UseMarked(); };
  use_default.on_click = [this] { UseDefault(); };
  use_color.on_click = [this] { UseColor(); };
}

void GridBackgroundPanel::Load() {
  choice_ = settings::HoldsForTheRun(function_)
                ? context_.variables.GridBackgrounds[function_]
                : settings::ReadGridBackground(context_.folder, function_);
  Apply();
}

void GridBackgroundPanel::Mark(std::size_t index) {
  for (std::size_t i = 0; i < thumbnails.size(); ++i) thumbnails[i].SetMarked(i == index);
  marked_ = static_cast<int>(index) + 1;
  preview.SetFile(Wallpaper(marked_));
}

void GridBackgroundPanel::Exit() {
  panel.SetVisible(false);
  if (choice_.wallpaper()) Apply();
  if (on_close) on_close();
}

void GridBackgroundPanel::UseMarked() {
  if (context_.folder.Exists(preview.file())) Take(settings::StoredColor::Wallpaper(marked_));
}

void GridBackgroundPanel::UseDefault() { Take(settings::StoredColor::Default()); }

void GridBackgroundPanel::UseColor() {
  const auto color = context_.dialogs.ChooseColor(choice_.color().value_or(forms::kWhite));
  if (color) Take(settings::StoredColor::Number(*color));
}

void GridBackgroundPanel::Take(const settings::StoredColor& choice) {
  choice_ = choice;
  if (settings::HoldsForTheRun(function_)) context_.variables.GridBackgrounds[function_] = choice;
  const auto stored = settings::WriteGridBackground(context_.folder, function_, choice);
  Apply();
  if (!stored) forms::TellHoldsForNow(context_, "The grid background", stored.fault());
}

// A wallpaper whose file is gone leaves the grids as they are.
void GridBackgroundPanel::Apply() {
  forms::GridLook look{choice_.color(), {}};
  if (const auto number = choice_.wallpaper()) look.wallpaper = Wallpaper(*number);
  if (!look.wallpaper.empty() && !context_.folder.Exists(look.wallpaper)) return;
  if (on_apply) on_apply(look);
}

}  // namespace tarnwell::parts
