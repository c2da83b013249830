#include "parts/help_book.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <set>
#include <utility>

namespace tarnwell::parts {
namespace {

constexpr std::string_view kContentsPage = "index.html";
constexpr std::size_t kAround = 60;  // bytes on either side of what was found
constexpr int kInHeading = 100;      // counts as much as so many words in the text
constexpr int kAsPhrase = 10;        // likewise, all words behind each other

struct Entity {
  std::string_view name;
  std::string_view sign;
};
constexpr Entity kEntities[] = {
    {"&amp;", "&"}, {"&lt;", "<"}, {"&gt;", ">"}, {"&quot;", "\""}, {"&nbsp;", " "}};

// A tag, or the text up to the next one.
struct Piece {
  std::string tag;   // "b" or "/b", in small letters; empty for text
  std::string link;  // the file that an "a" leads to
  std::string text;
};

char SmallLetter(char letter) {
  return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

std::string SmallLetters(std::string_view text) {
  std::string small(text);
  std::ranges::transform(small, small.begin(), SmallLetter);
  return small;
}

// Letters, digits and all that lies beyond ASCII.
bool IsOfWord(char sign) {
  const char small = SmallLetter(sign);
  return (small >= 'a' && small <= 'z') || (small >= '0' && small <= '9') ||
         static_cast<unsigned char>(small) >= 0x80;
}

bool IsBlank(char sign) { return sign == ' ' || sign == '\n' || sign == '\t' || sign == '\r'; }

// Its entities as their signs, its white space as single blanks.
void AddText(std::string& text, std::string_view raw) {
  while (!raw.empty()) {
    const auto entity = std::ranges::find_if(
        kEntities, [=](const Entity& one) { return raw.starts_with(one.name); });
    const bool found = entity != std::end(kEntities);
    const std::string_view sign = found ? entity->sign : raw.substr(0, 1);
    raw.remove_prefix(found ? entity->name.size() : 1);
    if (!IsBlank(sign.front())) {
      text += sign;
    } else if (!text.empty() && text.back() != ' ') {
      text += ' ';
    }
  }
}

std::string Plain(std::string_view raw) {
  std::string text;
  AddText(text, raw);
  if (text.ends_with(' ')) text.pop_back();
  if (text.starts_with(' ')) text.erase(0, 1);
  return text;
}

Piece TagOf(std::string_view inside) {
  constexpr std::string_view kLink = "href=\"";
  Piece piece{SmallLetters(inside.substr(0, inside.find_first_of(" \n\t"))), {}, {}};
  if (const auto link = inside.find(kLink); link != std::string_view::npos) {
    const std::string_view rest = inside.substr(link + kLink.size());
    piece.link = rest.substr(0, rest.find_first_of("\"#"));
  }
  return piece;
}

std::vector<Piece> PiecesOf(std::string_view html) {
  std::vector<Piece> pieces;
  while (!html.empty()) {
    const bool is_tag = html.front() == '<';
    const std::size_t end = std::min(html.find(is_tag ? '>' : '<'), html.size());
    if (is_tag) {
      pieces.push_back(TagOf(html.substr(1, end - 1)));
    } else {
      pieces.push_back({{}, {}, std::string(html.substr(0, end))});
    }
    html.remove_prefix(std::min(end + (is_tag ? 1 : 0), html.size()));
  }
  return pieces;
}

// Of letters within a line; every other tag parts words.
bool IsInline(std::string_view tag) {
  if (tag.starts_with('/')) tag.remove_prefix(1);
  return tag == "b" || tag == "i" || tag == "a" || tag == "tt";
}

// What lies between the tag at `at` and its end, without the tags.
std::string Inside(const std::vector<Piece>& pieces, std::size_t at) {
  std::string text;
  const std::string end = "/" + pieces[at].tag;
  for (++at; at < pieces.size() && pieces[at].tag != end; ++at) text += pieces[at].text;
  return Plain(text);
}

std::vector<std::string> WordsOf(std::string_view text) {
  std::vector<std::string> words(1);
  for (const char sign : text) {
    if (IsOfWord(sign)) {
      words.back() += SmallLetter(sign);
    } else if (!words.back().empty()) {
      words.emplace_back();
    }
  }
  if (words.back().empty()) words.pop_back();
  return words;
}

std::string Joined(const std::vector<std::string>& words) {
  std::string joined;
  for (const std::string& word : words) joined += (joined.empty() ? "" : " ") + word;
  return joined;
}

// The next place in `text`, in small letters, where a word begins with `word`.
std::size_t FindWord(std::string_view text, std::string_view word, std::size_t from = 0) {
  for (std::size_t at = text.find(word, from); at != std::string_view::npos;
       at = text.find(word, at + 1)) {
    if (at == 0 || !IsOfWord(text[at - 1])) return at;
  }
  return std::string_view::npos;
}

int CountWord(std::string_view text, std::string_view word) {
  int count = 0;
  for (std::size_t at = FindWord(text, word); at != std::string_view::npos;
       at = FindWord(text, word, at + 1)) {
    ++count;
  }
  return count;
}

// Between whole words.
std::string Around(std::string_view text, std::size_t at) {
  std::size_t begin = at < kAround ? 0 : at - kAround;
  std::size_t end = std::min(at + kAround, text.size());
  while (begin > 0 && begin < at && text[begin - 1] != ' ') ++begin;
  while (end < text.size() && end > at && text[end] != ' ') --end;
  return std::string(text.substr(begin, end - begin));
}

}  // namespace

void HelpBook::AddPage(std::string_view file, std::string_view html) {
  if (file == kContentsPage) {
    contents_ = html;
    return;
  }
  Page page{std::string(file), {}, {}, {}, {}};
  const std::vector<Piece> pieces = PiecesOf(html);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    const std::string& tag = pieces[i].tag;
    if (tag == "title") page.title = Inside(pieces, i);
    if (tag == "b") page.terms.push_back(Inside(pieces, i));
    if (tag == "h1" || tag == "h2") {
      page.terms.push_back(Inside(pieces, i));
      page.headings += page.terms.back() + " ";
    }
    const bool in_title = i > 0 && pieces[i - 1].tag == "title";
    if (tag.empty() && !in_title) AddText(page.text, pieces[i].text);
    if (!tag.empty() && !IsInline(tag)) AddText(page.text, " ");
  }
  pages_.push_back(std::move(page));
  is_sorted_ = false;
}

std::vector<HelpChapter> HelpBook::Contents() const {
  std::vector<HelpChapter> chapters;
  const std::vector<Piece> pieces = PiecesOf(contents_);
  for (std::size_t i = 0; i < pieces.size(); ++i) {
    if (pieces[i].tag == "h2") chapters.push_back({Inside(pieces, i), {}});
    if (pieces[i].link.empty()) continue;
    if (chapters.empty()) chapters.emplace_back();
    chapters.back().pages.push_back({pieces[i].link, Inside(pieces, i), {}});
  }
  return chapters;
}

const std::vector<HelpEntry>& HelpBook::Index() {
  if (std::exchange(is_sorted_, true)) return index_;
  index_.clear();
  std::set<std::pair<std::string, std::string>> known;
  for (const Page& page : pages_) {
    for (const std::string& term : page.terms) {
      if (term.empty() || !known.emplace(SmallLetters(term), page.file).second) continue;
      index_.push_back({term, {page.file, page.title, term}});
    }
  }
  std::ranges::sort(index_, {}, [](const HelpEntry& entry) {
    return std::pair(SmallLetters(entry.term), entry.place.title);
  });
  return index_;
}

std::vector<HelpFound> HelpBook::Search(std::string_view words) const {
  const std::vector<std::string> wanted = WordsOf(words);
  if (wanted.empty()) return {};
  const std::string whole = Joined(wanted);
  std::vector<std::pair<int, HelpFound>> found;
  for (const Page& page : pages_) {
    const std::string text = SmallLetters(page.text);
    const std::string headings = SmallLetters(page.headings);
    int weight = kAsPhrase * CountWord(text, whole);
    const bool has_all = std::ranges::all_of(wanted, [&](const std::string& word) {
      weight += CountWord(text, word) + kInHeading * CountWord(headings, word);
      return FindWord(text, word) != std::string::npos;
    });
    if (!has_all) continue;
    const bool has_whole = FindWord(text, whole) != std::string::npos;
    const std::string& marked = has_whole ? whole : wanted.front();
    found.push_back(
        {weight, {{page.file, page.title, marked}, Around(page.text, FindWord(text, marked))}});
  }
  std::ranges::stable_sort(found, std::greater(), [](const auto& one) { return one.first; });
  std::vector<HelpFound> places;
  for (auto& [weight, place] : found) places.push_back(std::move(place));
  return places;
}

}  // namespace tarnwell::parts
