#include "shell/about1.h"

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "shell/data_place.h"
#include "shell/product.h"

namespace tarnwell::shell {
namespace {

constexpr const char* kLicenses =
    "Tarnwell is free software: you may use it, pass it on and change it under the GNU General "
    "Public License, version 3 or later. It comes without any warranty.\r\n"
    "\r\n"
    "It works with:\r\n"
    "Qt 6: GNU Lesser General Public License, version 3\r\n"
    "Qt 6 Charts: GNU General Public License, version 3\r\n"
    "Hunspell: GNU General Public License 2, GNU Lesser General Public License 2.1 or Mozilla "
    "Public License 1.1\r\n"
    "MyThes: BSD License\r\n"
    "The words of the spelling check, SCOWL: free to use, pass on and change\r\n"
    "The words of the thesaurus, WordNet: WordNet License\r\n"
    "GNU C and C++ libraries: GNU Lesser General Public License 2.1 or later, and GNU General "
    "Public License, version 3 or later, with the exception for programs that use them\r\n"
    "\r\n"
    "On Debian the whole texts are in /usr/share/doc and /usr/share/common-licenses.";

}  // namespace

About1::About1(forms::Context& context)
    : Form(context, forms::form_names::kAbout1, "About Tarnwell"),
      logo(*this, "Image1", "tarnwell.svg"),
      product(*this, "Label1", kProductName, forms::LabelRole::kTitle),
      version(*this, "Label2", kVersionText),
      maker(*this, "Label3", kMakersLine, forms::LabelRole::kNote),
      close(*this, "Command1", "&OK", {.cancel = true, .is_default = true}) {
  logo.SetSpokenName(kProductName);
  data_place.SetCaption(DataPlaceText(context_.folders.ProgramPath()));
  open_folder.on_click = [this] { OpenFolder(); };
  licenses.SetText(kLicenses);
  licenses.SetLocked(true);
  close.on_click = [this] { context_.navigator.Unload(*this); };
}

void About1::OpenFolder() {
  if (context_.launcher.OpenProgramFolder()) return;
  Message({"Data Folder",
           "No program on this computer could open this folder:\n" + context_.folders.ProgramPath(),
           forms::Icon::kExclamation});
}

}  // namespace tarnwell::shell
