#include "workarea/text_tools.h"

#include <algorithm>
#include <utility>

#include "forms/form.h"
#include "forms/message.h"
#include "proofing/spelling.h"
#include "proofing/synonyms.h"

namespace tarnwell::workarea {
namespace {

using richtext::Alignment;

constexpr Alignment kAlignments[] = {Alignment::kLeft, Alignment::kCenter, Alignment::kRight};

// The paragraphs of the document, checked where they stand.
class CheckedDocument : public proofing::CheckedText {
 public:
  explicit CheckedDocument(forms::RichTextBox& text) : text_(text) {}

  int parts() override { return text_.paragraph_count(); }
  std::string part(int index) override { return text_.ParagraphText(index); }
  void Show(int index, std::size_t offset, std::size_t length) override {
    text_.Select(RangeOf(index, offset, length));
  }
  void Replace(int index, std::size_t offset, std::size_t length, std::string_view utf8) override {
    text_.Replace(RangeOf(index, offset, length), utf8);
    changed = true;
  }

  bool changed = false;

 private:
  static richtext::Range RangeOf(int paragraph, std::size_t offset, std::size_t length) {
    return {{paragraph, static_cast<int>(offset)}, {paragraph, static_cast<int>(offset + length)}};
  }

  forms::RichTextBox& text_;
};

}  // namespace

TextTools::TextTools(forms::Container& parent, forms::Context& context, forms::RichTextBox& text)
    : font(parent, "SSCommand8", "&Font Select"),
      spelling(parent, "SSCommand10", "Spell &Check"),
      thesaurus(parent, "SSCommand9", "&Thesaurus"),
      find_mark(parent, "SSCommand29", "Find Next Insertion Point"),
      alignment_frame(parent, "SSFrame2", "Text Location"),
      alignment(alignment_frame, "SSOption1", {"Left", "Center", "Right"}),
      context_(context),
      text_(text) {
  spelling.SetToolTip("Spell Check (F7)");
  find_mark.SetToolTip("Find Next Insertion Point (F8)");
  font.on_click = [this] { ChooseFont(); };
  spelling.on_click = [this] { CheckSpelling(); };
  thesaurus.on_click = [this] { LookUp(); };
  find_mark.on_click = [this] { FindMark(); };
  alignment.on_pick = [this](int option) { Align(option); };
  subscription_ = text_.OnChanged([this] { ShowAlignment(); });
}

void TextTools::StartSearch(std::string_view mark) {
  mark_ = mark;
  SearchFrom({});
  if (std::exchange(has_noted_, false)) text_.form().SetStatus({});  // that was the text before
}

void TextTools::Enable(bool search, bool change) {
  find_mark.SetEnabled(search);
  for (forms::Control* tool :
       std::initializer_list<forms::Control*>{&font, &spelling, &thesaurus, &alignment_frame}) {
    tool->SetEnabled(change);
  }
}

void TextTools::ChooseFont() {
  const auto chosen = context_.dialogs.ChooseFont(text_.SelectionFont());
  if (chosen) {
    text_.SetSelectionFont(*chosen);
    Changed();
  }
  text_.Focus();
}

void TextTools::Align(int option) {
  text_.SetSelectionAlignment(kAlignments[option]);
  Changed();
  text_.Focus();
}

void TextTools::ShowAlignment() {
  const Alignment shown = text_.SelectionAlignment();
  int option = forms::OptionGroup::kNone;
  for (int i = 0; i < alignment.size(); ++i) {
    if (kAlignments[i] == shown) option = i;
  }
  if (option != alignment.chosen()) alignment.Choose(option);
}

void TextTools::CheckSpelling() {
  CheckedDocument document(text_);
  const std::size_t corrected = proofing::CheckSpelling(context_, document).changes.size();
  if (document.changed) Changed();
  forms::ShowMessage(
      context_,
      {"Spell Check", "Spell Check has been canceled or has reached the end of your document",
       forms::Icon::kInformation});
  text_.form().SetStatus(proofing::CorrectedNote(corrected));
  has_noted_ = true;
  text_.Focus();
}

void TextTools::LookUp() {
  const std::string selected = text_.SelectedText();
  richtext::Range range = text_.selection();
  if (range.from.paragraph == range.to.paragraph) {
    range.to.offset = range.from.offset + static_cast<int>(proofing::WordToLookUp(selected).size());
    text_.Select(range);
  }
  if (const auto synonym = proofing::LookUpSynonym(context_, selected)) {
    text_.Replace(range, *synonym);
    Changed();
  }
  text_.Focus();
}

void TextTools::SearchFrom(richtext::Position position) {
  position_ = position;
  const std::string text = text_.ParagraphText(position.paragraph);
  const auto offset = std::min(static_cast<std::size_t>(position.offset), text.size());
  head_ = text.substr(0, offset);
  rest_ = text.substr(offset);
  paragraphs_ = text_.paragraph_count();
  spans_known_ = text_.spans_made();
}

// What stood behind the place ends a paragraph still, so many farther as paragraphs came; unless
// the edit was behind it. Where neither holds, the search begins again above the edit: rather a
// mark twice than one left out.
void TextTools::FollowEdit() {
  if (text_.spans_made() == spans_known_) return;
  const auto spans = text_.SpansFrom(spans_known_);
  if (!spans || position_ == richtext::Position{}) return SearchFrom({});
  const int first =
      std::ranges::min(*spans, {}, &richtext::ChangedSpan::first_paragraph).first_paragraph;
  const int paragraph = position_.paragraph;
  const int moved = paragraph + text_.paragraph_count() - paragraphs_;
  const std::string text = text_.ParagraphText(moved);
  if (first > paragraph) {
    SearchFrom(position_);
  } else if (moved >= first && text.ends_with(rest_)) {
    SearchFrom({moved, static_cast<int>(text.size() - rest_.size())});
  } else if (first == paragraph && text_.ParagraphText(paragraph).starts_with(head_)) {
    SearchFrom(position_);
  } else {
    SearchFrom({first, 0});
  }
}

void TextTools::FindMark() {
  FollowEdit();
  if (const auto found = text_.Find(mark_, position_)) {
    SearchFrom(found->to);
    text_.Select(*found);
  } else {
    SearchFrom({});
    forms::ShowMessage(context_, {"Search Document", "Search has reached the end of the document.",
                                  forms::Icon::kInformation});
  }
  text_.Focus();
}

void TextTools::Changed() {
  if (on_change) on_change();
}

}  // namespace tarnwell::workarea
