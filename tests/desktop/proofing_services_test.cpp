#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QDir>

#include "desktop/services/dictionary_folders.h"
#include "desktop/services/hunspell_speller.h"
#include "desktop/services/mythes_thesaurus.h"
#include "proofing/corrections.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

using tarnwell::testing::TemporaryFolder;
using ::testing::Contains;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::SizeIs;

const Folders kNowhere{QStringLiteral("/nowhere"), QStringLiteral("/nowhere")};

TEST(HunspellSpeller, KnowsTheInstalledDictionary) {
  HunspellSpeller speller(DictionaryFolders(kNowhere));
  ASSERT_TRUE(speller.available()) << "hunspell-en-us isn't installed";
  for (const auto& [word, correct] : {std::pair{"receive", true},
                                      {"recieve", false},
                                      {"color", true},
                                      {"colour", false},
                                      {"don't", true},
                                      {"Monday", true},
                                      {"monday", false},
                                      {"caf\xE9", true},
                                      {"qzrtx", false}}) {
    EXPECT_EQ(speller.IsCorrect(word), correct) << word;
  }
  EXPECT_EQ(speller.Suggest("recieve").at(0), "receive");
  EXPECT_THAT(speller.Suggest("cafee"), Contains("caf\xE9"));
  EXPECT_THAT(speller.Suggest(std::string(5000, 'x')), IsEmpty());
  EXPECT_THAT(speller.Stems("houses"), Contains("house"));
}

// What the table writes must not be asked about.
TEST(HunspellSpeller, KnowsEveryWordThatTheTableOfCorrectionsWrites) {
  HunspellSpeller speller(DictionaryFolders(kNowhere));
  for (int row = 1; row <= proofing::kCorrectionCount; ++row) {
    const QString right = QString::fromStdString(std::string(proofing::CorrectionAt(row).right));
    for (const QString& word : right.split(' ')) {
      EXPECT_TRUE(speller.IsCorrect(word.toStdString())) << word.toStdString();
    }
  }
}

TEST(MythesThesaurus, FindsAWordInAnyCapitalsAndByItsStem) {
  HunspellSpeller speller(DictionaryFolders(kNowhere));
  MythesThesaurus thesaurus(ThesaurusFolders(kNowhere), speller);
  ASSERT_TRUE(thesaurus.available()) << "mythes-en-us isn't installed";
  const auto meanings = thesaurus.LookUp("Employee");
  ASSERT_FALSE(meanings.empty());
  EXPECT_THAT(meanings[0].description, HasSubstr("(noun)"));
  EXPECT_THAT(meanings[0].synonyms, Contains("worker (generic term)"));
  EXPECT_THAT(thesaurus.LookUp("employees"), SizeIs(meanings.size()));
  for (const char* nothing : {"", "qzrtx", "qz\xE9 rtx"}) {
    EXPECT_THAT(thesaurus.LookUp(nothing), IsEmpty()) << nothing;
  }
  EXPECT_THAT(thesaurus.LookUp(std::string(5000, 'x')), IsEmpty());
}

TEST(ProofingServices, ManageWithoutFilesAndWithDamagedOnes) {
  const TemporaryFolder empty;
  const TemporaryFolder damaged;
  for (const char* name : {"en_US.aff", "en_US.dic", "th_en_US_v2.idx", "th_en_US_v2.dat"}) {
    damaged.Write(name, "\xFF\xFE not a dictionary");
  }
  for (const TemporaryFolder* folder : {&empty, &damaged}) {
    const QStringList folders{QString::fromStdString(folder->path())};
    HunspellSpeller speller(folders);
    MythesThesaurus thesaurus(folders, speller);
    EXPECT_TRUE(speller.IsCorrect("qzrtx"));
    EXPECT_THAT(speller.Suggest("qzrtx"), IsEmpty());
    EXPECT_THAT(speller.Stems("houses"), IsEmpty());
    EXPECT_THAT(thesaurus.LookUp("house"), IsEmpty());
    EXPECT_FALSE(speller.available());
    EXPECT_FALSE(thesaurus.available());
  }
}

TEST(ProofingServices, TheProgramsOwnDictionariesComeFirst) {
  const TemporaryFolder user;
  const QDir place(QString::fromStdString(user.path()));
  ASSERT_TRUE(place.mkpath("dictionaries"));
  user.Write("dictionaries/en_US.aff", "SET UTF-8\n");
  user.Write("dictionaries/en_US.dic", "2\nthe\ntarnwell\n");
  HunspellSpeller speller(DictionaryFolders({place.path(), {}}));
  EXPECT_TRUE(speller.IsCorrect("tarnwell"));
  EXPECT_FALSE(speller.IsCorrect("house"));
}

}  // namespace
}  // namespace tarnwell::desktop
