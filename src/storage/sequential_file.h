// Comma-and-line separated values, texts in quotes. docs/formats/sequential-file.md has the
// grammar.

#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "storage/program_folder.h"

namespace tarnwell::storage {

// Reads the whole file at once. A missing file is at its end from the start, and so is one that
// can't be read.
class SequentialReader {
 public:
  // `longest` in bytes; a larger file can't be read.
  SequentialReader(ProgramFolder& folder, std::string_view name,
                   std::uint64_t longest = kMaxSequentialFile);
  explicit SequentialReader(std::string content) : content_(std::move(content)) {}

  // The largest list of the program, 20,000 names, takes a quarter of it.
  static constexpr std::uint64_t kMaxSequentialFile = 8u << 20;

  // There is a file, and it can't be read: what came of it may not be written back.
  bool is_unreadable() const { return fault_ != Fault::kNone && fault_ != Fault::kMissing; }
  Fault fault() const { return fault_; }

  bool AtEnd() const { return place_ >= content_.size(); }
  // A quoted text up to its closing quote, or an unquoted run up to the next comma or line end,
  // without the blanks around it. Empty at the end.
  std::string Next();

 private:
  void SkipPast(std::size_t end);

  std::string content_;
  std::size_t place_ = 0;
  Fault fault_ = Fault::kNone;
};

// The text with apostrophes for its double quotes, at which a reader would stop. For the field in
// which a person types what a sequential file is to keep, so that nothing of it is lost unseen.
std::string WithoutQuotes(std::string_view text);

// Collects lines; Save replaces the file whole.
class SequentialWriter {
 public:
  using Value = std::variant<double, std::string_view>;

  // One line: texts in quotes, numbers bare, commas between them, CR LF behind. A double quote
  // inside a text is not escaped: a reader stops the value at it. A number that isn't finite is
  // written as 0.
  void WriteLine(std::initializer_list<Value> values);
  void WriteText(std::string_view text) { WriteLine({text}); }

  Outcome Save(ProgramFolder& folder, std::string_view name) const;
  const std::string& content() const { return content_; }

 private:
  std::string content_;
};

// A name list: one quoted text a line, in list order. A missing file is an empty list. One that
// can't be read is empty too, with the reason in `fault`: nothing may be written over it.
struct NameList {
  std::vector<std::string> names;
  Fault fault = Fault::kNone;
};
NameList ReadNameList(ProgramFolder& folder, std::string_view name);
Outcome WriteNameList(ProgramFolder& folder, std::string_view name,
                      const std::vector<std::string>& names);

}  // namespace tarnwell::storage
