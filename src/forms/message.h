#pragma once

#include "forms/context.h"
#include "forms/dialogs.h"

namespace tarnwell::forms {

// Shows the box and keeps the answer's code in the program's variables.
inline Answer ShowMessage(Context& context, const MessageBox& box) {
  const Answer answer = context.dialogs.Message(box);
  context.variables.Answer = static_cast<double>(answer);
  return answer;
}

}  // namespace tarnwell::forms
