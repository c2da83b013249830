#include "desktop/widgets/html_lists.h"

#include <algorithm>
#include <vector>

#include "desktop/widgets/html_tags.h"
#include "richtext/list_numbering.h"

namespace tarnwell::desktop {
namespace {

// Begins the suffix of a list's numbers; behind it stands the number of items before.
constexpr QChar kMark(0xE000);

class Cutter {
 public:
  explicit Cutter(QStringView html) : html_(html) {}

  QString Cut() {
    ForEachTag(html_, [this](const HtmlTag& tag, qsizetype at) { Take(tag, at); });
    out_ += html_.mid(copied_);
    return out_;
  }

 private:
  struct OpenList {
    HtmlTag tag;
    int items = 0;
  };

  void Take(const HtmlTag& tag, qsizetype at) {
    const bool opens = tag.Is("ul") || tag.Is("ol");
    const bool closes = tag.Is("/ul") || tag.Is("/ol");
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
    } else if (tag.Is("li")) {
      OpenList& list = lists_.back();
      if (list.items > 0 && list.items % kMostItemsInOne == 0) GoOnInAnother(list, at);
      ++list.items;
    }
  }

  void Drop(const HtmlTag& tag, qsizetype at) {
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
