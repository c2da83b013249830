#include <gtest/gtest.h>

#include <QScrollBar>
#include <QTableView>
#include <QTest>

#include "contacts/addbkdisplay.h"
#include "contacts/contact_book.h"
#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "record_book/record_store.h"
#include "storage/file_system.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

TEST(DisplayView, ANewListIsSeenFromItsFirstRowAndWithoutACellInHand) {
  const testing::TemporaryFolder disk;
  storage::ProgramFolder folder(storage::RealFileSystem(), disk.path());
  for (int record = 2; record < 200; ++record) {
    record_book::BookRecord person{std::vector<std::string>(contacts::kContactEntries), {}};
    person.entries[0] = "Name " + std::to_string(record);
    person.entries[7] = person.entries[8] = "555-0100";
    ASSERT_TRUE(record_book::WriteNew(folder, contacts::ContactBook(), record, person));
  }
  Desktop desktop({QString::fromStdString(disk.path()), {}});
  desktop.navigator().Show(forms::form_names::kContactDisplay);
  auto& form = static_cast<contacts::ADDBKDISPLAY&>(*desktop.navigator().top());
  desktop.window().show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&desktop.window()));
  auto* table = desktop.window().findChild<QTableView*>(QStringLiteral("VSGd1"));
  ASSERT_NE(table, nullptr);
  form.options.Pick(1);
  form.search_text.Type("Name 99");
  QCoreApplication::processEvents();
  EXPECT_GT(table->verticalScrollBar()->value(), 0);
  form.options.Pick(2);
  QCoreApplication::processEvents();
  EXPECT_EQ(table->verticalScrollBar()->value(), 0);
  EXPECT_EQ(form.grid.current().row, 0);
  EXPECT_FALSE(table->currentIndex().isValid());
}

}  // namespace
}  // namespace tarnwell::desktop
