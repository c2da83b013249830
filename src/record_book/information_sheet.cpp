#include "record_book/information_sheet.h"

#include <algorithm>

#include "print/picture_size.h"
#include "print/report.h"

namespace tarnwell::record_book {
namespace {

constexpr int kFirstSecondLine = 3;  // entry: the address's
constexpr int kFirstRowOfSheet = 2;
constexpr double kLargerTitle = 2;  // points
constexpr int kInch = forms::kTwipsPerInch;
constexpr int kPictureLeft = kInch;
constexpr int kPictureTop = kInch;
constexpr int kBelowTitle = 200;        // twips
constexpr int kBelowPicture = 240;      // twips
constexpr int kBetweenRows = 60;        // twips
constexpr double kWorksheetStep = 2.3;  // lines of the font
constexpr forms::Color kRuleGray = 0x808080;
constexpr int kBeforeRule = 80;  // twips between a caption and the line to write on

std::string HeadingOf(const EntryStyle& style, const std::vector<std::string>& entries) {
  std::string name =
      entries[0].substr(std::min(entries[0].find_first_not_of(' '), entries[0].size()));
  if (style.book->two_names) name += " " + entries[1];
  return "Information Sheet For " + name;
}

// Lines of several, as the last entry may have.
void Paragraphs(print::PageEngine& engine, std::string_view text) {
  while (true) {
    const std::size_t end = text.find("\r\n");
    engine.Paragraph(text.substr(0, end));
    if (end == text.npos) return;
    text.remove_prefix(end + 2);
  }
}

void PrintPicture(print::PageEngine& engine, const forms::LoadedPicture& picture, int inches) {
  const int side = inches * kInch;
  const print::PictureSize size = print::FittedInto({side, side}, {picture.width, picture.height});
  engine.Add(forms::PlacedImage{kPictureLeft, kPictureTop, size.width, size.height, picture.png});
  engine.MoveTo(std::max(engine.y(), kPictureTop + side + kBelowPicture));
}

void HeadLine(print::PageEngine& engine, std::string_view caption) {
  const forms::Font usual = engine.font();
  forms::Font head = usual;
  head.bold = true;
  head.underline = true;
  engine.SetFont(head);
  engine.Line(caption, print::Align::kCenter);
  engine.SetFont(usual);
  engine.Skip(kBetweenRows);
}

void BlankRow(print::PageEngine& engine, std::string_view label) {
  const int step = static_cast<int>(engine.LineHeight() * kWorksheetStep);
  if (!engine.HasRoom(step)) engine.NewPage();
  const int y = engine.y();
  const int rule = y + engine.LineHeight();
  engine.TextAt(engine.left(), y, label);
  engine.Add(forms::PlacedLine{engine.left() + engine.TextWidth(label) + kBeforeRule, rule,
                               engine.right(), rule, kRuleGray});
  engine.Skip(step);
}

}  // namespace

std::vector<std::string> LabelsOf(const EntryStyle& style) {
  std::vector<std::string> labels;
  for (const EntryField& field : style.fields) {
    if (!field.label.empty()) labels.emplace_back(field.label);
  }
  return labels;
}

std::string CaptionBefore(const EntryStyle& style, int entry) {
  const std::vector<std::string> labels = LabelsOf(style);
  const auto place = static_cast<std::size_t>(entry > kFirstSecondLine ? entry - 1 : entry);
  return labels[std::min(place, labels.size() - 1)];
}

std::string CopiedText(const EntryStyle& style, const std::vector<std::string>& entries) {
  constexpr std::size_t kIndent = 15;
  std::string copied;
  for (std::size_t i = 0; i < entries.size(); ++i) {
    if (entries[i].empty()) continue;
    const int entry = static_cast<int>(i);
    copied +=
        entry == kFirstSecondLine ? std::string(kIndent, ' ') : CaptionBefore(style, entry) + " ";
    copied += entries[i] + "\r\n";
  }
  return copied;
}

int InchesOf(SheetPicture size) {
  return size == SheetPicture::kLarge ? 3 : size == SheetPicture::kSmall ? 2 : 0;
}

void PrintInformationSheet(print::PageEngine& engine, const EntryStyle& style,
                           const std::vector<std::string>& entries,
                           const forms::LoadedPicture& picture, SheetPicture size) {
  print::TitleLine(engine, HeadingOf(style, entries), kLargerTitle);
  engine.Skip(kBelowTitle);
  if (picture.png && size != SheetPicture::kNone) PrintPicture(engine, picture, InchesOf(size));
  for (int entry = kFirstRowOfSheet; entry <= kLastRowOfSheet; ++entry) {
    const std::string& text = entries[static_cast<std::size_t>(entry)];
    if (text.empty()) continue;
    const std::string caption =
        entry == kFirstSecondLine ? "Address:" : CaptionBefore(style, entry);
    Paragraphs(engine, caption + "  " + text);
    engine.Skip(kBetweenRows);
  }
}

void PrintWorksheet(print::PageEngine& engine, const EntryStyle& style) {
  print::TitleLine(engine, std::string(style.worksheet) + " Data Worksheet", kLargerTitle);
  engine.Skip(kBelowTitle);
  const std::vector<std::string> labels = LabelsOf(style);
  for (std::size_t i = 0; i < labels.size(); ++i) {
    const int label = static_cast<int>(i);
    for (const WorksheetHead& head : style.worksheet_heads) {
      if (head.above == label) HeadLine(engine, head.caption);
    }
    if (label != style.label_not_on_worksheet) BlankRow(engine, labels[i]);
  }
}

}  // namespace tarnwell::record_book
