// What a form may ask for but no benchmark uses.

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "forms/dialogs.h"
#include "forms/folder_browser.h"
#include "forms/launcher.h"
#include "forms/modem.h"
#include "forms/pages.h"
#include "forms/pictures.h"
#include "forms/services.h"
#include "forms/volumes.h"

namespace tarnwell::bench {

class IdleClock : public forms::Clock {
  text::Moment Now() override { return {}; }
};

class IdleLoop : public forms::EventLoop {
  void Yield() override {}
  void WaitALittle() override {}
  void RunUntil(const std::function<bool()>&) override {}
};

class IdleClipboard : public forms::Clipboard {
  void SetText(std::string_view) override {}
  void SetRichText(std::string_view) override {}
};

class IdlePages : public forms::Pages, private forms::TextMetrics {
  forms::TextMetrics& metrics() override { return *this; }
  std::vector<std::string> FontNames() override { return {}; }
  int Width(const forms::Font&, std::string_view) override { return 0; }
  double Utf8Width(const forms::Font&, std::string_view) override { return 0; }
  int LineHeight(const forms::Font&) override { return 0; }
  int Ascent(const forms::Font&) override { return 0; }
  forms::PrintResult Print(const forms::Document&) override { return forms::PrintResult::kDone; }
  void CopyPage(const forms::Document&, int) override {}
  forms::Margins Reach() override { return {}; }
  std::optional<forms::PageSetup> ChooseSetup(const forms::PageSetup&) override { return {}; }
};

class IdleSpeller : public forms::Speller {
  bool available() override { return false; }
  bool IsCorrect(std::string_view) override { return true; }
  std::vector<std::string> Suggest(std::string_view) override { return {}; }
};

class IdleThesaurus : public forms::Thesaurus {
  bool available() override { return false; }
  std::vector<forms::Meaning> LookUp(std::string_view) override { return {}; }
};

class IdlePictures : public forms::Pictures {
  forms::LoadedPicture Load(const std::string&, int, int) override { return {}; }
  forms::PictureHead Look(const std::string&) override { return {}; }
};

class IdleFolders : public forms::FolderBrowser {
  std::vector<forms::Place> Places() override { return {}; }
  std::string ProgramPath() override { return {}; }
  std::optional<std::vector<std::string>> Folders(const std::string&) override { return {}; }
  std::optional<std::vector<std::string>> Files(const std::string&) override { return {}; }
  int FilesLeftOut(const std::string&) override { return 0; }
  storage::Outcome WriteFile(const std::string&, std::string_view) override { return {}; }
};

// A user who says yes to everything.
class YesDialogs : public forms::Dialogs {
  forms::Answer Message(const forms::MessageBox& box) override {
    return box.buttons == forms::Buttons::kOk ? forms::Answer::kOk : forms::Answer::kYes;
  }
  std::optional<std::string> Input(const forms::InputBox&) override { return std::nullopt; }
  std::optional<forms::Color> ChooseColor(forms::Color) override { return std::nullopt; }
  std::optional<forms::FontParts> ChooseFont(const forms::FontParts&) override { return {}; }
  std::optional<forms::ChosenPicture> ChoosePicture() override { return {}; }
};

class IdleWindow : public forms::Window {
  forms::Size screen() override { return {}; }
  forms::Size room() override { return {}; }
  forms::Size size() override { return {}; }
  void SetSize(forms::Size) override {}
  void SetMinimumSize(forms::Size) override {}
  bool maximized() override { return false; }
  void SetMaximized(bool) override {}
  void CenterOnScreen() override {}
  void SetHourglass(bool) override {}
  void Beep() override {}
};

class IdleModem : public forms::Modem {
  std::string PortName(int) override { return {}; }
  bool Open(int) override { return false; }
  bool is_open() override { return false; }
  void Close() override {}
  void Send(std::string_view) override {}
  void ClearInput() override {}
  std::string Receive() override { return {}; }
};

class IdleLauncher : public forms::Launcher {
  bool OpenWeb(std::string_view) override { return false; }
  bool WriteMail(std::string_view) override { return false; }
  bool OpenProgramFolder() override { return false; }
};

class IdleVolumes : public forms::Volumes {
  std::optional<std::uint64_t> FreeBytes(const std::string&) override { return {}; }
  std::string MountOf(const std::string&) override { return {}; }
  bool LiesIn(const std::string&, const std::string&) override { return false; }
};

class IdleHelp : public forms::HelpViewer {
  void Show(int) override {}
};

}  // namespace tarnwell::bench
