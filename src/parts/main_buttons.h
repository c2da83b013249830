// The row of main buttons that the hub and the two screens above it carry.

#pragma once

#include <functional>
#include <initializer_list>
#include <string_view>

#include "forms/command.h"
#include "forms/control_array.h"
#include "forms/form.h"

namespace tarnwell::parts {

// The values of ProgramVariables::MainArea.
enum MainArea : std::int16_t {
  kCompanyData = 0,
  kEmployeeData = 1,
  kInformationAdvisor = 2,
  kToolsAndProgramInformation = 3,
  kExitProgram = 4,
};

inline constexpr int kMainButtonCount = 5;

// The buttons `SSCommand4`(0 to 4) themselves.
class MainButtons {
 public:
  explicit MainButtons(forms::Container& parent);

  forms::Command& operator[](int index) { return buttons_[static_cast<std::size_t>(index)]; }
  // Raises the four buttons that aren't "Exit Program" and draws the one of `index` flat in the
  // selected colour; -1 for none.
  void PaintSelected(int index);
  int selected();

  std::function<void(int index)> on_press;

 private:
  forms::ControlArray<forms::Command, kMainButtonCount> buttons_;
};

// The box that asks before the program ends.
forms::MessageBox ExitBox();

// A screen that lies above the hub and hands over to it: it unloads itself when another main button
// is pressed, and the hub acts on ProgramVariables::MainArea.
class MainScreen : public forms::Form {
 public:
  // `entries` are the "&Options" menu's captions for the four other buttons, in index order.
  MainScreen(forms::Context& context, std::string_view name, std::string_view caption, MainArea own,
             std::initializer_list<std::string_view> entries);

  MainButtons main_buttons{*this};

  // Ends the program when the own button is still down: the window was closed by its close box.
  void Unload() override;

 private:
  void Press(int index);
  void AskToExit();

  MainArea own_;
};

}  // namespace tarnwell::parts
