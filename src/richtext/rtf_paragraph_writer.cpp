#include <algorithm>

#include "richtext/list_words.h"
#include "richtext/rtf_writer.h"
#include "richtext/text_escape.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kPictureBytesPerLine = 64;
constexpr std::string_view kDefaults = "\\pard";
constexpr std::string_view kDefaultsAndSkip = "\\pard\\uc1";

std::string Hex(std::string_view bytes) {
  constexpr char kDigits[] = "0123456789abcdef";
  std::string out;
  out.reserve(bytes.size() * 2 + bytes.size() / kPictureBytesPerLine + 1);
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    if (i % kPictureBytesPerLine == 0) out += '\n';
    const auto code = static_cast<unsigned char>(bytes[i]);
    out += kDigits[code >> 4];
    out += kDigits[code & 0xF];
  }
  return out;
}

}  // namespace

void RtfWriter::WriteParagraph(const Paragraph& paragraph, int next, bool in_table) {
  fields_before_ = open_fields_.size();
  WriteParagraphStart(paragraph, kDefaults, in_table);
  for (const Run& run : paragraph.runs) {
    LeaveFields(FieldOf(run), paragraph, in_table);
    EnterField(FieldOf(run));
    WriteRun(run, paragraph, in_table);
  }
  LeaveFields(next, paragraph, in_table);
}

void RtfWriter::WriteParagraphStart(const Paragraph& paragraph, std::string_view head,
                                    bool in_table) {
  Words(head);
  if (in_table) Words("\\intbl");
  if (paragraph.format.list) WriteListItem(*paragraph.format.list);
  const auto style = styles_.find(paragraph.format.style);
  Words(ParagraphWords(paragraph.format,
                       style == styles_.end() ? nullptr : &style->second.paragraph));
  Words(AllCharacterWords(paragraph.mark, tables_));
}

void RtfWriter::WriteListItem(const ListItem& item) {
  const bool is_listed = item.list_number > 0;
  if (!item.marker.empty()) {
    Text(is_listed ? "{\\listtext" : "{\\pntext");
    Words("\\plain");
    WriteText(item.marker, {});
    Text("\\tab}");
  }
  if (!item.description.empty()) {
    Text(item.description);
  } else if (!is_listed) {
    Text(PlainListDescription(item.numbered));
  }
  if (is_listed) Words("\\ls" + std::to_string(item.list_number));
  if (is_listed || item.level != 0) Words("\\ilvl" + std::to_string(item.level));
}

void RtfWriter::WriteRun(const Run& run, const Paragraph& paragraph, bool in_table) {
  const auto* const opaque = std::get_if<Opaque>(&run.content);
  if (opaque != nullptr && opaque->resets_paragraph) {
    Text(opaque->rtf);
    const bool changes_skip = opaque->rtf.starts_with("\\uc");
    return WriteParagraphStart(paragraph, changes_skip ? kDefaultsAndSkip : kDefaults, in_table);
  }
  const std::string words = CharacterWords(paragraph.mark, run.format, tables_);
  if (!words.empty()) {
    Text("{");
    Words(words);
  }
  if (const auto* const text = std::get_if<std::string>(&run.content)) {
    WriteText(*text, run.format.font);
  } else if (opaque != nullptr) {
    Text(opaque->rtf);
  } else {
    WritePicture(std::get<Picture>(run.content));
  }
  if (!words.empty()) Text("}");
}

void RtfWriter::WriteText(std::string_view text, const std::string& font) {
  Text(EscapeText(text, tables_.CodePageOf(font)));
}

void RtfWriter::WritePicture(const Picture& picture) {
  Text(picture.in_shape_group ? "{\\*\\shppict{\\pict" : "{\\pict");
  Words(picture.other);
  Words(picture.kind == Picture::Kind::kPng ? "\\pngblip" : "\\jpegblip");
  const auto number = [this](const char* word, int value, int usual) {
    if (value != usual) Words(word + std::to_string(value));
  };
  number("\\picwgoal", picture.width, 0);
  number("\\pichgoal", picture.height, 0);
  number("\\picscalex", picture.scale_x, 100);
  number("\\picscaley", picture.scale_y, 100);
  out_ += Hex(picture.bytes);
  words_open_ = false;
  Text(picture.in_shape_group ? "}}" : "}");
}

// A number that isn't one of the document's fields is none.
int RtfWriter::FieldOf(const Run& run) const {
  return run.field < static_cast<int>(document_.fields.size()) ? run.field : kNoField;
}

std::vector<int> RtfWriter::FieldsBehind(const std::vector<const Paragraph*>& paragraphs) const {
  std::vector<int> fields(paragraphs.size(), kNoField);
  for (std::size_t i = paragraphs.size(); i-- > 1;) {
    const Paragraph* const behind = paragraphs[i];
    const Paragraph* const paragraph = paragraphs[i - 1];
    if (behind == nullptr || paragraph == nullptr || !paragraph->section_break.empty()) continue;
    fields[i - 1] = behind->runs.empty() ? fields[i] : FieldOf(behind->runs.front());
  }
  return fields;
}

bool RtfWriter::StandsIn(int field, int other) const {
  while (field > other) field = document_.fields[static_cast<std::size_t>(field)].parent;
  return field == other;
}

void RtfWriter::LeaveFields(int field, const Paragraph& paragraph, bool in_table) {
  std::size_t kept = 0;
  while (kept < open_fields_.size() && StandsIn(field, open_fields_[kept])) ++kept;
  for (; open_fields_.size() > kept; open_fields_.pop_back()) Text("}}");
  // The end of a group brings back the paragraph's properties of its beginning.
  if (kept < fields_before_) {
    fields_before_ = kept;
    WriteParagraphStart(paragraph, kDefaults, in_table);
  }
}

void RtfWriter::EnterField(int field) {
  const int innermost = open_fields_.empty() ? kNoField : open_fields_.back();
  std::vector<int> missing;
  for (int id = field; id > innermost; id = document_.fields[static_cast<std::size_t>(id)].parent) {
    missing.push_back(id);
  }
  std::for_each(missing.rbegin(), missing.rend(), [this](int id) {
    const std::string& instruction = document_.fields[static_cast<std::size_t>(id)].instruction;
    Text("{");
    Text(instruction);
    Text("{\\fldrslt");
    words_open_ = true;
    if (instruction.starts_with("\\uc")) Words("\\uc1");
    open_fields_.push_back(id);
  });
}

}  // namespace tarnwell::richtext
