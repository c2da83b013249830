// A formatted text as plain data. Texts are UTF-8; lengths are twips (1440 an inch) unless said
// otherwise. docs/formats/rich-text.md has the format that documents are stored in.
//
// What a document holds beyond this model isn't lost: it stands as RTF of its own in the `other`
// members, in `prologue` and in Opaque runs, at the place where it was read. That RTF names fonts,
// colours, styles and lists by number, so the tables keep their numbers: add to them, never
// reorder.

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <variant>
#include <vector>

namespace tarnwell::richtext {

// The longest length that a stored document gives, in twips; sums of a few don't overflow.
inline constexpr int kLongestLength = 1'000'000;

struct Color {
  std::uint8_t red = 0;
  std::uint8_t green = 0;
  std::uint8_t blue = 0;
  bool operator==(const Color&) const = default;
};

enum class Underline : std::uint8_t {
  kNone,
  kSingle,
  kDouble,
  kDotted,
  kWords,
  kWave,
  kThick,
  kDash,
  kDashDot,
  kDashDotDot,
  kLongDash,
  kHeavyWave,
  kDoubleWave,
  kThickDotted,
  kThickDash,
  kThickDashDot,
  kThickDashDotDot,
  kThickLongDash,
};

enum class Script : std::uint8_t { kBaseline, kSuperscript, kSubscript };

// What shows a text that names no font.
inline constexpr const char* kUsualFont = "Times New Roman";

struct CharacterFormat {
  std::string font;      // empty: the document's default font
  int half_points = 24;  // above 0
  bool bold = false;
  bool italic = false;
  bool strike = false;
  Underline underline = Underline::kNone;
  Script script = Script::kBaseline;
  std::optional<Color> color;      // none: the view's text colour
  std::optional<Color> highlight;  // none: no background of its own
  std::string other;               // control words outside the model, such as "\lang1033\caps"
  bool operator==(const CharacterFormat&) const = default;
};

enum class Alignment : std::uint8_t { kLeft, kCenter, kRight, kJustify };

struct TabStop {
  enum class Kind : std::uint8_t { kLeft, kCenter, kRight, kDecimal, kBar };
  enum class Leader : std::uint8_t { kNone, kDots, kMiddleDots, kHyphens, kLine, kThick, kEquals };
  int position = 0;
  Kind kind = Kind::kLeft;
  Leader leader = Leader::kNone;
  bool operator==(const TabStop&) const = default;
};

struct ListItem {
  int level = 0;  // 0 to 8
  bool numbered = false;
  std::string marker;       // what stands before the text, such as "•" or "3."
  int list_number = 0;      // entry of the list table in `prologue`; 0: none
  std::string description;  // the "{\*\pn …}" group; empty: the plain one of a bullet or a number
  bool operator==(const ListItem&) const = default;
};

struct ParagraphFormat {
  Alignment alignment = Alignment::kLeft;
  int left_indent = 0;
  int right_indent = 0;
  int first_line_indent = 0;  // against the left indent; negative hangs
  int space_before = 0;
  int space_after = 0;
  // 0: by the font. With line_spacing_is_multiple 240 is single and 480 double; else above 0 the
  // least height, below 0 the exact height.
  int line_spacing = 0;
  bool line_spacing_is_multiple = false;
  bool page_break_before = false;
  int style = 0;              // entry of the style sheet in `prologue`; 0: none
  std::vector<TabStop> tabs;  // by position, each once
  std::optional<ListItem> list;
  std::string other;  // control words outside the model
  bool operator==(const ParagraphFormat&) const = default;
};

// In twips each way, what stands for a picture that can't be read.
inline constexpr int kBrokenPicture = 360;

// Shown at width * scale_x / 100 by height * scale_y / 100.
struct Picture {
  enum class Kind : std::uint8_t { kPng, kJpeg };
  Kind kind = Kind::kPng;
  std::string bytes;  // the picture file
  int width = 0;      // 0: by the picture's own pixels
  int height = 0;
  int scale_x = 100;
  int scale_y = 100;
  bool in_shape_group = false;  // has an older form beside it, for readers that can't show this one
  std::string other;            // control words and groups outside the model
  bool operator==(const Picture&) const = default;
};

// Not shown, only kept: whole groups and complete control words. An edit leaves it behind the
// characters that it stands behind; see editor.h.
struct Opaque {
  std::string rtf;
  bool resets_paragraph = false;  // holds paragraphs of its own, as a table inside a cell
  bool operator==(const Opaque&) const = default;
};

inline constexpr int kNoField = -1;

struct Run {
  CharacterFormat format;
  // In a text "\t" is a tab, "\n" a line break and "\f" a page break inside the paragraph; there is
  // no other control character. A text isn't empty.
  std::variant<std::string, Picture, Opaque> content;
  int field = kNoField;  // this run is shown as the result of RichDocument::fields[field]
  bool operator==(const Run&) const = default;
};

struct Paragraph {
  ParagraphFormat format;
  CharacterFormat mark;  // of the paragraph's end; gives an empty paragraph its height
  std::vector<Run> runs;
  // The RTF of the section break that ends the paragraph; the next section begins on a new page
  // unless it holds "\sbknone". Empty: an ordinary end.
  std::string section_break;
  bool operator==(const Paragraph&) const = default;
};

struct Border {
  std::string style;  // control word without its backslash, such as "brdrs"; empty: no border
  int width = 0;
  std::optional<Color> color;
  std::string other;
  bool operator==(const Border&) const = default;
};

struct Cell {
  int right_edge = 0;  // from the page's left margin
  Border top, left, bottom, right;
  std::optional<Color> fill;
  std::string other;
  std::vector<Paragraph> paragraphs;  // at least one; none of them holds a section break
  bool operator==(const Cell&) const = default;
};

struct TableRow {
  int left_edge = 0;  // from the page's left margin
  int half_gap = 0;   // half of the room between the texts of two cells
  std::string other;
  std::vector<Cell> cells;
  bool operator==(const TableRow&) const = default;
};

// Two tables with no paragraph between them are one table once they are stored.
struct Table {
  std::vector<TableRow> rows;
  bool operator==(const Table&) const = default;
};

using Block = std::variant<Paragraph, Table>;

struct Font {
  int number = 0;
  std::string name;
  int charset = 0;
  std::string other;  // family, pitch, fallback names
  bool operator==(const Font&) const = default;
};

// A link, a page number, a table of contents. Its result is the runs that name it.
struct Field {
  std::string instruction;  // the RTF between "{" and the result's group
  int parent = kNoField;    // the field inside whose result this one stands, always a lower number
  bool operator==(const Field&) const = default;
};

struct Page {
  int width = 12240;
  int height = 15840;
  int left_margin = 1800;
  int right_margin = 1800;
  int top_margin = 1440;
  int bottom_margin = 1440;
  bool operator==(const Page&) const = default;
};

struct RichDocument {
  int code_page = 1252;  // of bytes in the opaque parts; 10000 is the Macintosh's
  int default_font = 0;  // a number of `fonts`
  std::vector<Font> fonts;
  std::vector<std::optional<Color>> colors;  // none: the view's own colour
  Page page;                                 // of the first section
  Page base_page;                            // of sections that say nothing of theirs
  std::string
      prologue;  // style sheet, lists, information, headers and footers of the first section
  std::vector<Field> fields;
  std::vector<Block> blocks;
  std::string epilogue;  // groups behind the last paragraph
  // Its source held more than limits.h allows: this is its beginning, and no text to be saved.
  bool is_part = false;
  bool operator==(const RichDocument&) const = default;
};

}  // namespace tarnwell::richtext
