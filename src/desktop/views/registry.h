#pragma once

#include "desktop/main_window.h"

namespace tarnwell::desktop {

class PictureStore;

// The view of a form, found by the form's name. Empty for a name without a view.
FormLook LookOf(forms::Form& form, PictureStore& pictures);

}  // namespace tarnwell::desktop
