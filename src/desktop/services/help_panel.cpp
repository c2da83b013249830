#include "desktop/services/help_panel.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <utility>

#include "desktop/widgets/look.h"

namespace tarnwell::desktop {
namespace {

constexpr int kPlace = Qt::UserRole;

QString Shown(const std::string& utf8) { return QString::fromStdString(utf8); }

QVariant Kept(const parts::HelpPlace& place) {
  return QStringList{Shown(place.file), Shown(place.title), Shown(place.phrase)};
}

}  // namespace

HelpPanel::HelpPanel(parts::HelpBook book) : book_(std::move(book)) {
  AddContents();
  index_ = AddFinder("&Index", "Beginning of a term", "Terms");
  search_ = AddFinder("&Search", "Words to search for", "Pages found");
  index_.field->setPlaceholderText(QStringLiteral("Beginning of a term"));
  search_.field->setPlaceholderText(QStringLiteral("Words to search for"));
  connect(index_.field, &QLineEdit::textChanged, this, &HelpPanel::ShowIndex);
  connect(search_.field, &QLineEdit::textChanged, this, &HelpPanel::ShowFound);
  ShowIndex({});
}

void HelpPanel::BeginSearch() {
  setCurrentIndex(count() - 1);
  search_.field->setFocus();
  search_.field->selectAll();
}

// Chapters and notes have no place.
void HelpPanel::Open(const QVariant& kept) {
  const QStringList parts = kept.toStringList();
  if (parts.size() != 3 || !on_open) return;
  on_open({parts[0].toStdString(), parts[1].toStdString(), parts[2].toStdString()});
}

void HelpPanel::AddContents() {
  auto* tree = new QTreeWidget;
  tree->setAccessibleName(QStringLiteral("Contents"));
  tree->setHeaderHidden(true);
  tree->setWordWrap(true);
  for (const parts::HelpChapter& chapter : book_.Contents()) {
    auto* top = new QTreeWidgetItem(tree, {Shown(chapter.title)});
    for (const parts::HelpPlace& place : chapter.pages) {
      auto* item = new QTreeWidgetItem(top, {Shown(place.title)});
      item->setToolTip(0, Shown(place.title));
      item->setData(0, kPlace, Kept(place));
    }
    top->setExpanded(true);
  }
  const auto open = [this](QTreeWidgetItem* item) {
    if (item) Open(item->data(0, kPlace));
  };
  connect(tree, &QTreeWidget::currentItemChanged, this, open);
  connect(tree, &QTreeWidget::itemClicked, this, open);
  addTab(tree, QStringLiteral("&Contents"));
}

HelpPanel::Finder HelpPanel::AddFinder(const char* tab, const char* field_name,
                                       const char* list_name) {
  const Finder finder{new QLineEdit, new QListWidget};
  finder.field->setAccessibleName(QString::fromLatin1(field_name));
  finder.field->setClearButtonEnabled(true);
  finder.list->setAccessibleName(QString::fromLatin1(list_name));
  finder.list->setWordWrap(true);
  finder.list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  finder.list->setResizeMode(QListView::Adjust);
  auto* page = new QWidget;
  auto* column = new QVBoxLayout(page);
  column->setContentsMargins(kTightSpace, kSpace, kTightSpace, kTightSpace);
  column->addWidget(finder.field);
  column->addWidget(finder.list);
  const auto open = [this](QListWidgetItem* item) {
    if (item) Open(item->data(kPlace));
  };
  connect(finder.list, &QListWidget::currentItemChanged, this, open);
  connect(finder.list, &QListWidget::itemClicked, this, open);
  // The first place is a person's best guess.
  connect(finder.field, &QLineEdit::returnPressed, finder.list, [list = finder.list] {
    list->setCurrentRow(0);
    list->setFocus();
  });
  addTab(page, QString::fromLatin1(tab));
  return finder;
}

void HelpPanel::AddPlace(QListWidget* list, const QString& text, const QString& more,
                         const parts::HelpPlace& place) {
  auto* item = new QListWidgetItem(more.isEmpty() ? text : text + QLatin1Char('\n') + more, list);
  item->setData(kPlace, Kept(place));
}

void HelpPanel::ShowIndex(const QString& beginning) {
  index_.list->clear();
  for (const parts::HelpEntry& entry : book_.Index()) {
    const QString term = Shown(entry.term);
    if (!term.startsWith(beginning.trimmed(), Qt::CaseInsensitive)) continue;
    const bool is_title = entry.term == entry.place.title;
    AddPlace(index_.list, term, is_title ? QString() : Shown(entry.place.title), entry.place);
  }
}

void HelpPanel::ShowFound(const QString& words) {
  search_.list->clear();
  for (const parts::HelpFound& found : book_.Search(words.toStdString())) {
    AddPlace(search_.list, Shown(found.place.title), Shown(found.around), found.place);
  }
  if (search_.list->count() > 0 || words.trimmed().isEmpty()) return;
  auto* nothing = new QListWidgetItem(QStringLiteral("No page has all these words."), search_.list);
  nothing->setFlags(Qt::NoItemFlags);
}

}  // namespace tarnwell::desktop
