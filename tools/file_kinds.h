// Every kind of data file, found by its name.

#pragma once

#include <cstddef>
#include <span>
#include <string_view>

namespace tarnwell::tools {

enum class Layout {
  kValues,       // sequential file, one value behind the other
  kRows,         // sequential file, its values in rows of named columns
  kRecords,      // record file whose numbers have meanings of their own
  kFields,       // record file of like records, each a list of fixed texts
  kPlannerDays,  // planner year file
  kDocument,     // document text or picture; not ours to print
};

enum class Form { kText, kTagged, kInteger };

// What the records from `first` to `last` mean.
struct RecordMeaning {
  int first;
  int last;
  Form form;
  std::string_view meaning;
};

// `count` fixed texts of `width` bytes each.
struct Field {
  std::size_t width;
  std::size_t count;
  std::string_view label;
};

struct FileKind {
  // "#" is a digit, "+" one or more digits, "?" a character, "*" any number of them; capitals
  // don't count.
  std::string_view pattern;
  std::string_view title;
  Layout layout;
  std::string_view page = {};  // of docs/formats/, where the kind has one of its own

  int record_length = 0;
  std::span<const RecordMeaning> meanings = {};  // a record not listed is a text
  std::span<const Field> fields = {};
  std::span<const std::string_view> columns = {};
  int row_count = 0;  // rows before single values follow; 0 for rows to the end
};

std::span<const FileKind> AllFileKinds();

// The first kind whose pattern the name (code page 1252) matches, or none.
const FileKind* FindFileKind(std::string_view name);

}  // namespace tarnwell::tools
