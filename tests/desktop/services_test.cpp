#include <gtest/gtest.h>

#include <QApplication>
#include <QColorDialog>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMainWindow>
#include <QMessageBox>
#include <QPushButton>
#include <QTest>
#include <QTextBrowser>
#include <QTreeWidget>

#include "desktop/application.h"
#include "desktop/services/folders.h"
#include "desktop/services/help_panel.h"
#include "desktop/services/html_help_viewer.h"
#include "desktop/services/message_dialogs.h"
#include "desktop/services/single_instance.h"
#include "desktop/when_modal.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using testing::TemporaryFolder;
using testing::WhenModal;

TEST(Folders, TheExecutablesFolderIsUsedOnlyWhenItCarriesData) {
  const struct {
    const char* file;
    bool portable;
  } cases[] = {{"portable", true}, {"HINV3.Fil", true}, {"hinv3.fil", true}, {"tarnwell", false}};
  for (const auto& one : cases) {
    const TemporaryFolder executable;
    const TemporaryFolder home;
    executable.Write(one.file, "");
    const QString own = QString::fromStdString(executable.path());
    const QString per_user = QString::fromStdString(home.path()) + "/Tarnwell";
    EXPECT_EQ(ChooseFolders(own, per_user).user, one.portable ? own : per_user) << one.file;
    EXPECT_EQ(QDir(per_user).exists(), !one.portable) << one.file;
  }
}

TEST(Folders, SuppliedFilesAreTheInstalledOnesOrThoseOfTheTreeAround) {
  const TemporaryFolder root;
  const QDir tree(QString::fromStdString(root.path()));
  ASSERT_TRUE(tree.mkpath("bin") && tree.mkpath("build/dev/src/desktop") && tree.mkpath("data"));
  const QString user = tree.filePath("user");
  EXPECT_EQ(ChooseFolders(tree.filePath("build/dev/src/desktop"), user).supplied, QString());
  root.Write("data/tarnwell.svg", "<svg/>");
  EXPECT_EQ(ChooseFolders(tree.filePath("build/dev/src/desktop"), user).supplied,
            tree.filePath("data"));
  ASSERT_TRUE(tree.mkpath("share/tarnwell"));
  EXPECT_EQ(ChooseFolders(tree.filePath("bin"), user).supplied, tree.filePath("share/tarnwell"));
}

TEST(MessageDialogs, ShowTheBoxAsItWasAskedFor) {
  MessageDialogs dialogs;
  WhenModal([](QWidget* modal) {
    auto* box = qobject_cast<QMessageBox*>(modal);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(box->windowTitle(), QStringLiteral("Save – Café"));
    EXPECT_EQ(box->text(), QStringLiteral("Line <b>one</b>\nLine two"));
    EXPECT_EQ(box->textFormat(), Qt::PlainText);
    EXPECT_EQ(box->icon(), QMessageBox::Question);
    EXPECT_EQ(box->defaultButton(), box->button(QMessageBox::No));
    QTest::keyClick(box, Qt::Key_Return);
  });
  EXPECT_EQ(dialogs.Message({"Save \x96 Caf\xE9", "Line <b>one</b>\nLine two",
                             forms::Icon::kQuestion, forms::Buttons::kYesNoCancel, 2}),
            forms::Answer::kNo);
}

TEST(MessageDialogs, TheBoxIsAsWideAsItsTitleAndItsLines) {
  MessageDialogs dialogs;
  const std::string line = "No  - This risk is not currently in reasonable compliance with it.";
  const std::string title = "Make Archive Copy of Policies, Rish Analysis, Incident Reports";
  for (const auto& [head, text] : {std::pair{title, std::string("?")}, {"T", line + "\n" + line}}) {
    WhenModal([](QWidget* modal) {
      auto* box = qobject_cast<QMessageBox*>(modal);
      EXPECT_GT(box->width(), box->fontMetrics().horizontalAdvance(box->windowTitle()) + 100);
      auto* label = box->findChild<QLabel*>(QStringLiteral("qt_msgbox_label"));
      EXPECT_GE(label->width(), label->fontMetrics().size(0, box->text()).width());
      box->accept();
    });
    dialogs.Message({head, text, forms::Icon::kInformation});
  }
}

TEST(MessageDialogs, ClosingTheBoxAnswersWithItsLastButton) {
  const struct {
    forms::Buttons buttons;
    forms::Answer answer;
  } cases[] = {{forms::Buttons::kOk, forms::Answer::kOk},
               {forms::Buttons::kOkCancel, forms::Answer::kCancel},
               {forms::Buttons::kYesNoCancel, forms::Answer::kCancel}};
  for (const auto& one : cases) {
    MessageDialogs dialogs;
    WhenModal([](QWidget* modal) { modal->close(); });
    EXPECT_EQ(dialogs.Message({"T", "t", forms::Icon::kNone, one.buttons}), one.answer);
    WhenModal([](QWidget* modal) { QTest::keyClick(modal, Qt::Key_Escape); });
    EXPECT_EQ(dialogs.Message({"T", "t", forms::Icon::kNone, one.buttons}), one.answer);
  }
}

TEST(MessageDialogs, AQuestionOfYesAndNoStaysUntilOneOfThemIsPressed) {
  MessageDialogs dialogs;
  WhenModal([](QWidget* modal) {
    modal->close();
    QTest::keyClick(modal, Qt::Key_Escape);
    QTest::keyClick(modal, Qt::Key_W, Qt::ControlModifier);
    qobject_cast<QDialog*>(modal)->reject();
    EXPECT_TRUE(modal->isVisible());
    EXPECT_FALSE(modal->windowFlags() & Qt::WindowCloseButtonHint);
    qobject_cast<QMessageBox*>(modal)->button(QMessageBox::Yes)->click();
  });
  EXPECT_EQ(dialogs.Message({"T", "t", forms::Icon::kNone, forms::Buttons::kYesNo}),
            forms::Answer::kYes);
}

TEST(MessageDialogs, AnInputBoxGivesWhatStandsInItsLineUnlessItIsCancelled) {
  const struct {
    const char* what;
    QString typed;
    Qt::Key key;
    std::optional<std::string> answer;
  } cases[] = {
      {"typed over what stood there", QStringLiteral("Zürich"), Qt::Key_Return, "Z\xFCric"},
      {"left as it is", {}, Qt::Key_Return, "Bern"},
      {"cancelled", QStringLiteral("Basel"), Qt::Key_Escape, std::nullopt},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    MessageDialogs dialogs;
    WhenModal([&](QWidget* modal) {
      EXPECT_EQ(modal->windowTitle(), QStringLiteral("Rename"));
      EXPECT_EQ(modal->findChild<QLabel*>()->text(), QStringLiteral("New <name>\nof it"));
      auto* line = modal->findChild<QLineEdit*>();
      if (!one.typed.isEmpty()) line->insert(one.typed);
      QTest::keyClick(line, one.key);
    });
    EXPECT_EQ(dialogs.Input({"Rename", "New <name>\nof it", "Bern", 5}), one.answer);
  }
}

TEST(MessageDialogs, TheColourDialogueStartsWithTheColourAndMayBeCancelled) {
  MessageDialogs dialogs;
  WhenModal([](QWidget* modal) {
    EXPECT_EQ(qobject_cast<QColorDialog*>(modal)->currentColor(), QColor(0, 0, 255));
    qobject_cast<QColorDialog*>(modal)->setCurrentColor(QColor(255, 128, 0));
    qobject_cast<QColorDialog*>(modal)->accept();
  });
  EXPECT_EQ(dialogs.ChooseColor(forms::kPureBlue), 0x0080FF);
  WhenModal([](QWidget* modal) { qobject_cast<QDialog*>(modal)->reject(); });
  EXPECT_EQ(dialogs.ChooseColor(forms::kPureBlue), std::nullopt);
}

TEST(HtmlHelpViewer, ShowsThePageOfAContextAndIgnoresAMissingOne) {
  const TemporaryFolder pages;
  pages.Write("1000.html", "<h1>Overview</h1>");
  pages.Write("index.html", "<h1>Index</h1>");
  HtmlHelpViewer viewer(QString::fromStdString(pages.path()));
  const auto browser = []() -> QTextBrowser* {
    for (QWidget* window : QApplication::topLevelWidgets()) {
      if (auto* found = window->findChild<QTextBrowser*>(); found && window->isVisible()) {
        return found;
      }
    }
    return nullptr;
  };
  viewer.Show(4711);
  EXPECT_EQ(browser(), nullptr);
  viewer.Show(1000);
  ASSERT_NE(browser(), nullptr);
  EXPECT_EQ(browser()->toPlainText(), QStringLiteral("Overview"));
  viewer.Show(4711);
  EXPECT_EQ(browser()->toPlainText(), QStringLiteral("Overview"));
}

TEST(HtmlHelpViewer, LeadsToPagesByContentsIndexAndSearch) {
  const TemporaryFolder pages;
  pages.Write("1000.html", "<title>Overview</title><h1>Overview</h1><p>All of it.</p>");
  pages.Write("1014.html", "<title>Print</title><h1>Print</h1><p>Then press <b>Enlarge</b>.</p>");
  pages.Write("index.html",
              "<h1>Help</h1><h2>All</h2><a href=\"1000.html\">Overview</a><a href=\"1014.html\">"
              "Print</a>");
  HtmlHelpViewer viewer(QString::fromStdString(pages.path()));
  viewer.Show(1000);
  QWidget* window = nullptr;
  for (QWidget* one : QApplication::topLevelWidgets()) {
    if (one->findChild<HelpPanel*>() && one->isVisible()) window = one;
  }
  ASSERT_NE(window, nullptr);
  auto* browser = window->findChild<QTextBrowser*>();
  auto* panel = window->findChild<HelpPanel*>();
  const auto title = [&] { return browser->toPlainText().section('\n', 0, 0); };

  auto* tree = panel->findChild<QTreeWidget*>();
  tree->setCurrentItem(tree->topLevelItem(0)->child(1));
  EXPECT_EQ(title(), QStringLiteral("Print"));
  tree->setCurrentItem(tree->topLevelItem(0)->child(0));
  EXPECT_EQ(title(), QStringLiteral("Overview"));

  for (int tab : {1, 2}) {  // the index, then the search
    panel->setCurrentIndex(tab);
    viewer.Show(1000);
    auto* field = panel->widget(tab)->findChild<QLineEdit*>();
    auto* list = panel->widget(tab)->findChild<QListWidget*>();
    QTest::keyClicks(field, QStringLiteral("enl"));
    QTest::keyClick(field, Qt::Key_Return);
    ASSERT_EQ(list->count(), 1);
    EXPECT_EQ(title(), QStringLiteral("Print"));
    EXPECT_EQ(browser->textCursor().selectedText().left(3).toLower(), QStringLiteral("enl"));
  }
  auto* search = panel->widget(2);
  QTest::keyClicks(search->findChild<QLineEdit*>(), QStringLiteral("x"));
  auto* found = search->findChild<QListWidget*>();
  ASSERT_EQ(found->count(), 1);
  EXPECT_EQ(found->item(0)->text(), QStringLiteral("No page has all these words."));
  found->setCurrentRow(0);
  EXPECT_EQ(title(), QStringLiteral("Print"));
}

TEST(QuietQt, OnlyTheMissingRunTimeDirectoryIsPassedOver) {
  static QStringList heard;
  const auto before = qInstallMessageHandler(
      [](QtMsgType, const QMessageLogContext&, const QString& text) { heard << text; });
  QuietQt();
  qWarning("QStandardPaths: XDG_RUNTIME_DIR not set, defaulting to '/tmp/runtime-user'");
  qWarning("something else");
  qInstallMessageHandler(before);
  EXPECT_EQ(heard, QStringList{QStringLiteral("something else")});
}

// The environment names a run-time directory of the test's own.
class RunTime {
 public:
  RunTime() { qputenv("XDG_RUNTIME_DIR", QByteArray::fromStdString(directory.path())); }
  ~RunTime() { qputenv("XDG_RUNTIME_DIR", before_); }
  const TemporaryFolder directory;

 private:
  const QByteArray before_ = qgetenv("XDG_RUNTIME_DIR");
};

TEST(SingleInstance, AFolderInUseIsToldFromOneThatCantBeUsed) {
  const RunTime run_time;
  const TemporaryFolder folder;
  const QString path = QString::fromStdString(folder.path());
  auto first = std::make_unique<SingleInstance>(path);
  ASSERT_EQ(run_time.directory.Names().size(), 1u);
  const std::string socket = run_time.directory.Names().front();

  // Something foreign in the socket's place is left alone.
  first.reset();
  run_time.directory.Write(socket, "foreign");
  first = std::make_unique<SingleInstance>(path);
  EXPECT_TRUE(first->first());
  EXPECT_EQ(run_time.directory.Read(socket), "foreign");
  const SingleInstance second(path);
  EXPECT_TRUE(second.is_in_use());
  EXPECT_FALSE(second.CallFirst());

  const SingleInstance nowhere(path + "/gone");
  EXPECT_FALSE(nowhere.first());
  EXPECT_FALSE(nowhere.is_in_use());
  EXPECT_EQ(nowhere.fault(), storage::Fault::kMissing);
}

TEST(SingleInstance, ASecondStartInTheFolderCallsTheFirst) {
  const RunTime run_time;
  const TemporaryFolder folder;
  const TemporaryFolder other_folder;
  const QString path = QString::fromStdString(folder.path());
  auto first = std::make_unique<SingleInstance>(path);
  ASSERT_TRUE(first->first());
  int calls = 0;
  first->OnCall([&] { ++calls; });

  const SingleInstance second(path + "/.");
  EXPECT_FALSE(second.first());
  EXPECT_TRUE(second.CallFirst());
  EXPECT_TRUE(QTest::qWaitFor([&] { return calls == 1; }, 2000));
  EXPECT_TRUE(SingleInstance(QString::fromStdString(other_folder.path())).first());

  first.reset();
  EXPECT_FALSE(second.CallFirst());
  EXPECT_TRUE(SingleInstance(path).first());
}

}  // namespace
}  // namespace tarnwell::desktop
