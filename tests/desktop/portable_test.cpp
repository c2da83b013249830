// The program and its data in one folder, as on a stick that goes from one machine to the next.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QProcess>
#include <QSettings>
#include <QTest>
#include <filesystem>

#include "desktop/desktop.h"
#include "desktop/when_modal.h"
#include "planner/zcalandar1.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

namespace fs = std::filesystem;

constexpr int kPatienceMs = 60'000;

std::vector<std::string> FilesBelow(const fs::path& folder) {
  std::vector<std::string> files;
  for (const auto& entry : fs::recursive_directory_iterator(folder)) {
    if (entry.is_regular_file()) files.push_back(entry.path());
  }
  return files;
}

class PortableTest : public ::testing::Test {
 protected:
  PortableTest() {
    fs::create_directories(place_);
    fs::copy(TARNWELL_PROGRAM, place_ / "tarnwell");
    fs::copy(TARNWELL_SOURCE_DIR "/data", place_ / "data", fs::copy_options::recursive);
    std::ofstream(place_ / "portable");
  }

  void Move(const char* name) {
    const fs::path there = machine_.path() + "/" + name;
    fs::rename(place_, there);
    place_ = there;
  }

  Folders ChosenFolders() const {
    return ChooseFolders(QString::fromStdString(place_),
                         QString::fromStdString(home_.path() + "/Tarnwell"));
  }

  static planner::Zcalandar1& PlannerOf(Desktop& desktop) {
    desktop.navigator().Show("Zcalandar1");
    return dynamic_cast<planner::Zcalandar1&>(*desktop.navigator().top());
  }

  const testing::TemporaryFolder machine_;
  const testing::TemporaryFolder home_;
  const testing::TemporaryFolder passing_;  // sockets and the like, gone with the session
  fs::path place_ = machine_.path() + "/stick";
};

TEST_F(PortableTest, AProcessWritesBesideItselfAndNowhereElse) {
  QProcess process;
  QProcessEnvironment surroundings;
  const QString home = QString::fromStdString(home_.path());
  const QString passing = QString::fromStdString(passing_.path());
  surroundings.insert("HOME", home);
  surroundings.insert("XDG_RUNTIME_DIR", passing);
  surroundings.insert("TMPDIR", passing);
  surroundings.insert("FONTCONFIG_FILE", TARNWELL_FONTS);
  surroundings.insert("QT_QPA_PLATFORM", qEnvironmentVariable("QT_QPA_PLATFORM"));
  process.setProcessEnvironment(surroundings);
  process.setWorkingDirectory(home);
  process.start(QString::fromStdString(place_ / "tarnwell"), {});
  // Behind the splash, when the start screen is there.
  EXPECT_TRUE(QTest::qWaitFor([&] { return fs::exists(place_ / "HINV3.Fil"); }, kPatienceMs));
  process.kill();
  process.waitForFinished();
  EXPECT_THAT(FilesBelow(home_.path()), ::testing::IsEmpty());
  EXPECT_THAT(FilesBelow(passing_.path()), ::testing::IsEmpty());
}

TEST_F(PortableTest, WhatWasEnteredGoesWithTheFolder) {
  {
    Desktop desktop(ChosenFolders(), Outside::None());
    planner::Zcalandar1& planner = PlannerOf(desktop);
    planner.entries[0].Type("Dentist");
    testing::WhenModal([](QWidget* modal) { modal->close(); });  // "saved"
    planner.save.Click();
  }
  Move("another stick");
  {
    Desktop desktop(ChosenFolders(), Outside::None());
    EXPECT_EQ(PlannerOf(desktop).entries[0].text(), "Dentist");
  }
  EXPECT_THAT(FilesBelow(home_.path()), ::testing::IsEmpty());
}

TEST_F(PortableTest, DialoguesOfQtRememberInTheFolder) {
  const QString usual = QSettings(QSettings::UserScope, "QtProject").fileName();
  KeepTogether({QString::fromStdString(home_.path()), {}, false});
  EXPECT_EQ(QSettings(QSettings::UserScope, "QtProject").fileName(), usual);
  KeepTogether(ChosenFolders());
  EXPECT_EQ(QSettings(QSettings::UserScope, "QtProject").fileName().toStdString(),
            place_ / "QtProject.conf");
  QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, QFileInfo(usual).path());
}

}  // namespace
}  // namespace tarnwell::desktop
