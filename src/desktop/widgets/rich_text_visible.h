#pragma once

#include <QAbstractTextDocumentLayout>
#include <QTextBlock>
#include <QTextCursor>
#include <vector>

namespace tarnwell::desktop {

// The blocks between two heights of a laid-out text, in its own pixels. `first` is a place at the
// upper one. The layout isn't asked for blocks further down than one row of a table: a text of any
// length costs what the view shows of it.
std::vector<QTextBlock> BlocksBetween(double top, double bottom, const QTextCursor& first,
                                      const QAbstractTextDocumentLayout& layout);

}  // namespace tarnwell::desktop
