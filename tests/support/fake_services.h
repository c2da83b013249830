// The world as a test lends it to the program: everything is told beforehand and recorded.

#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "forms/context.h"
#include "support/fixed_metrics.h"
#include "support/scripted_dialogs.h"
#include "text/date.h"

namespace tarnwell::testing {

class FakeClock : public forms::Clock {
 public:
  text::Moment now{text::MakeDate(2026, 3, 9), std::chrono::hours(14) + std::chrono::minutes(5)};

  int seconds_a_look = 0;  // that pass with each

  text::Moment Now() override {
    AddSeconds(seconds_a_look);
    return now;
  }
  void AddSeconds(int seconds) { now.time_of_day += std::chrono::seconds(seconds); }
};

// Each wait lets a second pass. What a person does at a yield or during a modal form is scripted,
// and so is what happens while a second passes.
class FakeEventLoop : public forms::EventLoop {
 public:
  explicit FakeEventLoop(FakeClock& clock) : clock_(clock) {}

  void Yield() override {
    ++yields;
    if (on_yield) on_yield();
  }
  void WaitALittle() override {
    clock_.AddSeconds(1);
    if (on_wait) on_wait();
  }
  void RunUntil(const std::function<bool()>& done) override {
    if (!done() && during_modal) during_modal();
    EXPECT_TRUE(done()) << "a modal form was left open";
  }

  int yields = 0;
  std::function<void()> on_yield;
  std::function<void()> on_wait;
  std::function<void()> during_modal;

 private:
  FakeClock& clock_;
};

class FakeWindow : public forms::Window {
 public:
  forms::Size screen() override { return screen_size; }
  forms::Size room() override { return room_size.value_or(screen_size); }
  forms::Size size() override { return is_maximized ? room() : normal_size; }
  void SetSize(forms::Size size) override { normal_size = size; }
  void SetMinimumSize(forms::Size) override {}
  bool maximized() override { return is_maximized; }
  void SetMaximized(bool maximized) override { is_maximized = maximized; }
  void CenterOnScreen() override { ++centered; }
  void SetHourglass(bool on) override { hourglasses += on ? 1 : -1; }
  void Beep() override { ++beeps; }

  forms::Size screen_size{1920 * 15, 1080 * 15};
  std::optional<forms::Size> room_size;  // the whole screen where there is none
  forms::Size normal_size{16000, 12000};
  bool is_maximized = false;
  int centered = 0;
  int hourglasses = 0;
  int beeps = 0;
};

class FakeHelp : public forms::HelpViewer {
 public:
  void Show(int context) override { shown.push_back(context); }
  std::vector<int> shown;
};

class FakeClipboard : public forms::Clipboard {
 public:
  void SetText(std::string_view content) override { text = content; }
  void SetRichText(std::string_view rtf) override { rich_text = rtf; }
  std::string text;
  std::string rich_text;
};

// The machine's folders, each with a "\\" behind its path. What isn't listed can't be read.
class FakeFolders : public forms::FolderBrowser {
 public:
  struct Content {
    std::vector<std::string> folders;
    std::vector<std::string> files;
  };

  std::vector<forms::Place> Places() override {
    std::vector<forms::Place> places{
        {"/home/ann", "/home/ann"}, {"STICK", "/media/ann/STICK"}, {"/", "/"}};
    places.insert(places.end(), more_places.begin(), more_places.end());
    return places;
  }
  std::string ProgramPath() override { return "/home/ann/Tarnwell"; }
  std::optional<std::vector<std::string>> Folders(const std::string& path) override {
    const auto found = readable.find(path);
    return found == readable.end() ? std::nullopt : std::optional(found->second.folders);
  }
  std::optional<std::vector<std::string>> Files(const std::string& path) override {
    const auto found = readable.find(path);
    return found == readable.end() ? std::nullopt : std::optional(found->second.files);
  }
  int FilesLeftOut(const std::string&) override { return left_out; }
  storage::Outcome WriteFile(const std::string& path, std::string_view content) override {
    if (refuse) return storage::Fault::kFull;
    written[path] = content;
    return {};
  }

  std::map<std::string, Content> readable{{"/home/ann/", {{"Tarnwell"}, {}}},
                                          {"/home/ann/Tarnwell/", {}}};
  std::map<std::string, std::string> written;
  std::vector<forms::Place> more_places;
  bool refuse = false;
  int left_out = 0;
};

// A printer that keeps what it was given and answers `result`. `setup` is what its page-setup
// dialogue answers.
class FakePages : public forms::Pages {
 public:
  forms::TextMetrics& metrics() override { return fixed_metrics; }
  std::vector<std::string> FontNames() override { return {"Arial", "Times New Roman"}; }
  forms::PrintResult Print(const forms::Document& document) override {
    printed.push_back(document);
    return result;
  }
  void CopyPage(const forms::Document& document, int page) override {
    copied = document.pages.at(static_cast<std::size_t>(page));
  }
  forms::Margins Reach() override { return reach; }
  std::optional<forms::PageSetup> ChooseSetup(const forms::PageSetup& start) override {
    last_setup = start;
    return setup;
  }

  FixedMetrics fixed_metrics;
  std::vector<forms::Document> printed;
  forms::PrintResult result = forms::PrintResult::kDone;
  forms::Page copied;
  forms::Margins reach{0, 0, 0, 0};
  forms::PageSetup last_setup;
  std::optional<forms::PageSetup> setup;
};

// The pictures at some paths; there is nothing elsewhere.
class FakePictures : public forms::Pictures {
 public:
  forms::LoadedPicture Load(const std::string& path, int, int) override {
    const auto found = at.find(path);
    if (found != at.end()) return found->second;
    return {nullptr, storage::Fault::kMissing};
  }
  forms::PictureHead Look(const std::string& path) override {
    const forms::LoadedPicture picture = Load(path, 0, 0);
    return {picture.fault, picture.width, picture.height};
  }

  std::map<std::string, forms::LoadedPicture> at;
};

// Knows every word but the misspelled ones that it is told of, with what to suggest for them.
class FakeSpeller : public forms::Speller {
 public:
  bool available() override { return installed; }
  bool IsCorrect(std::string_view word) override {
    return !installed || !misspelled.contains(std::string(word));
  }
  std::vector<std::string> Suggest(std::string_view word) override {
    return installed ? misspelled[std::string(word)] : std::vector<std::string>();
  }

  bool installed = true;
  std::map<std::string, std::vector<std::string>> misspelled;
};

class FakeThesaurus : public forms::Thesaurus {
 public:
  bool available() override { return installed; }
  std::vector<forms::Meaning> LookUp(std::string_view word) override {
    return installed ? meanings[std::string(word)] : std::vector<forms::Meaning>();
  }

  bool installed = true;
  std::map<std::string, std::vector<forms::Meaning>> meanings;
};

// A modem on one of the machine's ports, which answers as it was told.
class FakeModem : public forms::Modem {
 public:
  std::string PortName(int number) override {
    const auto found = ports.find(number);
    return found == ports.end() ? std::string() : found->second;
  }
  bool Open(int number) override {
    Close();
    if (number == works_at) opened = number;
    return is_open();
  }
  bool is_open() override { return opened != 0; }
  void Close() override { opened = 0; }
  void Send(std::string_view bytes) override {
    EXPECT_TRUE(is_open()) << "sent to no port: " << bytes;
    sent.emplace_back(bytes);
  }
  void ClearInput() override { ++cleared; }
  std::string Receive() override {
    if (!is_open() || answers.empty()) return {};
    std::string next = std::move(answers.front());
    answers.pop_front();
    return next;
  }

  std::map<int, std::string> ports{{1, "/dev/ttyS0"}, {2, "/dev/ttyUSB0"}};
  int works_at = 1;
  std::deque<std::string> answers;  // what each call of Receive finds
  std::vector<std::string> sent;
  int opened = 0;  // number of the port
  int cleared = 0;
};

class FakeLauncher : public forms::Launcher {
 public:
  bool OpenWeb(std::string_view address) override { return Take("web ", address); }
  bool WriteMail(std::string_view address) override { return Take("mail ", address); }
  bool OpenProgramFolder() override { return Take("program folder", ""); }

  std::vector<std::string> launched;
  bool refuse = false;

 private:
  bool Take(std::string kind, std::string_view address) {
    if (!refuse) launched.push_back(kind.append(address));
    return !refuse;
  }
};

// Each folder is a disk of its own, until another is in its place.
class FakeVolumes : public forms::Volumes {
 public:
  std::optional<std::uint64_t> FreeBytes(const std::string&) override { return free_bytes; }
  std::string MountOf(const std::string& path) override { return gone ? "/" : path; }
  bool LiesIn(const std::string& path, const std::string& folder) override {
    return path.starts_with(folder);
  }

  std::optional<std::uint64_t> free_bytes = 1'474'560;
  bool gone = false;
};

// Everything that is lent but the program's folder.
struct FakeWorld {
  FakeClock clock;
  ScriptedDialogs dialogs;
  FakeEventLoop loop{clock};
  FakeWindow window;
  FakeHelp help;
  FakeClipboard clipboard;
  FakePages pages;
  FakeFolders folders;
  FakePictures pictures;
  FakeSpeller speller;
  FakeThesaurus thesaurus;
  FakeModem modem;
  FakeLauncher launcher;
  FakeVolumes volumes;

  forms::Services Lend(storage::ProgramFolder& folder) {
    return {folder,  clock,    dialogs, loop,      window, help,     clipboard, pages,
            folders, pictures, speller, thesaurus, modem,  launcher, volumes};
  }
};

}  // namespace tarnwell::testing
