// A document of 300 pages: opened, typed in and saved. Opening is measured against the bare read of
// the file, saving against the bare safe write of what it gives, a key with the painting of what it
// changed against one frame of the screen. Runs where QT_QPA_PLATFORM says, "offscreen" if nothing
// does.

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <string>
#include <vector>

#include "bench_folder.h"
#include "document_editor.h"
#include "ratio_table.h"
#include "richtext/rich_text_writer.h"
#include "storage/program_folder.h"
#include "windows.h"

namespace tarnwell::bench {
namespace {

constexpr int kPages = 300;
constexpr int kParagraphsPerPage = 10;
constexpr int kKeys = 300;  // at each place
constexpr int kOpenings = 9;
constexpr double kLongestKey = 16;  // milliseconds, a frame of the screen
constexpr double kLongestOpening = 40;
constexpr double kLongestOfAll = 300;
constexpr double kLongestLook = 1;  // likewise, beside all else that a key does
// The bare read only copies memory; ours reads a language and lays out the first screens.
constexpr double kMostOpening = 500;

std::string MakeDocument() {
  std::string rtf =
      "{\\rtf1\\ansi{\\fonttbl{\\f0 Times New Roman;}{\\f1 Arial;}}{\\colortbl;\\red0\\green0"
      "\\blue160;}\n";
  for (int i = 0; i < kPages * kParagraphsPerPage; ++i) {
    const std::string number = std::to_string(i + 1);
    if (i % kParagraphsPerPage == 0) {
      rtf += "\\pard\\qc\\sb240\\plain\\f1\\fs32\\b Section " + number + "\\par\n";
    } else if (i % 50 == 25) {
      rtf += "\\trowd\\trgaph108\\cellx4320\\cellx8640\\pard\\intbl\\plain Staff " + number +
             "\\cell Days\\cell\\row\n";
    } else {
      rtf += "\\pard\\qj\\sa120\\plain\\f0\\fs24 Paragraph " + number + ": ";
      for (int sentence = 0; sentence < 4; ++sentence) {
        rtf +=
            "The company grants each member of its staff {\\b paid leave} of twelve days a year"
            " after {\\cf1\\i three months} of service. ";
      }
      rtf += "\\par\n";
    }
  }
  return rtf + "}\n";
}

double PressNext(Editor& editor, int number) {
  const std::pair<int, QString> kKinds[] = {{Qt::Key_A, QStringLiteral("a")},
                                            {Qt::Key_Space, QStringLiteral(" ")},
                                            {Qt::Key_Return, QStringLiteral("\r")},
                                            {Qt::Key_Backspace, QString()}};
  const auto& [key, text] = kKinds[number % 8 < 5 ? 0 : number % 8 - 4];
  return editor.Press(key, text);
}

bool MeasureOpening(Editor& editor, const std::string& bytes) {
  std::vector<double> times;
  for (int i = 0; i < kOpenings; ++i) {
    times.push_back(Editor::Time([&] { editor.Open(bytes); }));
  }
  return TellWorst("Read 300 pages and show the first screen", std::move(times), kLongestOpening);
}

// While the rest of the document is still on its way to the screen.
bool MeasureFirstKeys(Editor& editor, const std::string& bytes) {
  std::vector<double> arrows;
  editor.Open(bytes);
  for (double passed = 0; passed < 1000; passed += arrows.back()) {
    arrows.push_back(editor.Press(Qt::Key_Down));
  }
  std::vector<double> letters;
  editor.Open(bytes);
  for (int i = 0; i < 3 * kKeys; ++i) letters.push_back(PressNext(editor, i));
  const bool steps = TellWorst("An arrow key in the first second", std::move(arrows), kLongestKey);
  return TellWorst("A key from the first screen on", std::move(letters), kLongestKey) && steps;
}

bool MeasureKeys(Editor& editor, const std::string& bytes) {
  std::vector<double> times;
  editor.Open(bytes);
  editor.GoTo(kPages * kParagraphsPerPage);
  for (const int place : {1, kPages * kParagraphsPerPage / 2, kPages * kParagraphsPerPage - 2}) {
    editor.GoTo(place);
    for (int i = 0; i < kKeys; ++i) times.push_back(PressNext(editor, i));
  }
  return TellWorst("A key in 300 pages", std::move(times), kLongestKey);
}

bool MeasureTable(Editor& editor, const std::string& bytes) {
  std::vector<double> times;
  editor.Open(bytes);
  editor.GoTo(kPages * kParagraphsPerPage);
  // The first table, behind 25 paragraphs.
  editor.GoTo(25);
  for (int i = 0; i < kKeys; ++i) {
    const bool back = i % 2 != 0;
    times.push_back(editor.ChangeTable(25, back ? 5000 : 4320, back ? 4320 : 5000));
  }
  return TellWorst("A table changed in 300 pages", std::move(times), kLongestKey);
}

bool MeasureBold(Editor& editor, const std::string& bytes) {
  std::vector<double> times;
  for (int i = 0; i < kOpenings; ++i) {
    editor.Open(bytes);
    const double all = editor.Press(Qt::Key_A, {}, Qt::ControlModifier);
    times.push_back(all + editor.Press(Qt::Key_B, {}, Qt::ControlModifier));
  }
  return TellWorst("Select all of 300 pages and make it bold", std::move(times), kLongestOfAll);
}

// What the bar above a document asks at each move of the cursor, and for a selection of everything.
bool MeasureLook(Editor& editor, const std::string& bytes) {
  editor.Open(bytes);
  const int last = kPages * kParagraphsPerPage - 2;
  std::vector<double> times;
  for (const richtext::Range& place :
       {richtext::Range{{1, 3}, {1, 3}}, {{last, 3}, {last, 3}}, {{0, 0}, {last, 3}}}) {
    times.push_back(editor.TimeOfLook(place));
  }
  return TellWorst("The state at the cursor in 300 pages", std::move(times), kLongestLook);
}

std::string ReadBare(const std::string& path, std::size_t size) {
  std::string bytes(size, '\0');
  const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  Check(IsWhole(::read(file, bytes.data(), size), size), "read");
  ::close(file);
  return bytes;
}

void WriteBare(const std::string& folder, std::string_view content) {
  const std::string sibling = folder + "/bare.tmp";
  const int file = ::open(sibling.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  Check(IsWhole(::write(file, content.data(), content.size()), content.size()), "write");
  Check(::fdatasync(file) == 0, "fdatasync");
  ::close(file);
  Check(std::rename(sibling.c_str(), (folder + "/bare.Fl2").c_str()) == 0, "rename");
  const int directory = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  Check(::fsync(directory) == 0, "fsync of the folder");
  ::close(directory);
}

int Run(const std::string& parent) {
  const BenchFolder disk(parent);
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  const std::string bytes = MakeDocument();
  Check(folder.WriteWhole("Policy.Fl2", bytes), "write the document");
  const std::string path = disk.path() + "/Policy.Fl2";
  Editor editor(folder);
  RatioTable table;
  std::size_t read = 0;
  table.Measure(
      "Open 300 pages up to the first screen", kMostOpening, 5,
      [&] { editor.Open(ReadBare(path, bytes.size())); },
      [&] { read += ReadBare(path, bytes.size()).size(); });
  Check(read == 6 * bytes.size(), "read the document");
  const richtext::StoredForm stored = richtext::StoredFormOf(bytes, editor.document());
  bool is_quick = true;
  for (const auto& measure :
       {MeasureOpening, MeasureFirstKeys, MeasureKeys, MeasureTable, MeasureBold, MeasureLook}) {
    is_quick = measure(editor, bytes) && is_quick;
  }
  editor.Press(Qt::Key_A, QStringLiteral("a"));
  table.Measure(
      "Save 300 pages that were changed", 2, 9,
      [&] {
        const std::string rtf = richtext::SaveRichText(editor.document(), stored);
        Check(rtf != bytes && folder.WriteWhole("Policy.Fl2", rtf), "save");
      },
      [&] { WriteBare(disk.path(), richtext::WriteRichText(editor.document())); });
  return table.Print() && is_quick ? 0 : 1;
}

}  // namespace
}  // namespace tarnwell::bench

int main(int count, char** arguments) {
  return tarnwell::bench::RunInWindows(count, arguments, tarnwell::bench::Run);
}
