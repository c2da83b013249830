// The control words that the reader acts on, and what it does with the others.

#pragma once

#include <string_view>

namespace tarnwell::richtext {

enum class WordClass {
  kUnknown,        // kept with the characters it stands before
  kCharacter,      // a word of CharacterFormat
  kKeptCharacter,  // concerns characters, outside the model
  kParagraph,
  kKeptParagraph,
  kBorder,       // of the border named last: a paragraph's, a row's or a cell's
  kRow,          // defines a row or its cells
  kCharacterOf,  // stands for one character: `value` is its number in Unicode
  kDestination,  // its group isn't part of the text; kept whole
  kKeptInPlace,  // acts where it stands, outside the model
  kStructure,    // the reader itself
  kDocument,
  kIgnored,
};

// What a known word is, within its class. The others of a class have kNone.
enum class Word {
  kNone,
  // kCharacter
  kPlain,
  kBold,
  kItalic,
  kStrike,
  kUnderline,
  kSuper,
  kSub,
  kNoSuperSub,
  kFont,
  kSize,
  kColor,
  kHighlight,
  kHidden,
  // kParagraph
  kAlign,
  kLeftIndent,
  kRightIndent,
  kFirstLine,
  kSpaceBefore,
  kSpaceAfter,
  kLineSpacing,
  kSpacingMultiple,
  kTabKind,
  kTabLeader,
  kTab,
  kBarTab,
  kPageBreakBefore,
  kStyle,
  kListNumber,
  kListLevel,
  kInTable,
  kNesting,
  // kDestination
  kPicture,
  kField,
  kResult,
  kFonts,
  kColors,
  kStyles,
  kListText,
  kListDescription,
  kShapePicture,
  // kStructure
  kParagraphEnd,
  kSectionEnd,
  kParagraphDefaults,
  kCellEnd,
  kRowEnd,
  kRowStart,
  kUnicode,
  kUnicodeSkip,
  // kDocument
  kCodePage,
  kNamedCodePage,
  kDefaultFont,
  kPaperWidth,
  kPaperHeight,
  kMarginLeft,
  kMarginRight,
  kMarginTop,
  kMarginBottom,
};

struct KnownWord {
  std::string_view name;
  WordClass word_class = WordClass::kUnknown;
  Word word = Word::kNone;
  int value = 0;  // of the word: an alignment, an underline, a character, a code page
};

// Never fails: a word that isn't listed is kUnknown, or kRow by the beginning of its name.
KnownWord FindWord(std::string_view name);

// The control word of an underline; empty for kNone.
std::string_view UnderlineWord(int underline);

}  // namespace tarnwell::richtext
