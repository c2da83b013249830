#include "desktop/widgets/html_lists.h"

#include <algorithm>
#include <vector>

#include "richtext/list_numbering.h"

namespace tarnwell::desktop {
namespace {

// Begins the suffix of a list's numbers; behind it stands the number of items before.
constexpr QChar kMark(0xE000);

struct Tag {
  QStringView name;  // with the slash of one that closes; empty for a comment and the like
  QStringView rest;  // up to and with the ">"
};

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
Tag TagAt(QStringView html, qsizetype at) {
  qsizetype end = at;
  if (end < html.size() && html[end] == QLatin1Char('/')) ++end;
  while (end < html.size() && html[end].isLetterOrNumber()) ++end;
  return {html.mid(at, end - at), html.mid(end, EndOfTag(html, end) - end)};
}

bool Is(QStringView name, const char* wanted) {
  return name.compare(QLatin1String(wanted), Qt::CaseInsensitive) == 0;
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

class Cutter {
 public:
  explicit Cutter(QStringView html) : html_(html) {}

  QString Cut() {
    qsizetype at = 0;
    while ((at = html_.indexOf(QLatin1Char('<'), at)) >= 0) {
      const qsizetype hidden_end = BehindHidden(html_, at + 1);
      if (hidden_end > at + 1) {
        at = hidden_end;
        continue;
      }
      const Tag tag = TagAt(html_, at + 1);
      Take(tag, at);
      at += 1 + tag.name.size() + tag.rest.size();
    }
    out_ += html_.mid(copied_);
    return out_;
  }

 private:
  struct OpenList {
    Tag tag;
    int items = 0;
  };

  void Take(const Tag& tag, qsizetype at) {
    const bool opens = Is(tag.name, "ul") || Is(tag.name, "ol");
    const bool closes = Is(tag.name, "/ul") || Is(tag.name, "/ol");
    if (opens && lists_.size() == kDeepestList) {
      ++too_deep_;
      Drop(tag, at);
    } else if (closes && too_deep_ > 0) {
      --too_deep_;
      Drop(tag, at);
    } else if (opens) {
      lists_.push_back({tag});
    } else if (lists_.empty()) {
      return;
    } else if (closes) {
      lists_.pop_back();
    } else if (Is(tag.name, "li")) {
      OpenList& list = lists_.back();
      if (list.items > 0 && list.items % kMostItemsInOne == 0) GoOnInAnother(list, at);
      ++list.items;
    }
  }

  void Drop(const Tag& tag, qsizetype at) {
    out_ += html_.mid(copied_, at - copied_);
    copied_ = at + 1 + tag.name.size() + tag.rest.size();
  }

  void GoOnInAnother(const OpenList& list, qsizetype at) {
    out_ += html_.mid(copied_, at - copied_);
    copied_ = at;
    const QStringView name = list.tag.name;
    out_ += QStringLiteral("</%1><%1 style=\"-qt-list-number-suffix:'%2%3'\" ")
                .arg(name.toString(), QString(kMark), QString::number(list.items));
    out_ += list.tag.rest;
  }

  QStringView html_;
  QString out_;
  qsizetype copied_ = 0;
  std::vector<OpenList> lists_;
  int too_deep_ = 0;  // open lists that were left out
};

}  // namespace

QString WithShortLists(const QString& html) { return Cutter(html).Cut(); }

int ItemsBefore(const QTextList& list) {
  const QString suffix = list.format().numberSuffix();
  return suffix.startsWith(kMark) ? std::max(0, suffix.mid(1).toInt()) : 0;
}

QString MarkerOf(const QTextList& list, const QTextBlock& item) {
  QString marker = list.itemText(item);
  const int before = ItemsBefore(list);
  if (before == 0) return marker;
  marker.chop(list.format().numberSuffix().size());
  marker += QLatin1Char('.');
  return QString::fromStdString(richtext::CountedOn(marker.toStdString(), before));
}

}  // namespace tarnwell::desktop
