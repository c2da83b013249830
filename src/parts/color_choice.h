// The questions by which a screen's colours are chosen.

#pragma once

#include <functional>
#include <optional>

#include "forms/color.h"
#include "forms/context.h"
#include "settings/panel_colors.h"

namespace tarnwell::parts {

// Text and background must differ. Says that they wouldn't, and changes nothing.
void ColorConflict(forms::Context& context);

// Asks whether the panel colour saved last shall be that of all functions, unless there is none or
// the question came up for that colour before, and writes it on Yes.
void SaveAllPanelColors(forms::Context& context);

// The box before a choice: `title` is the kind of colour. Yes asks for a new one, No for the
// system's own.
forms::Answer AskForColor(forms::Context& context, const char* title);

// What a colour is chosen for, by the fixed numbers.
enum class ColorTarget { kPanel = 0, kBackground = 1, kText = 2 };

// The colours of one screen: its panels, and background and text of its entry area.
class ColorChoice {
 public:
  // A screen without `background` keeps the background of its entry area for the run only.
  ColorChoice(forms::Context& context, settings::PanelColor panel,
              std::optional<settings::FieldColor> background = std::nullopt)
      : context_(context), panel_record_(panel), background_record_(background) {}

  // Takes the stored colours, and runs `on_change`.
  void Load();

  // Asks, and applies the answer. A text colour is stored at once, the others by Save.
  void Choose(ColorTarget target);
  // A colour was chosen since Load or Save.
  bool changed() const { return changed_; }
  // Stores the panel colour and the background, where they were chosen. False when the disk
  // refused: the user was told, and they stay unsaved.
  bool Save();

  // The screen is about to be left: offers to keep what was chosen, with the buttons Yes and No and
  // perhaps Cancel. False when the screen is to stay, be it that the disk refused.
  bool Leave(forms::Buttons buttons);

  // Empty for the look's own colour.
  const std::optional<forms::Color>& panel() const { return panel_; }
  forms::Color background() const { return background_.value_or(forms::kWhite); }
  forms::Color text() const { return text_; }

  std::function<void()> on_change;

 private:
  void TakeDefault(ColorTarget target);
  void Take(ColorTarget target, forms::Color color);
  void ApplyBackground(std::optional<forms::Color> color);
  void ApplyText(forms::Color color);
  void Changed();
  forms::Color StartColor(ColorTarget target) const;

  forms::Context& context_;
  settings::PanelColor panel_record_;
  std::optional<settings::FieldColor> background_record_;
  std::optional<forms::Color> panel_;
  std::optional<forms::Color> background_;
  forms::Color text_ = forms::kBlack;
  bool changed_ = false;
  bool panel_chosen_ = false;
  bool background_chosen_ = false;
};

}  // namespace tarnwell::parts
