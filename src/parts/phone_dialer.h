// Dials a telephone number through the modem: asks for another port where that fails, and hangs up
// on every way out.

#pragma once

#include <string>
#include <string_view>

#include "forms/context.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/timer.h"

namespace tarnwell::parts {

class PhoneDialer {
 public:
  PhoneDialer(forms::Form& form, forms::Context& context);
  ~PhoneDialer() { Stop(); }
  PhoneDialer(const PhoneDialer&) = delete;
  PhoneDialer& operator=(const PhoneDialer&) = delete;

  forms::Timer timer;  // counts the seconds of a dial

  // Comes back when the line is free again. `dialing` flashes until the modem has answered. Nothing
  // while another number is being dialed.
  void Dial(std::string_view number, forms::Label& dialing);
  // Hangs up at once, and Dial comes back without a further box. The form calls it in Unload.
  void Stop();
  bool is_dialing() const { return label_ != nullptr; }

 private:
  void HangUp();
  bool Call(const std::string& number);
  bool WaitForAnswer();
  bool AskForPort(const char* trouble, const char* advice);
  bool Stopped() const;
  void ShowLabel(bool shown);

  forms::Form& form_;
  forms::Context& context_;
  forms::Label* label_ = nullptr;  // while a number is being dialed
  int seconds_ = 0;
  int port_ = 0;
};

}  // namespace tarnwell::parts
