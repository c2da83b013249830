// Boxes that stop everything until they are answered.

#pragma once

#include <cstddef>
#include <optional>
#include <string>

#include "forms/color.h"
#include "forms/page.h"
#include "storage/fault.h"

namespace tarnwell::forms {

enum class Icon { kNone, kInformation, kExclamation, kQuestion, kCritical };
enum class Buttons { kOk, kOkCancel, kYesNo, kYesNoCancel };
// The numbers that ProgramVariables::Answer keeps.
enum class Answer { kOk = 1, kCancel = 2, kYes = 6, kNo = 7 };

struct MessageBox {
  std::string title;
  std::string text;  // lines parted by '\n'
  Icon icon = Icon::kInformation;
  Buttons buttons = Buttons::kOk;
  int default_button = 1;  // 1-based
};

// A box with one line to type in.
struct InputBox {
  std::string title;
  std::string prompt;            // lines parted by '\n'
  std::string text = {};         // stands in the line at first, marked, so that typing replaces it
  std::size_t max_length = 255;  // characters
};

// A picture file from anywhere on the machine.
struct ChosenPicture {
  std::string bytes;
  storage::Fault fault = storage::Fault::kNone;  // why it can't be read
};
inline constexpr std::size_t kLargestPicture = 16u << 20;  // bytes; a larger one is kTooLarge

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  // Closing the box by other means answers Cancel where there is such a button, and OK to an OK
  // alone. A box of Yes and No stays until one of the two is pressed: either may lose something.
  virtual Answer Message(const MessageBox& box) = 0;
  // What was in the line at OK, "" for nothing; no value when it was cancelled or closed.
  virtual std::optional<std::string> Input(const InputBox& box) = 0;
  // Empty when it was cancelled.
  virtual std::optional<Color> ChooseColor(Color start) = 0;
  // A printer's font with its size, style and colour: the parts that a person chose, whatever the
  // start is open in. Empty when it was cancelled.
  virtual std::optional<FontParts> ChooseFont(const FontParts& start) = 0;
  // Empty when it was cancelled.
  virtual std::optional<ChosenPicture> ChoosePicture() = 0;
};

}  // namespace tarnwell::forms
