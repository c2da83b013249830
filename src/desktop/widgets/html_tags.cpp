#include "desktop/widgets/html_tags.h"

#include <algorithm>
#include <array>

#include "richtext/limits.h"

namespace tarnwell::desktop {
namespace {

constexpr int kMostTags = 100'000;  // that open something
constexpr int kDeepest = 500;
constexpr qsizetype kMostCharacters = 100'000'000;  // with pictures that are within the page
constexpr qsizetype kMostStyles = 200'000;          // characters, each rule tried with each tag

// These hold nothing, or end where the next one begins.
constexpr std::array kNeverOpen = {"br",  "img",  "hr",   "meta",   "link",  "input", "col",
                                   "p",   "li",   "tr",   "td",     "th",    "dt",    "dd",
                                   "wbr", "base", "area", "option", "thead", "tbody", "tfoot"};

// A ">" within quotation marks is part of an attribute. Without an end the tag takes all.
qsizetype EndOfTag(QStringView html, qsizetype at) {
  QChar quote;
  for (; at < html.size(); ++at) {
    const QChar c = html[at];
    const bool is_quote = c == QLatin1Char('"') || c == QLatin1Char('\'');
    if (!quote.isNull()) {
      if (c == quote) quote = QChar();
    } else if (is_quote && html[at - 1] == QLatin1Char('=')) {
      quote = c;
    } else if (c == QLatin1Char('>')) {
      return at + 1;
    }
  }
  return at;
}

// `at` is behind the "<".
HtmlTag TagAt(QStringView html, qsizetype at) {
  qsizetype end = at;
  if (end < html.size() && html[end] == QLatin1Char('/')) ++end;
  while (end < html.size() && html[end].isLetterOrNumber()) ++end;
  return {html.mid(at, end - at), html.mid(end, EndOfTag(html, end) - end)};
}

// What is no text of the page: where it ends, or `at`.
qsizetype BehindHidden(QStringView html, qsizetype at) {
  constexpr const char* kHidden[][2] = {
      {"!--", "-->"}, {"style", "</style"}, {"script", "</script"}};
  for (const auto& [begin, end] : kHidden) {
    if (!html.mid(at).startsWith(QLatin1String(begin), Qt::CaseInsensitive)) continue;
    const qsizetype found = html.indexOf(QLatin1String(end), at, Qt::CaseInsensitive);
    return found < 0 ? html.size() : found;
  }
  return at;
}

}  // namespace

void ForEachTag(QStringView html, const std::function<void(const HtmlTag&, qsizetype)>& visit) {
  qsizetype at = 0;
  while ((at = html.indexOf(QLatin1Char('<'), at)) >= 0) {
    const qsizetype hidden_end = BehindHidden(html, at + 1);
    if (hidden_end > at + 1) {
      at = hidden_end;
      continue;
    }
    const HtmlTag tag = TagAt(html, at + 1);
    visit(tag, at);
    at += 1 + tag.name.size() + tag.rest.size();
  }
}

bool IsReadSoon(QStringView html) {
  if (html.size() > kMostCharacters) return false;
  int tags = 0;
  int depth = 0;
  int deepest = 0;
  qsizetype of_tags = 0;
  qsizetype seen = 0;    // up to here
  qsizetype hidden = 0;  // characters between two tags that are style sheets and the like
  ForEachTag(html, [&](const HtmlTag& tag, qsizetype at) {
    of_tags += 1 + tag.name.size() + tag.rest.size();
    if (tag.Is("/style")) hidden += at - seen;
    seen = at + 1 + tag.name.size() + tag.rest.size();
    if (tag.closes()) {
      depth = std::max(depth - 1, 0);
      return;
    }
    ++tags;
    const bool opens = std::ranges::none_of(kNeverOpen, [&](auto* name) { return tag.Is(name); });
    if (opens) deepest = std::max(deepest, ++depth);
  });
  const auto text = static_cast<std::size_t>(html.size() - of_tags - hidden);
  return tags <= kMostTags && deepest <= kDeepest && hidden <= kMostStyles &&
         text <= richtext::kMostText;
}

}  // namespace tarnwell::desktop
