#include "desktop/widgets/html_lists.h"

#include <gtest/gtest.h>

#include <QMimeData>
#include <QTextBlock>

#include "desktop/widgets/closed_document.h"
#include "desktop/widgets/rich_text_mime.h"
#include "richtext/paragraphs.h"

namespace tarnwell::desktop {
namespace {

constexpr int kItems = 2 * kMostItemsInOne + 50;

QString Items(const QString& item) { return item.repeated(kItems); }

int LongestList(const QString& html) {
  ClosedDocument page;
  page.setHtml(WithShortLists(html));
  int longest = 0;
  for (QTextBlock block = page.begin(); block.isValid(); block = block.next()) {
    if (block.textList() != nullptr) longest = std::max(longest, block.textList()->count());
  }
  return longest;
}

TEST(HtmlLists, NoneIsLong) {
  const char* const pages[] = {
      "<ul>%1</ul>",
      "<OL type=i>%1",
      "<ol title=\"a > b\" class='it'>%1</ol>",
      "<!-- <ul> --><style></ul></style><ul>%1</ul>",
      "<ul><li>outer<ol>%1</ol><li>more</ul>",
      "<table><tr><td><ul>%1</ul></td></tr></table>",
  };
  for (const char* const page : pages) {
    for (const char* const item : {"<li>a", "<LI class=\"x\">a</LI>\n", "<li>a<ul><li>b</ul>"}) {
      const QString html = QString::fromLatin1(page).arg(Items(QString::fromLatin1(item)));
      EXPECT_EQ(LongestList(html), kMostItemsInOne) << page << item;
    }
  }
}

TEST(HtmlLists, AShortPageStaysAsItIs) {
  for (const char* const page : {"", "a < b", "<", "</ul><li>a", "<ul><li>a</li></ul>", "<!-- <ul>",
                                 "<ul title=\"", "<style>"}) {
    EXPECT_EQ(WithShortLists(QString::fromLatin1(page)), QLatin1String(page));
  }
}

TEST(HtmlLists, ListsGoOnlySoDeep) {
  const int depth = 10 * kDeepestList;
  const QString deep = QStringLiteral("<ul><li>a").repeated(depth) +
                       QStringLiteral("</ul>").repeated(depth) + QStringLiteral("<p>end");
  const QString shown = WithShortLists(deep);
  EXPECT_EQ(shown.count(QLatin1String("<ul>")), kDeepestList);
  EXPECT_EQ(shown.count(QLatin1String("</ul>")), kDeepestList);
  EXPECT_EQ(shown.count(QLatin1String("<li>a")), depth);
  EXPECT_TRUE(shown.endsWith(QLatin1String("<p>end")));
}

TEST(HtmlPages, WhatWouldTakeLongToReadIsRefusedUnread) {
  const QString sheet = QStringLiteral("<style>%1</style>");
  const struct {
    const char* what;
    QString html;
    bool is_read;
  } cases[] = {
      {"a sheet of 2,000 rows",
       "<table>" + ("<tr>" + QString("<td>x</td>").repeated(10)).repeated(2000), true},
      {"a picture", "<p>x<img src=\"data:image/png;base64," + QString(6'000'000, 'A') + "\">",
       true},
      {"deep, side by side", ("<b>" + QString("<i>x</i>").repeated(3)).repeated(400), true},
      {"tags", QString("<b>x</b>").repeated(110'000), false},
      {"depth", QString("<div>").repeated(100'000), false},
      {"text", "<p>" + QString("word ").repeated(1'100'000), false},
      {"styles", sheet.arg(QString("p{color:red}").repeated(100'000)) + "<p>x", false},
      {"a usual sheet of styles", sheet.arg(QString("p{color:red}").repeated(100)) + "<p>x", true},
  };
  for (const auto& c : cases) {
    QMimeData mime;
    mime.setHtml(c.html);
    const auto document = FromMime(mime);
    ASSERT_TRUE(document) << c.what;
    EXPECT_FALSE(document->blocks.empty()) << c.what;
    EXPECT_EQ(!document->is_part, c.is_read) << c.what;
  }
}

TEST(HtmlLists, ALongOneCountsOnWithoutAGap) {
  QMimeData mime;
  mime.setHtml(QStringLiteral("<ol style=\"color:#ff0000\">") +
               Items(QStringLiteral("<li>a<p>b</p></li>")) + QStringLiteral("</ol>"));
  const auto document = FromMime(mime);
  ASSERT_TRUE(document);
  int items = 0;
  richtext::ForEachParagraph(*document, [&items](const richtext::Paragraph& paragraph) {
    EXPECT_EQ(paragraph.runs.front().format.color, (richtext::Color{255, 0, 0}));
    if (!paragraph.format.list) return;
    ++items;
    EXPECT_EQ(paragraph.format.list->marker, std::to_string(items) + ".");
    EXPECT_EQ(paragraph.format.space_before > 0, items == 1) << items;
  });
  EXPECT_EQ(items, kItems);
}

}  // namespace
}  // namespace tarnwell::desktop
