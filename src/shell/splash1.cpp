#include "shell/splash1.h"

#include "forms/form_names.h"
#include "forms/navigator.h"
#include "shell/hinfo1.h"
#include "shell/product.h"

namespace tarnwell::shell {

Splash1::Splash1(forms::Context& context)
    : Form(context, forms::form_names::kSplash1, kProductName),
      logo(*this, "Image1", "tarnwell.svg"),
      product(*this, "Label1", kProductName, forms::LabelRole::kTitle),
      version(*this, "Label2", kVersionText),
      maker(*this, "Label3", kMakersLine, forms::LabelRole::kNote) {
  logo.SetSpokenName(kProductName);
}

void Splash1::Activate() {
  context_.loop.Yield();
  Pause2(context_.clock, context_.loop);
  Pause2(context_.clock, context_.loop);
  context_.loop.Yield();
  context_.navigator.Unload(*this);
}

}  // namespace tarnwell::shell
