#include "workarea/rule_references.h"

#include "forms/control_array.h"
#include "print/table.h"
#include "storage/file_names.h"

namespace tarnwell::workarea {
namespace {

constexpr std::string_view kTexts[] = {
    storage::file_names::kRuleSpecifications,
    storage::file_names::kRuleReferences,
    storage::file_names::kRuleInformation,
};

const RuleRow& RowOf(int index) { return RuleRows()[static_cast<std::size_t>(index)]; }

}  // namespace

RuleButton::RuleButton(forms::Container& parent, int index)
    : standard(parent, forms::MemberName("Label15", index),
               std::string(RowOf(index).standard).append("  ").append(RowOf(index).section)),
      button(parent, forms::MemberName("SSCommand13", index), RowOf(index).specification) {}

RuleReferences::RuleReferences(forms::Container& rows_parent, DocumentView& view)
    : frame(view.panel, "SSFrame3", "References"), panel(rows_parent, "SSPanel10"), view_(view) {
  frame.SetVisible(false);
  panel.SetVisible(false);
  frame.Cover({&view.actions});
  views.Add(frame, "SSOption6", "Implementation specification");
  views.Add(frame, "SSOption2", "References in Rule");
  views.Add(frame, "SSOption7", "Additional Information");
  for (int i = 0; i < static_cast<int>(RuleRows().size()); ++i) {
    rows.push_back(std::make_unique<RuleButton>(panel, i));
    rows.back()->button.on_click = [this, i] { Choose(i); };
  }
}

void RuleReferences::Open(int reference) {
  reference_ = reference;
  views.Choose(reference);
  panel.SetVisible(true);
  Show();
}

void RuleReferences::Close() {
  row_ = 0;
  views.Choose(forms::OptionGroup::kNone);
  panel.SetVisible(false);
}

void RuleReferences::Choose(int row) {
  if (row == row_) return;
  row_ = row;
  Show();
}

std::string RuleReferences::Title() const { return std::string(RowOf(row_).specification); }

void RuleReferences::Show() {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    rows[i]->button.SetSelected(static_cast<int>(i) == row_);
  }
  view_.Open(kTexts[reference_], DocumentView::Access::kRead);
  view_.heading.SetCaption(Title());
  std::vector<std::string> paragraphs;
  for (int i = 0; i < view_.text.paragraph_count(); ++i) {
    paragraphs.push_back(view_.text.ParagraphText(i));
  }
  const int section = FindSection(paragraphs, SafeguardWord(RowOf(row_).safeguard));
  if (section < 0) return;
  // From below, so that the section stands at the head of the view and not at its foot.
  const int last = static_cast<int>(paragraphs.size()) - 1;
  view_.text.Select({{last, 0}, {last, 0}});
  const int end = static_cast<int>(paragraphs[static_cast<std::size_t>(section)].size());
  view_.text.Select({{section, 0}, {section, end}});
}

void RuleReferences::Print(print::PageEngine& engine) {
  const std::vector<int> widths = print::Shares(engine.ColumnWidth(), {0.3, 0.2, 0.5});
  print::Table table(engine,
                     {{"Standard", widths[0]},
                      {"Section", widths[1]},
                      {"Implementation specification", widths[2]}},
                     print::TableLines::kAll);
  for (const RuleRow& row : RuleRows()) {
    table.Row(
        {std::string(row.standard), std::string(row.section), std::string(row.specification)});
  }
  engine.Paragraph(kRuleNote);
}

}  // namespace tarnwell::workarea
