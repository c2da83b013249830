// What a form may ask for but no benchmark uses.

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "forms/folder_browser.h"
#include "forms/pages.h"
#include "forms/services.h"

namespace tarnwell::bench {

class IdleClipboard : public forms::Clipboard {
  void SetText(std::string_view) override {}
  void SetRichText(std::string_view) override {}
};

class IdlePages : public forms::Pages, private forms::TextMetrics {
  forms::TextMetrics& metrics() override { return *this; }
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

class IdleFolders : public forms::FolderBrowser {
  std::vector<forms::Place> Places() override { return {}; }
  std::string ProgramPath() override { return {}; }
  std::optional<std::vector<std::string>> Folders(const std::string&) override { return {}; }
  std::optional<std::vector<std::string>> Files(const std::string&) override { return {}; }
  storage::Outcome WriteFile(const std::string&, std::string_view) override { return {}; }
};

}  // namespace tarnwell::bench
