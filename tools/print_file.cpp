#include "tools/print_file.h"

#include <array>
#include <ostream>
#include <string>

#include "storage/record_file.h"
#include "storage/sequential_file.h"
#include "storage/structure.h"
#include "text/code_page_1252.h"
#include "text/date_mask.h"
#include "text/leading_number.h"

namespace tarnwell::tools {
namespace {

using storage::TaggedValue;

constexpr std::string_view kHexDigits = "0123456789abcdef";

// In quotes, control characters as "\x0d".
std::string Quoted(std::string_view value) {
  std::string shown = "\"";
  for (const char letter : value) {
    const auto code = static_cast<unsigned char>(letter);
    if (code >= 0x20 && code != 0x7F) {
      shown += text::ToUtf8({&letter, 1}).bytes();
    } else {
      shown.append("\\x").append(1, kHexDigits[code >> 4]).append(1, kHexDigits[code & 15]);
    }
  }
  return shown + '"';
}

// A fixed text without the blanks, or in a torn record the zero bytes, that fill it up.
std::string_view WithoutPadding(std::string_view fixed) {
  return fixed.substr(0, fixed.find_last_not_of(std::string_view("\0 ", 2)) + 1);
}

struct TaggedPrinter {
  std::ostream& out;

  void operator()(std::monostate) const { out << "empty"; }
  void operator()(const std::string& value) const { out << Quoted(value); }
  void operator()(storage::SerialDate value) const {
    out << value.days << " days since 12/30/1899 (date)";
  }
  void operator()(std::int16_t value) const { out << value << " (2-byte integer)"; }
  void operator()(std::int32_t value) const { out << value << " (4-byte integer)"; }
  void operator()(float value) const { out << value << " (4-byte float)"; }
  void operator()(double value) const { out << value << " (8-byte float)"; }
};

void PrintValues(storage::SequentialReader& reader, int first, std::ostream& out) {
  for (int number = first; !reader.AtEnd(); ++number) {
    out << "value " << number << ": " << Quoted(reader.Next()) << '\n';
  }
}

void PrintRows(storage::SequentialReader& reader, const FileKind& kind, std::ostream& out) {
  int row = 1;
  for (; !reader.AtEnd() && (kind.row_count == 0 || row <= kind.row_count); ++row) {
    std::string line;
    for (const std::string_view column : kind.columns) {
      if (reader.AtEnd()) break;
      const std::string value = reader.Next();
      if (value.empty()) continue;
      line.append(line.empty() ? ": " : ", ").append(column).append(" ").append(Quoted(value));
    }
    if (!line.empty()) out << "row " << row << line << '\n';
  }
  PrintValues(reader, 1, out);
}

const RecordMeaning* MeaningOf(const FileKind& kind, int record) {
  for (const RecordMeaning& meaning : kind.meanings) {
    if (record >= meaning.first && record <= meaning.last) return &meaning;
  }
  return nullptr;
}

void PrintRecord(const FileKind& kind, int record, std::string_view bytes, std::ostream& out) {
  if (bytes.find_first_not_of('\0') == std::string_view::npos) return;
  const RecordMeaning* meaning = MeaningOf(kind, record);
  out << "record " << record << " (" << (meaning ? meaning->meaning : "not used") << "): ";
  storage::StructureReader reader(bytes);
  switch (meaning ? meaning->form : Form::kText) {
    case Form::kText:
      out << Quoted(reader.Text());
      break;
    case Form::kTagged:
      std::visit(TaggedPrinter{out}, storage::UnpackTagged(bytes));
      break;
    case Form::kInteger:
      out << reader.Int16();
      break;
  }
  out << '\n';
}

void PrintFields(const FileKind& kind, int record, std::string_view bytes, std::ostream& out) {
  storage::StructureReader reader(bytes);
  std::string line;
  for (const Field& field : kind.fields) {
    for (std::size_t i = 0; i < field.count; ++i) {
      const std::string value(WithoutPadding(reader.FixedText(field.width)));
      if (value.empty()) continue;
      line.append(line.empty() ? ": " : ", ").append(field.label).append(" ").append(Quoted(value));
    }
  }
  if (!line.empty()) out << "record " << record << line << '\n';
}

// The date of a planner record, none for a number that no date has.
text::Date PlannerDate(int year, int record) {
  const auto date = [year](int month, int day) {
    return text::MakeDate(year, static_cast<unsigned>(month), static_cast<unsigned>(day));
  };
  if (record > 400) return date(12, record - 400);
  if (record > 360) return date(11, record - 360);
  if (record > 320) return date(10, record - 320);
  return date(record % 10, record / 10);
}

void PrintDay(int year, int record, std::string_view bytes, std::ostream& out) {
  constexpr std::size_t kRows = 14;
  std::array<std::string, kRows> times;
  storage::StructureReader reader(bytes);
  for (std::string& time : times) time = WithoutPadding(reader.FixedText(10));
  std::array<std::string, kRows> entries;
  for (std::string& entry : entries) entry = WithoutPadding(reader.FixedText(50));
  if (WithoutPadding(reader.FixedText(10)) != "Full") return;
  const text::Date date = PlannerDate(year, record);
  out << (date.ok() ? text::FormatDate(date, "dddd, mmmm d, yyyy") : "no date") << " (record "
      << record << ")\n";
  for (std::size_t row = 0; row < kRows; ++row) {
    if (times[row].empty() && entries[row].empty()) continue;
    out << "  " << Quoted(times[row]) << "  " << Quoted(entries[row]) << '\n';
  }
}

void PrintRecords(storage::ProgramFolder& folder, std::string_view name, const FileKind& kind,
                  std::ostream& out) {
  const int year = static_cast<int>(text::LeadingNumber(name.substr(0, name.find('.'))));
  storage::RecordFile file(folder, name, kind.record_length);
  file.Scan(1, [&](int record, std::string_view bytes) {
    if (kind.layout == Layout::kFields) {
      PrintFields(kind, record, bytes, out);
    } else if (kind.layout == Layout::kPlannerDays) {
      PrintDay(year, record, bytes, out);
    } else {
      PrintRecord(kind, record, bytes, out);
    }
    return true;
  });
}

}  // namespace

void PrintFile(storage::ProgramFolder& folder, std::string_view name, const FileKind& kind,
               std::ostream& out) {
  if (!folder.Exists(name)) return;
  out << text::ToUtf8(name).bytes() << ": " << kind.title << ", " << folder.Length(name)
      << " bytes\n";
  if (kind.layout == Layout::kDocument) return;
  if (kind.record_length > 0) return PrintRecords(folder, name, kind, out);
  storage::SequentialReader reader(folder, name);
  kind.layout == Layout::kRows ? PrintRows(reader, kind, out) : PrintValues(reader, 1, out);
}

}  // namespace tarnwell::tools
