// The long lists of a page as several short ones. Qt goes through a whole list with each item that
// it adds to it.

#pragma once

#include <QString>
#include <QTextList>

namespace tarnwell::desktop {

// A list of more items goes on in another of the same look, which remembers how many there were.
inline constexpr int kMostItemsInOne = 200;

// In lists that are nested deeper, all items stand at this level: a document has fewer.
inline constexpr int kDeepestList = 16;

QString WithShortLists(const QString& html);

// How many items of the page's list stand in others before `list`; 0 for one that was whole.
int ItemsBefore(const QTextList& list);

// "3." or "c."; empty for a bullet of Qt's own making. `item` is one of the list.
QString MarkerOf(const QTextList& list, const QTextBlock& item);

}  // namespace tarnwell::desktop
