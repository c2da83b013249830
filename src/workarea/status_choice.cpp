#include "workarea/status_choice.h"

#include <string>
#include <vector>

#include "forms/disk_trouble.h"
#include "forms/form.h"
#include "forms/message.h"

namespace tarnwell::workarea {
namespace {

void RemindOfReason(forms::Context& context) {
  forms::ShowMessage(context, {"Safeguard Not Being Implemented",
                               "If this safeguard is not being implemented, be sure and\n"
                               "document in the Action Taken or Comments/Notes\n"
                               "area why it is not being implemented!",
                               forms::Icon::kInformation});
}

}  // namespace

// Words that can't be read aren't chosen: the choice would be written among them.
void StatusChoice::Take(std::string_view label, std::span<const std::string_view> words) {
  words_ = words;
  view_.status_label.SetCaption(label);
  const storage::Outcome read = status_.Read(context_.folder);
  is_readable_ = static_cast<bool>(read);
  view_.status.SetItems(read ? std::vector<std::string>(words.begin(), words.end())
                             : std::vector<std::string>{"Can't be read"});
  std::string note;
  if (!read) note = forms::UnreadableNote("The status of the documents", read.fault());
  view_.panel.form().SetStatus(note.substr(0, note.find('\n')));
}

void StatusChoice::Show(int record) {
  view_.status.SetEnabled(is_readable_);
  view_.status.Select(status_.PlaceOf(record, words_));
}

void StatusChoice::Close() {
  view_.status.Select(forms::ComboBox::kNone);
  view_.status.SetEnabled(false);
}

void StatusChoice::Store(int record) {
  const std::string word = view_.status.text();
  if (Put(record, word) && word == kNotImplemented) RemindOfReason(context_);
}

bool StatusChoice::Forget(int record) { return !is_readable_ || Put(record, {}); }

bool StatusChoice::Put(int record, std::string_view word) {
  const auto written = status_.Put(context_.folder, record, word);
  view_.status.Select(status_.PlaceOf(record, words_));
  if (!written) {
    forms::TellRefused(context_, "The status", written.fault(), "The one before stays.");
  }
  return static_cast<bool>(written);
}

}  // namespace tarnwell::workarea
