#include "richtext/runs.h"

#include <cstddef>
#include <utility>

namespace tarnwell::richtext {
namespace {

void MergeRuns(std::vector<Run>& runs) {
  std::vector<Run> merged;
  for (Run& run : runs) {
    if (merged.empty() || !TakeIn(run, merged.back())) merged.push_back(std::move(run));
  }
  runs = std::move(merged);
}

class FieldSettler {
 public:
  explicit FieldSettler(RichDocument& document)
      : document_(document), fields_(document.fields.size()) {}

  void Settle() {
    Walk([this](Paragraph& paragraph) { Confine(paragraph); });
    std::vector<Field> left;
    for (std::size_t i = 0; i < fields_.size(); ++i) {
      if (!fields_[i].used) continue;
      fields_[i].number = static_cast<int>(left.size());
      Field field = std::move(document_.fields[i]);
      field.parent = NumberOf(field.parent);
      left.push_back(std::move(field));
    }
    document_.fields = std::move(left);
    Walk([this](Paragraph& paragraph) {
      for (Run& run : paragraph.runs) run.field = NumberOf(run.field);
    });
  }

 private:
  struct State {
    int home = 0;  // the place its first run stands in; 0: not met yet
    bool used = false;
    int number = kNoField;
  };

  int NumberOf(int field) const {
    return field == kNoField ? kNoField : fields_[static_cast<std::size_t>(field)].number;
  }

  // A cell is a place of its own, and so is what stands between two tables or section breaks.
  template <typename Visit>
  void Walk(Visit visit) {
    place_ = 1;
    for (Block& block : document_.blocks) {
      if (auto* const paragraph = std::get_if<Paragraph>(&block)) {
        visit(*paragraph);
        if (!paragraph->section_break.empty()) ++place_;
        continue;
      }
      for (TableRow& row : std::get<Table>(block).rows) {
        for (Cell& cell : row.cells) {
          ++place_;
          for (Paragraph& paragraph : cell.paragraphs) visit(paragraph);
        }
      }
      ++place_;
    }
  }

  void Confine(Paragraph& paragraph) {
    bool has_changed = false;
    for (Run& run : paragraph.runs) {
      if (run.field == kNoField || IsAtHome(run.field)) continue;
      run.field = kNoField;
      has_changed = true;
    }
    if (has_changed) MergeRuns(paragraph.runs);
  }

  // A field is at home where the outermost one around it is.
  bool IsAtHome(int field) {
    int outermost = field;
    while (FieldAt(outermost).parent != kNoField) outermost = FieldAt(outermost).parent;
    State& state = fields_[static_cast<std::size_t>(outermost)];
    if (state.home == 0) state.home = place_;
    if (state.home != place_) return false;
    for (int id = field; id != kNoField; id = FieldAt(id).parent) {
      fields_[static_cast<std::size_t>(id)].used = true;
    }
    return true;
  }

  const Field& FieldAt(int field) const {
    return document_.fields[static_cast<std::size_t>(field)];
  }

  RichDocument& document_;
  std::vector<State> fields_;
  int place_ = 1;
};

}  // namespace

bool TakeIn(const Run& next, Run& last) {
  if (last.field != next.field || last.format != next.format) return false;
  auto* const text = std::get_if<std::string>(&last.content);
  const auto* const next_text = std::get_if<std::string>(&next.content);
  if (text != nullptr && next_text != nullptr) {
    *text += *next_text;
    return true;
  }
  auto* const opaque = std::get_if<Opaque>(&last.content);
  const auto* const next_opaque = std::get_if<Opaque>(&next.content);
  if (opaque == nullptr || next_opaque == nullptr || opaque->resets_paragraph ||
      next_opaque->resets_paragraph) {
    return false;
  }
  opaque->rtf += next_opaque->rtf;
  return true;
}

void SettleFields(RichDocument& document) {
  if (!document.fields.empty()) FieldSettler(document).Settle();
}

}  // namespace tarnwell::richtext
