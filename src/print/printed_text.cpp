#include "print/printed_text.h"

#include <algorithm>
#include <utility>

#include "richtext/capitals.h"
#include "richtext/field_link.h"
#include "richtext/kept_pieces.h"
#include "richtext/sections.h"

namespace tarnwell::print {
namespace {

using richtext::Opaque;
using richtext::Paragraph;
using richtext::Run;

constexpr double kSmallCapital = 0.8;  // of the letters' size

// A footnote in "ftnalt" is an endnote.
bool IsEndnote(const richtext::KeptPiece& note) {
  return note.body.substr(0, 16).find("\\ftnalt") != std::string_view::npos;
}

template <typename Visit>
void ForEachParagraph(richtext::RichDocument& document, Visit visit) {
  for (richtext::Block& block : document.blocks) {
    if (auto* const paragraph = std::get_if<Paragraph>(&block)) {
      visit(*paragraph);
      continue;
    }
    for (richtext::TableRow& row : std::get<richtext::Table>(block).rows) {
      for (richtext::Cell& cell : row.cells) std::ranges::for_each(cell.paragraphs, visit);
    }
  }
}

// The text of a field of pages; empty for any other.
std::string NumberOf(const std::string& instruction, const PageNumbers& numbers) {
  const std::string words = richtext::InstructionText(instruction);
  const std::size_t begin = words.find_first_not_of(' ');
  const std::string name =
      begin == std::string::npos ? "" : words.substr(begin, words.find(' ', begin) - begin);
  const bool is_page = name == "PAGE";
  if (!is_page && name != "NUMPAGES") return {};
  const int number = is_page ? numbers.number : numbers.pages;
  using Style = richtext::PageNumbers;
  if (words.find("ROMAN") != std::string::npos) return PageNumberText(number, Style::kUpperRoman);
  if (words.find("roman") != std::string::npos) return PageNumberText(number, Style::kLowerRoman);
  return is_page ? numbers.text : std::to_string(number);
}

void SetFields(const PageNumbers& numbers, const richtext::RichDocument& part,
               Paragraph& paragraph) {
  int last = richtext::kNoField;
  std::vector<Run> runs;
  for (Run& run : paragraph.runs) {
    const bool is_text = std::holds_alternative<std::string>(run.content);
    std::string number;
    if (is_text && run.field != richtext::kNoField) {
      number = NumberOf(part.fields[static_cast<std::size_t>(run.field)].instruction, numbers);
    }
    if (!number.empty() && run.field == last) continue;
    last = number.empty() ? richtext::kNoField : run.field;
    if (!number.empty()) run.content = std::move(number);
    runs.push_back(std::move(run));
  }
  paragraph.runs = std::move(runs);
}

// "\chpgn", and a field without a result.
void SetSigns(const PageNumbers& numbers, Paragraph& paragraph) {
  std::vector<Run> runs;
  for (Run& run : paragraph.runs) {
    const auto* const opaque = std::get_if<Opaque>(&run.content);
    if (opaque == nullptr || opaque->resets_paragraph) {
      runs.push_back(std::move(run));
      continue;
    }
    for (const richtext::KeptPiece& piece : richtext::KeptPieces(opaque->rtf)) {
      std::string text;
      if (piece.name == "chpgn") text = numbers.text;
      if (piece.name == "field") text = NumberOf(std::string(piece.body), numbers);
      if (text.empty()) {
        runs.push_back({run.format, Opaque{std::string(piece.source)}, run.field});
      } else {
        runs.push_back({run.format, std::move(text), run.field});
      }
    }
  }
  paragraph.runs = std::move(runs);
}

}  // namespace

bool PrintedText::Changes(const Paragraph& paragraph) {
  return std::ranges::any_of(paragraph.runs, [](const Run& run) {
    if (const auto* const opaque = std::get_if<Opaque>(&run.content)) {
      return opaque->rtf.find("chftn") != std::string::npos ||
             opaque->rtf.find("\\footnote") != std::string::npos;
    }
    return run.format.other.find("caps") != std::string::npos;
  });
}

PrintedText::Printed PrintedText::Of(const Paragraph& paragraph) {
  Printed printed;
  printed.paragraph.format = paragraph.format;
  printed.paragraph.mark = paragraph.mark;
  for (const Run& run : paragraph.runs) {
    const auto* const opaque = std::get_if<Opaque>(&run.content);
    if (const auto* const text = std::get_if<std::string>(&run.content)) {
      AddText(run, *text, printed);
    } else if (opaque == nullptr || opaque->resets_paragraph) {
      printed.paragraph.runs.push_back(run);
    } else {
      AddKept(run, opaque->rtf, printed);
    }
  }
  return printed;
}

void PrintedText::AddText(const Run& run, std::string text, Printed& printed) const {
  const auto capitals = richtext::CapitalsOf(run.format);
  if (capitals == richtext::CapitalLetters::kSmall) {
    for (richtext::CapitalPart& part : richtext::SmallCapitals(text)) {
      Run small = run;
      if (part.is_small) {
        small.format.half_points =
            std::max(1, static_cast<int>(run.format.half_points * kSmallCapital));
      }
      small.content = std::move(part.text);
      printed.paragraph.runs.push_back(std::move(small));
    }
    return;
  }
  if (capitals == richtext::CapitalLetters::kAll) text = richtext::Capitals(text);
  printed.paragraph.runs.push_back({run.format, std::move(text), run.field});
}

void PrintedText::AddKept(const Run& run, const std::string& rtf, Printed& printed) {
  std::vector<Run>& runs = printed.paragraph.runs;
  for (const richtext::KeptPiece& piece : richtext::KeptPieces(rtf)) {
    if (piece.name == "chftn") {
      // Which kind of note it is for shows at the note.
      pending_ = note_.value_or(std::to_string(footnotes_ + 1));
      pending_run_ = runs.size();
      runs.push_back({run.format, pending_, run.field});
    }
    if (piece.name != "footnote" || note_) continue;
    FoundNote note;
    note.is_endnote = IsEndnote(piece);
    note.rtf =
        "\\uc" + std::to_string(piece.unicode_skip) + "\\pard\\plain " + std::string(piece.body);
    if (!std::exchange(pending_, {}).empty() && pending_run_ < runs.size()) {
      note.number = NextNumber(note.is_endnote);
      runs[pending_run_].content = note.number;
    }
    printed.note_runs.push_back(runs.size());
    printed.notes.push_back(std::move(note));
    runs.push_back({run.format, Opaque{}, run.field});
  }
}

std::string PrintedText::NextNumber(bool is_endnote) {
  if (!is_endnote) return std::to_string(++footnotes_);
  return richtext::PageNumberText(++endnotes_, richtext::PageNumbers::kLowerRoman);
}

void SetPageNumbers(const PageNumbers& numbers, richtext::RichDocument& part) {
  ForEachParagraph(part, [&](Paragraph& paragraph) {
    SetFields(numbers, part, paragraph);
    SetSigns(numbers, paragraph);
  });
}

}  // namespace tarnwell::print
