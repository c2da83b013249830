// What a form is lent at a machine without a screen.

#pragma once

#include <memory>

#include "forms/context.h"
#include "forms/form.h"
#include "forms/navigator.h"
#include "idle_services.h"

namespace tarnwell::bench {

// With the clock and the event loop that a benchmark measures by.
template <typename ClockClass = IdleClock, typename LoopClass = IdleLoop>
struct IdleWorld {
  explicit IdleWorld(storage::ProgramFolder& folder)
      : context{{folder, clock, dialogs, loop, window, help, clipboard, pages, folders, pictures,
                 speller, thesaurus, modem, launcher, volumes},
                variables,
                navigator} {
    navigator.SetContext(context);
  }

  // A form without anything on it, in the window.
  forms::Form& ShowBlank() {
    navigator.Register("Blank", [](forms::Context& lent) {
      return std::make_unique<forms::Form>(lent, "Blank", "Blank");
    });
    navigator.Show("Blank");
    return *navigator.top();
  }

  ClockClass clock;
  YesDialogs dialogs;
  LoopClass loop;
  IdleWindow window;
  IdleHelp help;
  IdleClipboard clipboard;
  IdlePages pages;
  IdleFolders folders;
  IdlePictures pictures;
  IdleSpeller speller;
  IdleThesaurus thesaurus;
  IdleModem modem;
  IdleLauncher launcher;
  IdleVolumes volumes;
  forms::ProgramVariables variables;
  forms::Navigator navigator;
  forms::Context context;
};

}  // namespace tarnwell::bench
