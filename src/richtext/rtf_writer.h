// The body of a document as RTF. Internal to WriteRichText.

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "richtext/format_reader.h"
#include "richtext/format_writer.h"
#include "richtext/rich_document.h"

namespace tarnwell::richtext {

class RtfWriter {
 public:
  explicit RtfWriter(const RichDocument& document);

  std::string Write() &&;

 private:
  void WriteTable(const Table& table);
  void WriteRowDefinition(const TableRow& row);
  void WriteBorder(std::string_view word, const Border& border);
  void WriteCell(const Cell& cell);

  // `next` is the field of the first run that follows in the same cell, or outside tables.
  void WriteParagraph(const Paragraph& paragraph, int next, bool in_table);
  // `head` is "\pard" and what must stand directly behind it.
  void WriteParagraphStart(const Paragraph& paragraph, std::string_view head, bool in_table);
  void WriteListItem(const ListItem& item);
  void WriteRun(const Run& run, const Paragraph& paragraph, bool in_table);
  void WriteText(std::string_view text, const std::string& font);
  void WritePicture(const Picture& picture);

  // Begins the fields that `field` stands in and that aren't open yet.
  void EnterField(int field);
  // Ends the open fields that `field` doesn't stand in.
  void LeaveFields(int field, const Paragraph& paragraph, bool in_table);
  int FieldOf(const Run& run) const;
  // For each of the paragraphs, null being a table, the field of the first run behind it.
  std::vector<int> FieldsBehind(const std::vector<const Paragraph*>& paragraphs) const;
  bool StandsIn(int field, int other) const;

  // The end of the control words before: a blank, unless what follows ends them itself.
  void Words(std::string_view words);
  void Text(std::string_view text);

  const RichDocument& document_;
  WriterTables tables_;
  std::map<int, Style> styles_;
  std::string out_;
  bool words_open_ = false;
  std::vector<int> open_fields_;
  std::size_t fields_before_ = 0;  // of the open fields, those that a paragraph before this opened
};

}  // namespace tarnwell::richtext
