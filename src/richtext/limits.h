// What is read of one document, and shown of it. A text of 600 pages stays far below; what goes
// beyond was made to keep a machine busy, or by mistake.

#pragma once

#include <cstddef>

namespace tarnwell::richtext {

inline constexpr std::size_t kMostParagraphs = 100'000;  // with those of cells; 2,000 pages
inline constexpr std::size_t kMostRuns = 400'000;        // each a change of format
inline constexpr std::size_t kMostText = 5'000'000;      // bytes of UTF-8, some 2,500 pages
// Of one paragraph, which is laid out at one go: bytes of its text, some 15 pages, and runs.
inline constexpr std::size_t kLongestParagraph = 50'000;
inline constexpr std::size_t kMostRunsOfParagraph = 5'000;
// What is pasted parts into paragraphs no longer than this, which leaves room to go on in each.
inline constexpr std::size_t kLongestPasted = kLongestParagraph / 2;
// In a row of a table or a cell of it, which is laid out as a whole too.
inline constexpr std::size_t kLongestRow = 5'000;  // paragraphs
// Words, groups and pieces of text, most of which say nothing in a file that has more.
inline constexpr std::size_t kMostTokens = 3'000'000;

inline constexpr int kLargestHalfPoints = 2 * 1638;  // as in other word processors

}  // namespace tarnwell::richtext
