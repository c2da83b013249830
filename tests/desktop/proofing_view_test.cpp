#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QListView>
#include <QTest>

#include "desktop/desktop.h"
#include "desktop/when_modal.h"
#include "forms/form_names.h"
#include "proofing/spelling_session.h"
#include "proofing/vsspell1.h"
#include "support/fake_services.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using ::testing::ElementsAre;

class OneLine : public proofing::CheckedText {
 public:
  explicit OneLine(std::string text) : line(std::move(text)) {}
  int parts() override { return 1; }
  std::string part(int) override { return line; }
  void Show(int, std::size_t, std::size_t) override {}
  void Replace(int, std::size_t offset, std::size_t length, std::string_view utf8) override {
    line.replace(offset, length, utf8);
  }
  std::string line;
};

// The real dialogue over a line of text, with a dictionary of the test's own.
class ProofingView : public ::testing::Test {
 protected:
  void Check(OneLine& text, const std::function<void(QWidget&)>& act) {
    desktop.program().variables().SplashShown = 99;
    desktop.Start();
    proofing::SpellingSession session(speller, folder, text);
    ASSERT_TRUE(session.FindNext());
    testing::WhenModal([this, act](QWidget* dialogue) {
      // A field has the focus only in the window that the keys go to.
      EXPECT_TRUE(QTest::qWaitForWindowActive(dialogue));
      act(*desktop.window().PageOf(*desktop.navigator().top()));
      if (forms::Form* left = desktop.navigator().Find(forms::form_names::kVSSpell1)) {
        ADD_FAILURE() << "the dialogue stayed open";
        desktop.navigator().Unload(*left);
      }
    });
    desktop.navigator().ShowModal(forms::form_names::kVSSpell1, [&](forms::Form& form) {
      static_cast<proofing::VSSpell1&>(form).session = &session;
    });
    changes = session.result().changes.size();
    canceled = session.result().canceled;
  }

  const testing::TemporaryFolder temporary;
  storage::ProgramFolder folder{storage::RealFileSystem(), temporary.path()};
  Desktop desktop{
      {QString::fromStdString(temporary.path()), QStringLiteral(TARNWELL_SOURCE_DIR "/data")}};
  testing::FakeSpeller speller;
  std::size_t changes = 0;
  bool canceled = false;
};

TEST_F(ProofingView, EnterChangesTheWordAndEscapeEndsTheCheck) {
  speller.misspelled = {{"aaa", {"abc", "abd"}}, {"bbb", {"bcd"}}, {"ccc", {}}};
  OneLine text("aaa bbb ccc");
  Check(text, [](QWidget& page) {
    auto* field = page.findChild<QLineEdit*>(QStringLiteral("Text1"));
    auto* list = page.findChild<QListView*>(QStringLiteral("List1"));
    EXPECT_TRUE(field->hasFocus());
    QTest::keyClick(field, Qt::Key_Tab);
    QTest::keyClick(list, Qt::Key_Down);
    EXPECT_EQ(field->text(), QStringLiteral("abd"));
    QTest::keyClick(list, Qt::Key_Return);
    EXPECT_TRUE(field->hasFocus());
    EXPECT_EQ(field->text(), QStringLiteral("bcd"));
    QTest::keyClick(field, Qt::Key_Return);
    QTest::keyClick(field, Qt::Key_Escape);
  });
  EXPECT_EQ(text.line, "abd bcd ccc");
  EXPECT_EQ(changes, 2u);
  EXPECT_TRUE(canceled);
}

TEST_F(ProofingView, TheDialogueKeepsItsSizeWhateverTheWord) {
  const std::string wide(200, 'W');
  speller.misspelled = {{"aaa", {}}, {wide, {}}};
  OneLine text("aaa. " + wide + " " + wide + " " + wide);
  Check(text, [](QWidget& page) {
    const QSize before = page.window()->size();
    QTest::mouseClick(page.findChild<QWidget*>(QStringLiteral("Command3")), Qt::LeftButton);
    QCoreApplication::processEvents();  // a new layout, had there been a cause
    EXPECT_LE(page.window()->width(), 1024);
    EXPECT_EQ(page.window()->height(), before.height());
    QTest::keyClick(&page, Qt::Key_Escape);
  });
}

}  // namespace
}  // namespace tarnwell::desktop
