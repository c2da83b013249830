#include <cstdio>

#include "desktop/application.h"
#include "desktop/services/desktop_tones.h"
#include "program/command_line.h"

int main(int argc, char* argv[]) {
  using namespace tarnwell;
  if (const auto answer = program::AnswerTo({argv + 1, argv + argc})) {
    std::fputs(answer->c_str(), stdout);
    return 0;
  }
  desktop::QuietQt();
  QApplication application(argc, argv);  // takes the options of Qt out
  if (argc > 1) {
    std::fputs(program::RefusalOf(argv[1]).c_str(), stderr);
    return program::kRefused;
  }
  desktop::Prepare(application, desktop::TonesOfDesktop());
  return desktop::RunIn(desktop::ChooseFolders());
}
