#include <algorithm>
#include <utility>

#include "richtext/format_reader.h"
#include "richtext/kept_words.h"

namespace tarnwell::richtext {
namespace {

constexpr std::size_t kMostTabs = 64;
constexpr int kLastLevel = 8;

void AddTab(TabStop tab, std::vector<TabStop>& tabs) {
  const auto place =
      std::lower_bound(tabs.begin(), tabs.end(), tab.position,
                       [](const TabStop& stop, int position) { return stop.position < position; });
  if (place != tabs.end() && place->position == tab.position) {
    *place = tab;
  } else if (tabs.size() < kMostTabs) {
    tabs.insert(place, tab);
  }
}

void SetTab(const Token& token, FormatState& state) {
  TabStop tab = std::exchange(state.next_tab, TabStop{});
  tab.position = std::clamp(token.NumberOr(0), -kLongestLength, kLongestLength);
  if (token.text == "tb") tab.kind = TabStop::Kind::kBar;
  AddTab(tab, state.paragraph.tabs);
}

// A paragraph of a style repeats the style's formatting for readers that know no styles; what it
// doesn't repeat comes from here.
void ApplyStyle(int number, const FormatTables& tables, FormatState& state) {
  const auto style = tables.styles.find(number);
  if (style != tables.styles.end()) {
    const ParagraphFormat before = std::exchange(state.paragraph, style->second.paragraph);
    state.paragraph.list = before.list;
    state.paragraph.other = before.other;
    // Writers name this one with every paragraph that has it, and have no word that takes it away.
    state.paragraph.page_break_before = before.page_break_before;
    std::string other = std::move(state.character.other);
    state.character = style->second.character;
    state.character.other = std::move(other);
  }
  state.paragraph.style = number;
}

void SetList(const KnownWord& word, const Token& token, std::optional<ListItem>& list) {
  const int number = std::clamp(token.NumberOr(0), 0, kLongestLength);
  if (word.word == Word::kListNumber && number == 0) {
    list.reset();
    return;
  }
  if (!list) list.emplace();
  if (word.word == Word::kListNumber) list->list_number = number;
  if (word.word == Word::kListLevel) list->level = std::min(number, kLastLevel);
}

}  // namespace

void ApplyParagraphWord(const KnownWord& word, const Token& token, std::string_view source,
                        const FormatTables& tables, FormatState& state) {
  ParagraphFormat& format = state.paragraph;
  const int number = std::clamp(token.NumberOr(0), -kLongestLength, kLongestLength);
  switch (word.word) {
    case Word::kAlign:
      format.alignment = static_cast<Alignment>(word.value);
      return;
    case Word::kLeftIndent:
      format.left_indent = number;
      return;
    case Word::kRightIndent:
      format.right_indent = number;
      return;
    case Word::kFirstLine:
      format.first_line_indent = number;
      return;
    case Word::kSpaceBefore:
      format.space_before = number;
      return;
    case Word::kSpaceAfter:
      format.space_after = number;
      return;
    case Word::kLineSpacing:
      format.line_spacing = number;
      return;
    case Word::kSpacingMultiple:
      format.line_spacing_is_multiple = number != 0;
      return;
    case Word::kTabKind:
      state.next_tab.kind = static_cast<TabStop::Kind>(word.value);
      return;
    case Word::kTabLeader:
      state.next_tab.leader = static_cast<TabStop::Leader>(word.value);
      return;
    case Word::kTab:
    case Word::kBarTab:
      return SetTab(token, state);
    case Word::kPageBreakBefore:
      format.page_break_before = token.On();
      return;
    case Word::kStyle:
      return ApplyStyle(number, tables, state);
    case Word::kListNumber:
    case Word::kListLevel:
      return SetList(word, token, format.list);
    case Word::kInTable:
      state.in_table = token.On();
      return;
    default:
      return KeepProperty(token.text, source, format.other);
  }
}

}  // namespace tarnwell::richtext
