#pragma once

#include <QTabWidget>
#include <functional>

#include "parts/help_book.h"

class QLineEdit;
class QListWidget;
class QTreeWidget;

namespace tarnwell::desktop {

// The ways into the help pages: contents, index and search, each on a tab.
class HelpPanel : public QTabWidget {
 public:
  explicit HelpPanel(parts::HelpBook book);

  // The search is on show, with its field in hand.
  void BeginSearch();

  std::function<void(const parts::HelpPlace& place)> on_open;

 private:
  // A field over a list of places.
  struct Finder {
    QLineEdit* field;
    QListWidget* list;
  };

  void Open(const QVariant& kept);
  void AddContents();
  Finder AddFinder(const char* tab, const char* field_name, const char* list_name);
  void AddPlace(QListWidget* list, const QString& text, const QString& more,
                const parts::HelpPlace& place);
  void ShowIndex(const QString& beginning);
  void ShowFound(const QString& words);

  parts::HelpBook book_;
  Finder index_{};
  Finder search_{};
};

}  // namespace tarnwell::desktop
