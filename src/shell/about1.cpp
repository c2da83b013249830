#include "shell/about1.h"

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "shell/product.h"

namespace tarnwell::shell {

About1::About1(forms::Context& context)
    : Form(context, forms::form_names::kAbout1, "About Tarnwell"),
      logo(*this, "Image1", "tarnwell.svg"),
      product(*this, "Label1", kProductName, forms::LabelRole::kTitle),
      version(*this, "Label2", kVersionText),
      maker(*this, "Label3", kMakersLine, forms::LabelRole::kNote),
      close(*this, "Command1", "&OK", {.cancel = true, .is_default = true}) {
  logo.SetSpokenName(kProductName);
  close.on_click = [this] { context_.navigator.Unload(*this); };
}

}  // namespace tarnwell::shell
