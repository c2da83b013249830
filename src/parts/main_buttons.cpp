#include "parts/main_buttons.h"

#include <array>

#include "forms/navigator.h"

namespace tarnwell::parts {
namespace {

struct Text {
  std::string_view caption;
  std::string_view tool_tip;
};
constexpr std::array<Text, kMainButtonCount> kTexts{{
    {"&Company Data", "  Company Data  "},
    {"&Employee Data", "  Employee Data  "},
    {"&Information Advisor", "  Information Advisor  "},
    {"&Tools and Program Info", "  Tools and Program Information  "},
    {"E&xit Program", "  Exit Program  "},
}};

}  // namespace

MainButtons::MainButtons(forms::Container& parent) : buttons_(parent, "SSCommand4", "") {
  for (int i = 0; i < kMainButtonCount; ++i) {
    forms::Command& button = (*this)[i];
    button.SetCaption(kTexts[static_cast<std::size_t>(i)].caption);
    button.SetToolTip(kTexts[static_cast<std::size_t>(i)].tool_tip);
    button.on_click = [this, i] {
      if (on_press) on_press(i);
    };
  }
}

void MainButtons::PaintSelected(int index) {
  for (int i = 0; i < kExitProgram; ++i) (*this)[i].SetSelected(i == index);
}

int MainButtons::selected() {
  for (int i = 0; i < kExitProgram; ++i) {
    if ((*this)[i].selected()) return i;
  }
  return -1;
}

forms::MessageBox ExitBox() {
  return {"Exit", "Exit Tarnwell?", forms::Icon::kQuestion, forms::Buttons::kYesNoCancel};
}

MainScreen::MainScreen(forms::Context& context, std::string_view name, std::string_view caption,
                       MainArea own, std::initializer_list<std::string_view> entries)
    : forms::Form(context, name, caption), own_(own) {
  main_buttons.PaintSelected(own);
  main_buttons.on_press = [this](int index) { Press(index); };
  forms::MenuItem& options = menus().AddSubmenu("mO", "&Options");
  int index = 0;
  for (std::string_view entry : entries) {
    if (index == own) ++index;
    options.AddEntry("mOTab(" + std::to_string(index) + ")", entry,
                     [this, index] { main_buttons[index].Click(); });
    ++index;
  }
  SetPopupMenu(options);
}

void MainScreen::Press(int index) {
  if (index == own_) return;
  if (index == kExitProgram) return AskToExit();
  context_.variables.MainArea = static_cast<std::int16_t>(index);
  main_buttons.PaintSelected(-1);
  context_.navigator.Unload(*this);
}

void MainScreen::AskToExit() {
  // The own button is still down, so unloading ends the program.
  if (Confirmed(ExitBox())) context_.navigator.Unload(*this);
}

void MainScreen::Unload() {
  if (main_buttons.selected() == own_) context_.navigator.EndProgram();
}

}  // namespace tarnwell::parts
