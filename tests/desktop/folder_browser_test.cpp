#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "desktop/services/qt_folder_browser.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;

// Two volumes: one with the program's folder, one mounted inside it.
class QtFolderBrowserTest : public ::testing::Test {
 protected:
  QtFolderBrowserTest() {
    for (const char* folder : {"Home/Tarnwell", "Home/Café", "Home/日本", "Stick/Sheets"}) {
      QDir(root_).mkpath(QString::fromUtf8(folder));
    }
    disk_.Write("Home/b.xls", "old");
    disk_.Write("Home/A.xls", "");
    disk_.Write("Home/back\\slash", "");
    disk_.Write("Home/.hidden", "");
  }

  testing::TemporaryFolder disk_;
  QString root_ = QString::fromStdString(disk_.path());
  QStringList volumes_{root_, root_ + "/Stick"};
  QtFolderBrowser browser_{root_ + "/Home/Tarnwell/", [this] { return volumes_; }};
};

TEST_F(QtFolderBrowserTest, FoldersAndFilesAreListedAsFarAsTheCoreCanNameThem) {
  EXPECT_EQ(browser_.ProgramPath(), "c:\\Home\\Tarnwell");
  EXPECT_THAT(browser_.Drives(), ElementsAre("c:", "d:"));
  EXPECT_THAT(browser_.Folders("c:\\"), Optional(ElementsAre("Home", "Stick")));
  EXPECT_THAT(browser_.Folders("C:\\Home\\"), Optional(ElementsAre("Caf\xE9", "Tarnwell")));
  EXPECT_THAT(browser_.Files("c:\\Home"), Optional(ElementsAre("A.xls", "b.xls")));
  EXPECT_THAT(browser_.Files("c:\\Home\\Caf\xE9"), Optional(IsEmpty()));
  EXPECT_THAT(browser_.Folders("d:\\"), Optional(ElementsAre("Sheets")));
}

TEST_F(QtFolderBrowserTest, WhatIsNotThereCannotBeRead) {
  browser_.Drives();
  for (const char* path : {"e:\\", "", "c", "\\Home", "c:\\Nowhere", "c:\\Home\\A.xls"}) {
    EXPECT_EQ(browser_.Folders(path), std::nullopt) << path;
    EXPECT_EQ(browser_.Files(path), std::nullopt) << path;
    EXPECT_FALSE(browser_.WriteFile(std::string(path) + "\\A.xls\\new.xls", "x")) << path;
  }
  volumes_.removeLast();
  EXPECT_THAT(browser_.Drives(), ElementsAre("c:"));
  EXPECT_EQ(browser_.Folders("d:\\"), std::nullopt);
}

TEST_F(QtFolderBrowserTest, AFileIsReplacedWhole) {
  browser_.Drives();
  EXPECT_TRUE(browser_.WriteFile("c:\\Home\\b.xls", "new"));
  EXPECT_TRUE(browser_.WriteFile("d:\\Sheets\\Caf\xE9.xls", "more"));
  EXPECT_EQ(disk_.Read("Home/b.xls"), "new");
  EXPECT_EQ(disk_.Read("Stick/Sheets/Café.xls"), "more");
}

TEST_F(QtFolderBrowserTest, AFolderThatVanishedOrIsReadOnlyTakesNoFile) {
  browser_.Drives();
  ASSERT_TRUE(browser_.Files("d:\\Sheets").has_value());
  QDir(root_ + "/Stick/Sheets").removeRecursively();
  EXPECT_FALSE(browser_.WriteFile("d:\\Sheets\\new.xls", "x"));
  EXPECT_FALSE(QDir(root_ + "/Stick/Sheets").exists());

  const QString home = root_ + "/Home";
  QFile::setPermissions(home, QFile::ReadOwner | QFile::ExeOwner);
  const bool is_refused = !QFileInfo(home).isWritable();  // not to the system's administrator
  EXPECT_EQ(browser_.WriteFile("c:\\Home\\b.xls", "new"), !is_refused);
  EXPECT_EQ(disk_.Read("Home/b.xls"), is_refused ? "old" : "new");
  QFile::setPermissions(home, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(MountedVolumes, TheRootIsTheFirst) {
  const QStringList volumes = MountedVolumes();
  ASSERT_FALSE(volumes.isEmpty());
  EXPECT_EQ(volumes.first(), "/");
}

}  // namespace
}  // namespace tarnwell::desktop
