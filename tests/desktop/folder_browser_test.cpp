#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include "desktop/services/qt_folder_browser.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Optional;

class QtFolderBrowserTest : public ::testing::Test {
 protected:
  QtFolderBrowserTest() {
    for (const char* folder : {"Home/Tarnwell", "Home/Café", "Home/日本"}) {
      QDir(QString::fromStdString(root_)).mkpath(QString::fromUtf8(folder));
    }
    disk_.Write("Home/b.xls", "old");
    disk_.Write("Home/A.xls", "");
    disk_.Write("Home/.hidden", "");
  }

  testing::TemporaryFolder disk_;
  const std::string root_ = disk_.path();
  QtFolderBrowser browser_{QString::fromStdString(root_ + "/Home/Tarnwell/")};
};

TEST_F(QtFolderBrowserTest, FoldersAndFilesAreListedAsFarAsTheCoreCanNameThem) {
  EXPECT_EQ(browser_.ProgramPath(), root_ + "/Home/Tarnwell");
  EXPECT_THAT(browser_.Folders(root_ + "/Home/"), Optional(ElementsAre("Caf\xE9", "Tarnwell")));
  EXPECT_THAT(browser_.Files(root_ + "/Home"), Optional(ElementsAre("A.xls", "b.xls")));
  EXPECT_THAT(browser_.Files(root_ + "/Home/Caf\xE9"), Optional(IsEmpty()));
}

TEST_F(QtFolderBrowserTest, WhatIsNotThereCannotBeRead) {
  for (const std::string& path : {std::string("c:\\"), std::string(), std::string("Home"),
                                  root_ + "/Nowhere", root_ + "/Home/A.xls"}) {
    EXPECT_EQ(browser_.Folders(path), std::nullopt) << path;
    EXPECT_EQ(browser_.Files(path), std::nullopt) << path;
    EXPECT_FALSE(browser_.WriteFile(path + "/A.xls/new.xls", "x")) << path;
  }
}

TEST_F(QtFolderBrowserTest, AFileIsReplacedWhole) {
  EXPECT_TRUE(browser_.WriteFile(root_ + "/Home/b.xls", "new"));
  EXPECT_TRUE(browser_.WriteFile(root_ + "/Home/Caf\xE9/Caf\xE9.xls", "more"));
  EXPECT_EQ(disk_.Read("Home/b.xls"), "new");
  EXPECT_EQ(disk_.Read("Home/Café/Café.xls"), "more");
}

TEST_F(QtFolderBrowserTest, AFolderThatVanishedOrIsReadOnlyTakesNoFile) {
  const QString home = QString::fromStdString(root_ + "/Home");
  QDir(home + "/Tarnwell").removeRecursively();
  EXPECT_FALSE(browser_.WriteFile(root_ + "/Home/Tarnwell/new.xls", "x"));
  EXPECT_FALSE(QDir(home + "/Tarnwell").exists());

  QFile::setPermissions(home, QFile::ReadOwner | QFile::ExeOwner);
  const bool is_refused = !QFileInfo(home).isWritable();  // not to the system's administrator
  EXPECT_EQ(static_cast<bool>(browser_.WriteFile(root_ + "/Home/b.xls", "new")), !is_refused);
  EXPECT_EQ(disk_.Read("Home/b.xls"), is_refused ? "old" : "new");
  QFile::setPermissions(home, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

TEST(SystemPlaces, AreNamedAsThisSystemNamesThem) {
  const auto places = SystemPlaces();
  EXPECT_THAT(places, Contains(forms::Place{"/", "/"}));
  for (const forms::Place& place : places) {
    EXPECT_TRUE(place.path.starts_with('/')) << place.path;
    EXPECT_FALSE(place.name.empty()) << place.path;
  }
}

}  // namespace
}  // namespace tarnwell::desktop
