// Places of a document's text, counted in UTF-8, as places of Qt's text.

#pragma once

#include <QString>
#include <QTextBlock>
#include <span>
#include <string_view>
#include <vector>

namespace tarnwell::desktop {

// The text of a run as Qt's text holds it, each character one for one: breaks are line separators,
// and what would part a block is shown as the replacement character.
QString ShownInBlock(std::string_view utf8);

// A word that goes on for very long would be looked through for each of its lines: it gets a place
// to break at, a zero-width space, behind so many letters. Their offsets in a paragraph's text.
inline constexpr int kLongestWord = 1000;
std::vector<int> BreaksInWords(std::string_view paragraph);

// Offsets in a block of Qt's text at which signs of its own stand; see kKeptObject.
std::vector<int> SignsIn(const QTextBlock& block);

// Offsets into the same text of a whole paragraph; Qt's has the places to break at and the signs
// too. What is typed comes behind a sign, but for one at the beginning.
int ToUtf16Offset(std::string_view paragraph, int offset, std::span<const int> signs = {});
int ToUtf8Offset(std::string_view paragraph, int utf16_offset, std::span<const int> signs = {});

}  // namespace tarnwell::desktop
