#include "proofing/corrections.h"

#include <gtest/gtest.h>

#include "proofing/capitals.h"

namespace tarnwell::proofing {
namespace {

// In the order of the table, from row 1.
constexpr const char* kWrong[] = {
    "abbout",        "abotu",        "absecce",     "accesories", "accidant",   "accross",
    "acheive",       "acheived",     "adn",         "advanage",   "affraid",    "agian",
    "agressive",     "ahppen",       "ahve",        "almsot",     "alot",       "alway",
    "amke",          "anbd",         "anual",       "apparant",   "asthe",      "atthe",
    "awya",          "bakc",         "becaus",      "begining",   "betwen",     "bve",
    "certian",       "chaneg",       "cheif",       "chekc",      "circut",     "claer",
    "cliant",        "cna",          "completness", "comtain",    "conferance", "coudl",
    "cpoy",          "cxan",         "decison",     "diaplay",    "divsion",    "doese",
    "doign",         "doller",       "drnik",       "efel",       "ehr",        "enought",
    "equippment",    "esle",         "especally",   "excellant",  "excercise",  "excitment",
    "exhcange",      "experiance",   "eyt",         "familair",   "familar",    "feild",
    "feilds",        "fidn",         "firts",       "fora",       "forthe",     "forwrds",
    "freind",        "frmo",         "furneral",    "fwe",        "gaurd",      "gerat",
    "geting",        "gievn",        "gonig",       "goverment",  "grwo",       "guidlines",
    "hadbeen",       "haev",         "hasbeen",     "hda",        "helpfull",   "hesaid",
    "hewas",         "hge",          "hlep",        "hsa",        "hsi",        "hte",
    "htey",          "htis",         "hvae",        "hwich",      "i",          "idae",
    "ihs",           "imediate",     "importent",   "inthe",      "isthe",      "itis",
    "jsut",          "judment",      "knowldge",    "knwo",       "lastyear",   "lenght",
    "levle",         "liek",         "likly",       "lisence",    "loev",       "maintenence",
    "makeing",       "managment",    "merchent",    "mesage",     "mispell",    "mkae",
    "morgage",       "mroe",         "mysefl",      "myu",        "necesary",   "nkow",
    "nver",          "nwo",          "obediant",    "ocasion",    "occured",    "ocur",
    "ohter",         "omre",         "oneof",       "onepoint",   "onthe",      "onyl",
    "orginized",     "orginize",     "otehr",       "otu",        "peice",      "permanant",
    "pleasent",      "postition",    "pregnent",    "puting",     "pwoer",      "quesion",
    "reccomend",     "recieve",      "reccomend",   "religous",   "reluctent",  "remeber",
    "representives", "resorces",     "responce",    "restaraunt", "reveiw",     "rumers",
    "rythm",         "saidhe",       "secratary",   "seh",        "sentance",   "shcool",
    "shineing",      "shiped",       "simalar",     "similiar",   "sincerly",   "smae",
    "smoe",          "sohw",         "somethign",   "speach",     "statment",   "stpo",
    "successfull",   "sucess",       "sufficiant",  "suprise",    "swiming",    "tahn",
    "taht",          "tath",         "tecnical",    "teh",        "tehy",       "termoil",
    "tghe",          "thansk",       "their are",   "their is",   "themself",   "theri",
    "thesame",       "thge",         "thigsn",      "thna",       "thne",       "thnig",
    "thsi",          "thsoe",        "thta",        "tihs",       "timne",      "tje",
    "tjhe",          "tkae",         "tomorow",     "totaly",     "tothe",      "truely",
    "tryed",         "unpleasently", "untill",      "vulnerible", "waht",       "warrent",
    "watn",          "wehn",         "werre",       "whcih",      "whta",       "wierd",
    "wihch",         "wiht",         "withe",       "woh",        "writting",   "wtih",
    "wya",           "yuo",          "yuor",
};

TEST(CorrectionsTest, TheTableHasItsWordsInTheirOrder) {
  ASSERT_EQ(std::size(kWrong), 243u);
  ASSERT_EQ(kCorrectionCount, 243);
  int row = 1;
  for (const char* wrong : kWrong) {
    EXPECT_EQ(CorrectionAt(row).wrong, wrong) << row;
    EXPECT_NE(CorrectionAt(row).right, wrong) << row;
    ++row;
  }
}

TEST(CorrectionsTest, AWordIsFoundInAnyCapitals) {
  const struct {
    const char* wrong;
    const char* right;
  } cases[] = {
      {"abbout", "about"},
      {"abotu", "about"},
      {"alot", "a lot"},
      {"atthe", "at the"},
      {"hte", "the"},
      {"i", "I"},
      {"ihs", "his"},
      {"lisence", "license"},
      {"adn", "and"},
      {"anbd", "and"},
      {"cxan", "can"},
      {"fora", "for a"},
      {"ehr", "her"},
      {"efel", "feel"},
      {"werre", "were"},
      {"myu", "my"},
      {"nver", "never"},
      {"cliant", "client"},
      {"withe", "with"},
      {"furneral", "funeral"},
      {"itis", "it is"},
      {"termoil", "turmoil"},
      {"oneof", "one of"},
      {"reccomend", "recommend"},
      {"Teh", "the"},
      {"yuor", "your"},
      {"TOMOROW", "tomorrow"},
      {"about", ""},
      {"", ""},
      {"their", ""},
  };
  for (const auto& one : cases) EXPECT_EQ(FindCorrection(one.wrong), one.right) << one.wrong;
  EXPECT_EQ(FindCorrection("Their", "are"), "there are");
  EXPECT_EQ(FindCorrection("their", "IS"), "there is");
  EXPECT_EQ(FindCorrection("their", "house"), "");
}

TEST(CapitalsTest, ACorrectionTakesTheCapitalsOfTheWordItReplaces) {
  const struct {
    const char* word;
    const char* correction;
    const char* written;
    const char* back;  // without the capitals again
  } cases[] = {
      {"teh", "the", "the", "the"},
      {"Teh", "the", "The", "the"},
      {"TEH", "the", "THE", "the"},
      {"tEH", "the", "THE", "the"},
      {"i", "I", "I", "I"},
      {"I", "I", "I", "i"},
      {"Alot", "a lot", "A lot", "a lot"},
      {"munday", "Monday", "Monday", "Monday"},
      {"MUNDAY", "Monday", "MONDAY", "monday"},
      {"\xC9T\xC9", "\xE9toile", "\xC9TOILE", "\xE9toile"},
      {"", "the", "the", "the"},
      {"Teh", "", "", ""},
  };
  for (const auto& one : cases) {
    EXPECT_EQ(WithCapitalsOf(one.word, one.correction), one.written) << one.word;
    EXPECT_EQ(WithoutCapitalsOf(one.word, one.written), one.back) << one.word;
  }
}

}  // namespace
}  // namespace tarnwell::proofing
