#include "richtext/run_edit.h"

#include <cstddef>
#include <iterator>
#include <utility>

#include "richtext/paragraphs.h"
#include "richtext/runs.h"

namespace tarnwell::richtext {
namespace {

int LengthOf(const Run& run) { return static_cast<int>(ShownText(run).size()); }

// The last shown run that ends at or before `offset` or holds it; null for none.
const Run* RunBefore(const std::vector<Run>& runs, int offset) {
  const Run* before = nullptr;
  for (const Run& run : runs) {
    if (offset <= 0) break;
    if (!IsOpaque(run)) before = &run;
    offset -= LengthOf(run);
  }
  return before;
}

// The shown run that holds the character behind `offset`; null at the end.
const Run* RunBehind(const std::vector<Run>& runs, int offset) {
  for (const Run& run : runs) {
    if (offset < LengthOf(run)) return &run;
    offset -= LengthOf(run);
  }
  return nullptr;
}

}  // namespace

SplitRuns Split(const std::vector<Run>& runs, int offset) {
  SplitRuns parts;
  if (offset <= 0) return {{}, runs};
  for (const Run& run : runs) {
    const int length = LengthOf(run);
    if (!parts.tail.empty() || (offset == 0 && length > 0)) {
      parts.tail.push_back(run);
    } else if (length <= offset) {
      parts.head.push_back(run);
      offset -= length;
    } else {
      const auto& text = std::get<std::string>(run.content);
      const auto at = static_cast<std::size_t>(offset);
      parts.head.push_back({run.format, text.substr(0, at), run.field});
      parts.tail.push_back({run.format, text.substr(at), run.field});
    }
  }
  return parts;
}

void AppendRuns(std::vector<Run> more, std::vector<Run>& runs) {
  for (Run& run : more) {
    if (runs.empty() || !TakeIn(run, runs.back())) runs.push_back(std::move(run));
  }
}

void EraseShown(int from, int to, std::vector<Run>& runs) {
  SplitRuns end = Split(runs, to);
  SplitRuns start = Split(end.head, from);
  std::erase_if(start.tail, [](const Run& run) { return !IsOpaque(run); });
  runs = std::move(start.head);
  AppendRuns(std::move(start.tail), runs);
  AppendRuns(std::move(end.tail), runs);
}

void InsertRuns(std::vector<Run> inserted, int offset, std::vector<Run>& runs) {
  SplitRuns parts = Split(runs, offset);
  runs = std::move(parts.head);
  AppendRuns(std::move(inserted), runs);
  AppendRuns(std::move(parts.tail), runs);
}

void Reformat(int from, int to, const std::function<void(CharacterFormat&)>& change,
              std::vector<Run>& runs) {
  SplitRuns end = Split(runs, to);
  SplitRuns start = Split(end.head, from);
  for (Run& run : start.tail) {
    if (!IsOpaque(run)) change(run.format);
  }
  runs = std::move(start.head);
  AppendRuns(std::move(start.tail), runs);
  AppendRuns(std::move(end.tail), runs);
}

Typing TypingAt(const Paragraph& paragraph, int offset) {
  const Run* const before = RunBefore(paragraph.runs, offset);
  const Run* const behind = RunBehind(paragraph.runs, offset);
  if (before == nullptr && behind == nullptr) return {paragraph.mark, kNoField};
  const bool inside = before != nullptr && behind != nullptr && before->field == behind->field;
  return {(before != nullptr ? before : behind)->format, inside ? before->field : kNoField};
}

CharacterFormat FormatBehind(const Paragraph& paragraph, int offset) {
  const Run* const behind = RunBehind(paragraph.runs, offset);
  return behind != nullptr ? behind->format : TypingAt(paragraph, offset).format;
}

}  // namespace tarnwell::richtext
