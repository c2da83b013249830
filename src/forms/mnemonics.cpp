#include "forms/mnemonics.h"

#include <algorithm>
#include <cctype>
#include <tuple>

#include "forms/choice.h"
#include "forms/command.h"

namespace tarnwell::forms {
namespace {

// From the form to the container that the control lies in.
std::vector<const Container*> PathTo(const Control& control) {
  std::vector<const Container*> path{&control.parent()};
  while (const auto* panel = dynamic_cast<const Control*>(path.back())) {
    path.push_back(&panel->parent());
  }
  std::ranges::reverse(path);
  return path;
}

std::size_t Shared(const std::vector<const Container*>& one,
                   const std::vector<const Container*>& other) {
  return static_cast<std::size_t>(std::ranges::mismatch(one, other).in1 - one.begin());
}

}  // namespace

std::string CaptionOf(const Control& control) {
  if (const auto* command = dynamic_cast<const Command*>(&control)) return command->caption();
  if (const auto* option = dynamic_cast<const Option*>(&control)) return option->caption();
  if (const auto* box = dynamic_cast<const CheckBox*>(&control)) return box->caption();
  return {};
}

char MnemonicOf(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    const char next = caption[++i];
    if (next != '&') return static_cast<char>(std::tolower(static_cast<unsigned char>(next)));
  }
  return 0;
}

Control* MnemonicTarget(const Form& form, char key) {
  const Control* focus = form.focus() && form.focus()->Reachable() ? form.focus() : nullptr;
  const auto focus_path = focus ? PathTo(*focus) : std::vector<const Container*>();
  Control* best = nullptr;
  std::tuple<std::size_t, std::size_t, bool> best_rank;
  bool behind_focus = false;
  for (Control* control : form.AllControls()) {
    if (control->Reachable() && MnemonicOf(CaptionOf(*control)) == key) {
      const auto path = PathTo(*control);
      const std::tuple rank{Shared(path, focus_path), path.size(), behind_focus};
      if (!best || rank > best_rank) {
        best = control;
        best_rank = rank;
      }
    }
    if (control == focus) behind_focus = true;
  }
  return best;
}

}  // namespace tarnwell::forms
