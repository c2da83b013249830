#include "program/command_line.h"

#include <array>

#include "shell/product.h"

namespace tarnwell::program {
namespace {

constexpr std::array<Option, 2> kOptions{{
    {"-h", "--help", "tell the options and end"},
    {"-v", "--version", "tell the version and end"},
}};

std::string Help() {
  std::string text = "Usage: tarnwell [OPTION]\nRuns a small company from one folder of files.\n\n";
  for (const Option& option : kOptions) {
    std::string names = "  " + std::string(option.letter) + ", " + std::string(option.word);
    names.resize(18, ' ');
    text += names + std::string(option.meaning) + "\n";
  }
  return text;
}

}  // namespace

std::span<const Option> Options() { return kOptions; }

std::optional<std::string> AnswerTo(std::span<const char* const> arguments) {
  for (const std::string_view argument : arguments) {
    if (argument == kOptions[0].letter || argument == kOptions[0].word) return Help();
    if (argument == kOptions[1].letter || argument == kOptions[1].word) {
      return std::string("tarnwell ") + shell::kVersion + "\n";
    }
  }
  return std::nullopt;
}

std::string RefusalOf(std::string_view argument) {
  return "tarnwell: no option is called \"" + std::string(argument) +
         "\"; tarnwell --help tells "
         "them.\n";
}

}  // namespace tarnwell::program
