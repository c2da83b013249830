// What an editor does to lists and indents.

#include <algorithm>
#include <utility>

#include "richtext/editor.h"
#include "richtext/list_numbering.h"
#include "richtext/list_words.h"

namespace tarnwell::richtext {
namespace {

constexpr int kDeepest = 8;
constexpr int kLeastLine = 1440;  // twips that text keeps of its line
constexpr const char* kBullet = "\u2022";

// Levels count by numbers and by letters in turn. A list of another program's stays as it counts.
void BeginCount(ListItem& item) {
  item.marker = item.numbered ? "1." : kBullet;
  const std::string letters = LetterListDescription();
  const bool is_plain = item.description.empty() || item.description == letters ||
                        item.description == PlainListDescription(true);
  if (!item.numbered || item.list_number != 0 || !is_plain) return;
  const bool has_letters = item.level % 2 == 1;
  if (has_letters) item.marker = "a.";
  item.description = has_letters ? letters : PlainListDescription(true);
}

// The item above that counts on that level, as far up as the list goes on; nullptr for none.
const ListItem* CountedAbove(const std::vector<Block>& above, const ListItem& item) {
  for (auto block = above.rbegin(); block != above.rend(); ++block) {
    const auto& list = std::get<Paragraph>(*block).format.list;
    if (!list || list->level < item.level) return nullptr;
    const bool is_like = list->level == item.level && list->list_number == item.list_number;
    if (is_like && list->numbered) return &*list;
  }
  return nullptr;
}

void MakeItem(ListKind kind, const ParagraphFormat* above, ParagraphFormat& format) {
  if (ListKindOf(format) == kind) return;
  ListItem item;
  if (format.list) item.level = format.list->level;
  item.numbered = kind == ListKind::kNumbers;
  if (above != nullptr && ListKindOf(*above) == kind) {
    item = *above->list;
    format.left_indent = above->left_indent;
    format.first_line_indent = above->first_line_indent;
  } else {
    BeginCount(item);
    format.left_indent = (item.level + 2) * kListStep;
    format.first_line_indent = -kListStep;
  }
  format.list = std::move(item);
}

// Numbers the items as they go on from those above them.
void GoOn(const std::vector<Block>& above, std::vector<Block>& items) {
  std::vector<Block> all = above;
  all.insert(all.end(), items.begin(), items.end());
  NumberAnew(all);
  std::move(all.begin() + std::ssize(above), all.end(), items.begin());
}

void IndentItem(int steps, const std::vector<Block>& above, ParagraphFormat& format) {
  ListItem& item = *format.list;
  const int level = std::clamp(item.level + steps, 0, kDeepest);
  if (level == item.level) return;
  format.left_indent = std::max(format.left_indent + (level - item.level) * kListStep, kListStep);
  item.level = level;
  if (!item.numbered) return;
  BeginCount(item);
  if (const ListItem* like = CountedAbove(above, item)) {
    item.marker = like->marker;
    item.description = like->description;
  }
}

}  // namespace

std::vector<Block> Editor::ItemsAbove(Place place) const {
  std::vector<Block> items;
  std::size_t& index = place.in_table ? place.index : place.block;
  while (index > 0) {
    --index;
    if (!place.in_table && std::holds_alternative<Table>(document_.blocks[index])) break;
    const Paragraph& paragraph = ParagraphAt(document_, place);
    if (!paragraph.format.list) break;
    items.emplace_back(paragraph);
  }
  std::ranges::reverse(items);
  return items;
}

void Editor::SetList(const Range& range, ListKind kind) {
  Rewrite(range, [kind](const std::vector<Block>& above, std::vector<Block>& paragraphs) {
    const ParagraphFormat* last =
        above.empty() ? nullptr : &std::get<Paragraph>(above.back()).format;
    for (Block& block : paragraphs) {
      ParagraphFormat& format = std::get<Paragraph>(block).format;
      if (kind != ListKind::kNone) {
        MakeItem(kind, last, format);
        last = &format;
      } else if (format.list) {
        LeaveList(format);
      }
    }
    GoOn(above, paragraphs);
  });
}

void Editor::Indent(const Range& range, int steps) {
  const Page& page = document_.page;
  const int most = std::max(page.width - page.left_margin - page.right_margin - kLeastLine, 0);
  Rewrite(range, [=](const std::vector<Block>& above, std::vector<Block>& paragraphs) {
    std::vector<Block> before = above;
    for (Block& block : paragraphs) {
      ParagraphFormat& format = std::get<Paragraph>(block).format;
      if (format.list) {
        IndentItem(steps, before, format);
        before.push_back(block);
        continue;
      }
      before.clear();
      // What stands farther in or out already stays there.
      const int wanted = format.left_indent + steps * kIndentStep;
      format.left_indent = steps > 0 ? std::max(std::min(wanted, most), format.left_indent)
                                     : std::min(std::max(wanted, 0), format.left_indent);
    }
    GoOn(above, paragraphs);
  });
}

}  // namespace tarnwell::richtext
