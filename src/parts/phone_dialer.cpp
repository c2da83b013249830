#include "parts/phone_dialer.h"

#include <algorithm>
#include <chrono>

#include "forms/disk_trouble.h"
#include "forms/message.h"
#include "forms/navigator.h"
#include "settings/modem_port.h"
#include "text/leading_number.h"
#include "text/letters.h"

namespace tarnwell::parts {
namespace {

constexpr std::size_t kShortestNumber = 3;  // characters
constexpr int kPatience = 9;                // seconds for an answer
constexpr const char* kDialing = "Dialing...";
constexpr std::string_view kAnswer = "OK";

// A control character would begin a command of its own.
std::string OnOneLine(std::string_view number) {
  std::string line = text::Trim(number);
  std::erase_if(line, [](char sign) { return static_cast<unsigned char>(sign) < ' '; });
  return line;
}

}  // namespace

PhoneDialer::PhoneDialer(forms::Form& form, forms::Context& context)
    : timer(form, "Timer1", std::chrono::seconds(1)), form_(form), context_(context) {
  timer.SetEnabled(false);
  timer.on_tick = [this] {
    ++seconds_;
    if (label_) label_->SetCaption(seconds_ % 2 == 0 ? kDialing : "");
  };
}

void PhoneDialer::Dial(std::string_view number, forms::Label& dialing) {
  if (is_dialing()) return;
  const std::string line = OnOneLine(number);
  if (line.size() < kShortestNumber) {
    form_.Message({"Telephone Dialing Option",
                   "First, Select(Highlight) a valid telephone number on the Grid!",
                   forms::Icon::kInformation});
    return;
  }
  label_ = &dialing;
  port_ = settings::ReadModemPort(context_.folder);
  while (Call(line)) {
  }
  Stop();
}

void PhoneDialer::Stop() {
  if (!is_dialing()) return;
  ShowLabel(false);
  timer.SetEnabled(false);
  label_ = nullptr;
  HangUp();
}

void PhoneDialer::HangUp() {
  if (!context_.modem.is_open()) return;
  context_.modem.Send("ATH\r");
  context_.modem.Close();
}

// The form was left, or the program ended, while events were let happen.
bool PhoneDialer::Stopped() const { return !is_dialing() || context_.navigator.ended(); }

void PhoneDialer::ShowLabel(bool shown) {
  label_->SetCaption(kDialing);
  label_->SetVisible(shown);
}

// True where it has to be tried again, at another port.
bool PhoneDialer::Call(const std::string& number) {
  seconds_ = 0;
  timer.SetEnabled(true);
  ShowLabel(true);
  if (!context_.modem.Open(port_)) {
    ShowLabel(false);
    return AskForPort("COM1: not available.", "Change the CommPort property to another port.");
  }
  context_.modem.ClearInput();
  context_.modem.Send("ATDT " + number + ";\r");
  const bool has_answered = WaitForAnswer();
  if (Stopped()) return false;
  ShowLabel(false);
  if (has_answered) {
    form_.Message({"Phone Dialing Function",
                   "Number Dialed: " + number +
                       "\n\nPlease pick up the phone and either press Enter or click OK\n"
                       "Or click Cancel to Hang-up Phone",
                   forms::Icon::kInformation, forms::Buttons::kOkCancel});
    return false;
  }
  HangUp();
  return AskForPort(
      "To work properly your phone and modem must be connected to the same phone line Or "
      "The Current Commport may not be available.",
      "Check your connects or to change the CommPort property to another port.");
}

// The answer may come in pieces, behind whatever else the modem says.
bool PhoneDialer::WaitForAnswer() {
  std::string heard;
  while (!Stopped() && seconds_ < kPatience) {
    heard += context_.modem.Receive();
    if (heard.find(kAnswer) != std::string::npos) return true;
    heard.erase(0, heard.size() - std::min(heard.size(), kAnswer.size() - 1));
    context_.loop.WaitALittle();
  }
  return false;
}

// False where none was given, which ends the dial.
bool PhoneDialer::AskForPort(const char* trouble, const char* advice) {
  timer.SetEnabled(false);
  const std::string device = context_.modem.PortName(port_);
  const auto typed = context_.dialogs.Input(
      {"Telephone Dialing Option",
       std::string(trouble) + "\nCommPort is currently set at: " + std::to_string(port_) + " (" +
           (device.empty() ? "this computer has no such port" : device) + ")\n" + advice +
           "\nENTER NEW PORT NUMBER BELOW:"});
  const double wanted = text::LeadingNumber(typed.value_or(""));
  if (Stopped() || wanted == 0) return false;
  const bool is_port = wanted >= settings::kFirstPort && wanted <= settings::kLastPort;
  port_ = is_port ? static_cast<int>(wanted) : settings::kFirstPort;
  const auto stored = settings::WriteModemPort(context_.folder, port_);
  if (!stored) forms::TellHoldsForNow(context_, "The port number", stored.fault());
  return true;
}

}  // namespace tarnwell::parts
