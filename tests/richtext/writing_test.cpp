#include <gtest/gtest.h>

#include <filesystem>

#include "richtext/editor.h"
#include "richtext/paragraphs.h"
#include "richtext/plain_text.h"
#include "richtext/rich_text_files.h"
#include "richtext/rich_text_writer.h"

namespace tarnwell::richtext {
namespace {

constexpr char kHead[] = "{\\rtf1\\ansi\\ansicpg1252\\deff0\n";

TEST(Writing, EveryStoredDocumentComesBackTheSame) {
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(TARNWELL_TEST_DATA "/rtf")) {
    const std::string bytes = FileBytes(file.path().string());
    const RichDocument document = ReadRichText(bytes);
    const std::string rtf = WriteRichText(document);
    EXPECT_EQ(ReadRichText(rtf), document) << file.path();
    EXPECT_EQ(WriteRichText(ReadRichText(rtf)), rtf) << file.path();
    EXPECT_EQ(SaveRichText(document, StoredFormOf(bytes, ReadRichText(bytes))), bytes)
        << file.path();
    ++count;
  }
  EXPECT_GE(count, 43);
}

TEST(Writing, ADocumentOfEveryKindIsWrittenAsTheLayoutSays) {
  const struct {
    const char* name;
    std::string body;
  } cases[] = {
      {"table.rtf",
       "{\\colortbl;\\red0\\green0\\blue255;}\n"
       "\\pard\\plain before\\par\n"
       "\\trowd\\trgaph108\\trleft-108\\trrh400\n"
       "\\clvertalt\\clbrdrt\\brdrs\\brdrw15\\brdrcf1\\clbrdrb\\brdrdb\\brdrw30\\cellx2000\n"
       "\\clmgf\\clcbpat1\\cellx5000\n"
       "\\pard\\intbl\\plain one\\par\n"
       "\\pard\\intbl\\plain two\\cell\n"
       "\\pard\\intbl\\qc\\plain three\\cell\n"
       "\\row\n"
       "\\trowd\\trgaph0\\trleft0\n"
       "\\cellx3000\n"
       "\\pard\\intbl\\plain alone\\cell\n"
       "\\row\n"
       "\\pard\\plain after\\par\n"},
      {"table-inside-a-cell.rtf",
       "\\trowd\\trgaph0\\trleft0\n"
       "\\cellx5000\n"
       "\\pard\\intbl\\plain before\\par\n"
       "\\pard\\intbl\\plain\\pard\\intbl\\itap2 "
       "inner\\nestcell{\\*\\nesttableprops\\trowd\\cellx1000"
       "\\nestrow}{\\nonesttables\\par}\n"
       "\\pard\\intbl\\plain behind\\cell\n"
       "\\row\n"
       "\\pard\\plain end\\par\n"},
      {"pictures.rtf",
       "\\pard\\plain a{\\pict\\picw10\\pich20\\pngblip\\picwgoal1440\\pichgoal2880\\picscalex50\n"
       "89504e470d0a1a0a}b{\\*\\shppict{\\pict{\\*\\picprop\\shplid1}\\picw4\\pich3\\jpegblip"
       "\\picwgoal60\\pichgoal45\n"
       "ffd87b7d}}{\\nonshppict{\\pict\\wmetafile8 0102}}{\\pict\\wmetafile8\\picw1 0a0b}c\\par\n"},
      {"fields-and-links.rtf",
       "\\pard\\plain see {\\field{\\*\\fldinst{HYPERLINK \"https://example.com/a?b=1&c\"}}"
       "{\\fldrslt{\\ul our page}}} page {\\field{\\*\\fldinst PAGE}{\\fldrslt 3}}"
       "{\\field{\\*\\fldinst TC x}}{\\field{\\*\\fldinst XE}{\\fldrslt}}\\par\n"
       "\\pard\\plain{\\field{\\*\\fldinst TOC}{\\fldrslt{\\field{\\*\\fldinst PAGEREF a}"
       "{\\fldrslt One 1}}\\par\n"
       "\\pard\\li200\\plain Two 2\\par\n"
       "\\pard\\li200\\plain Three}}\\pard\\li200\\plain  3\\par\n"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(WriteRichText(TestDocument(c.name)), kHead + c.body + "}\n") << c.name;
  }
}

TEST(Writing, WhatIsNotUnderstoodStaysInAChangedDocument) {
  const std::string bytes = TestBytes("kept-pieces.rtf");
  RichDocument document = ReadRichText(bytes);
  std::get<std::string>(std::get<Paragraph>(document.blocks[0]).runs[0].content) = "Changed";
  const std::string rtf = SaveRichText(document, StoredFormOf(bytes, ReadRichText(bytes)));
  for (const char* piece :
       {"{\\*\\panose 02020603}", "{\\*\\falt Times}", "\\deflang1033", "\\widowctrl",
        "{\\stylesheet{\\fs20 Normal;}", "{\\info{\\title Agreement}{\\author A. Writer}}",
        "{\\header\\pard\\qr Page \\chpgn\\par}", "\\keepn\\plain\\fs32\\b Changed\\par",
        "loud{\\*\\bkmkstart here}er{\\footnote\\pard\\plain note}{\\*\\bkmkend here}",
        "\\v  hidden} shown{\\*\\new\\bin3 }}}}\\par",
        "\\sect\\sectd \\sbknone \\cols2 {\\footer\\pard F\\par}\n"}) {
    EXPECT_NE(rtf.find(piece), std::string::npos) << piece;
  }
}

// Of each regular kind of document, as other word processors write it: what says more than words
// is in a changed one as in the old.
TEST(Writing, AChangedWordLeavesEverythingElseOfItsDocument) {
  const char* const kPieces[] = {
      "{\\header", "{\\footer",  "footnote", "\\chftn",   "\\chpgn",     "{\\field",   "PAGEREF",
      "bkmkstart", "annotation", "\\atnid",  "\\revised", "\\deleted",   "\\nestcell", "\\clvmgf",
      "\\clvmrg",  "\\clmrg",    "\\sect",   "\\cols2",   "pgwsxn15840", "\\rtlpar",   "\\af37",
      "\\lang1",   "\\brdr",     "\\cbpat1", "\\chbrdr",  "\\listtext",  "\\pntext",   "\\ls1",
      "\\s1\\",    "themedata",  "latent",   "\\tldot",   "\\page",
  };
  int count = 0;
  for (const auto& file : std::filesystem::directory_iterator(TARNWELL_TEST_DATA "/rtf")) {
    const std::string bytes = FileBytes(file.path().string());
    RichDocument document = ReadRichText(bytes);
    const std::optional<Range> word = FindText(document, "alpha", {});
    if (!word) continue;
    ++count;
    Editor editor(document);
    editor.InsertText(editor.Erase(*word), "omega", {});
    const std::string rtf = SaveRichText(document, StoredFormOf(bytes, ReadRichText(bytes)));
    EXPECT_NE(rtf.find("omega"), std::string::npos) << file.path();
    EXPECT_EQ(PlainText(document).find('?'), std::string::npos) << file.path();
    for (const std::string piece : kPieces) {
      EXPECT_EQ(rtf.find(piece) != std::string::npos, bytes.find(piece) != std::string::npos)
          << piece << " in " << file.path();
    }
  }
  EXPECT_GE(count, 21);
}

TEST(Writing, AChangeTakenBackSavesTheOldBytes) {
  const std::string bytes = TestBytes("character-formats.rtf");
  RichDocument document = ReadRichText(bytes);
  auto& text = std::get<std::string>(std::get<Paragraph>(document.blocks[0]).runs[0].content);
  text += 'x';
  EXPECT_NE(SaveRichText(document, StoredFormOf(bytes, ReadRichText(bytes))), bytes);
  text.pop_back();
  EXPECT_EQ(SaveRichText(document, StoredFormOf(bytes, ReadRichText(bytes))), bytes);
}

TEST(Writing, ADocumentMadeByAnEditorGetsTheTablesItNeeds) {
  RichDocument document = FromPlainText("{Zoë} – 日\t№");
  Paragraph& paragraph = std::get<Paragraph>(document.blocks[0]);
  paragraph.runs[0].format.font = "Arial";
  paragraph.runs[0].format.color = Color{1, 2, 3};
  paragraph.format.list = ListItem{0, false, "•", 0, ""};
  EXPECT_EQ(
      WriteRichText(document),
      std::string(kHead) +
          "{\\fonttbl{\\f1\\fnil\\fcharset0 Arial;}}\n"
          "{\\colortbl;\\red1\\green2\\blue3;}\n"
          "\\pard{\\pntext\\plain\\u8226\\'95\\tab}{\\*\\pn\\pnlvlblt\\pnindent360{\\pntxtb\\'b7}}"
          "\\plain{\\f1\\cf1\\{Zo\\u235\\'eb\\} \\u8211\\'96 \\u26085?\\tab \\u8470?}\\par\n"
          "}\n");
  const RichDocument again = ReadRichText(WriteRichText(document));
  EXPECT_EQ(ParagraphAt(again, 0).runs, paragraph.runs);
  EXPECT_EQ(ParagraphAt(again, 0).format.list->marker, "•");
}

TEST(Writing, ANewFontGetsANumberThatIsFree) {
  RichDocument document =
      ReadRichText("{\\rtf1\\deff1{\\fonttbl{\\f2147483647 Arial;}{\\f0 Courier;}}\\pard a\\par}");
  std::get<Paragraph>(document.blocks[0]).runs[0].format.font = "Times";
  const std::string rtf = WriteRichText(document);
  EXPECT_NE(rtf.find("{\\f2\\fnil\\fcharset0 Times;}"), std::string::npos) << rtf;
}

TEST(Writing, CharactersPastTheFirstPlaneAreWrittenAsPairs) {
  const std::string rtf = WriteRichText(FromPlainText("a😀1"));
  EXPECT_EQ(rtf, std::string(kHead) + "\\pard\\plain a\\u-10179?\\u-8704?1\\par\n}\n");
  EXPECT_EQ(PlainText(ReadRichText(rtf)), "a😀1");
}

// Words of a paragraph's end, or of a group in it, and what is written of them.
TEST(Writing, WordsThatHoldForOneScriptStayBehindItsSwitch) {
  const struct {
    const char* read;
    const char* written;
  } cases[] = {
      {"\\plain\\f1\\caps\\lang1 \\caps0 x", "\\plain\\lang1\\caps0\\f1 x"},
      {"\\plain\\rtlch\\fcs1 \\af2\\afs30 \\ltrch\\fcs0 "
       "\\f1\\lang7\\hich\\af3\\dbch\\af4\\loch\\f1 x",
       "\\plain\\rtlch\\fcs1\\af2\\afs30\\ltrch\\fcs0\\lang7\\hich\\af3\\dbch\\af4\\loch\\f1 x"},
      {"\\plain\\rtlch\\af2 \\ltrch\\hich\\af3\\loch\\f1\\lang7\\dbch\\af4 x",
       "\\plain\\rtlch\\af2\\ltrch\\hich\\af3\\dbch\\af4\\loch\\lang7\\f1 x"},
      {"\\plain\\rtlch\\af2 \\ltrch\\f1{\\ltrch\\rtlch\\afs30\\ab x}",
       "\\plain\\rtlch\\af2\\ltrch\\f1{\\plain\\ltrch\\f1\\rtlch\\af2\\afs30\\ab x}"},
      {"\\plain\\ltrch\\af1\\rtlch\\af2\\f2 x{\\b y}",
       "\\plain\\ltrch\\af1\\rtlch\\af2\\f2 x{\\b y}"},
      {"\\plain\\f1\\dbch\\af4 x", "\\plain\\dbch\\af4\\loch\\f1 x"},
      {"\\plain\\rtlch\\af2\\f0 x", "\\plain\\rtlch\\af2\\f0 x"},
      {"\\plain\\f0\\rtlch\\af2 x", "\\plain\\f0\\rtlch\\af2 x"},
      {"\\plain\\chbrdr\\brdrs\\brdrw10 x{\\chbrdr\\brdrdb y}\\brdrb\\brdrth",
       "\\brdrb\\brdrth\\plain\\chbrdr\\brdrs\\brdrw10 x{\\plain\\chbrdr\\brdrdb y}"},
  };
  for (const auto& c : cases) {
    const std::string fonts =
        "{\\fonttbl{\\f0\\fcharset0 A;}\n{\\f1\\fcharset0 B;}{\\f2\\fcharset177 C;}}";
    const std::string rtf =
        WriteRichText(ReadRichText("{\\rtf1" + fonts + "\\pard" + c.read + "\\par}"));
    EXPECT_NE(rtf.find(std::string("\\pard") + c.written + "\\par"), std::string::npos) << rtf;
    EXPECT_EQ(WriteRichText(ReadRichText(rtf)), rtf);
  }
}

// The letters as bytes of their code page, and what every reader of today takes for them.
TEST(Writing, EastAsianTextIsKeptThroughAChange) {
  const struct {
    const char* name;
    const char* rtf;
    const char* text;
    const char* font;
  } cases[] = {
      {"Japanese",
       "{\\rtf1\\ansi\\ansicpg932{\\fonttbl{\\f0\\fcharset128 "
       "\\'82l\\'82r;}}\\f0\\'93\\'fa\\'95\\'5c\\'83A "
       "\\'b1\\u8364\\'5c\\par}",
       "日表ア ｱ€", "ＭＳ"},
      {"Chinese",
       "{\\rtf1\\ansi\\ansicpg936 {\\fonttbl{\\f0\\fcharset134 "
       "\\'cb\\'ce;}}\\f0\xD6\xD0\\'ce\\'c4\\par}",
       "中文", "宋"},
      {"Korean",
       "{\\rtf1\\ansi\\ansicpg1252{\\fonttbl{\\f0 A;}{\\f1\\fcharset129 B;}}caf\\'e9 "
       "\\f1\\'c7\\'d1\\par}",
       "café 한", "A"},
      {"broken off", "{\\rtf1\\ansi\\ansicpg950 \\'a4{\\b\\'a4}\\'a4\\tab\\'a4\\par}", "???\t?",
       ""},
  };
  for (const auto& c : cases) {
    RichDocument document = ReadRichText(c.rtf);
    EXPECT_EQ(PlainText(document), c.text) << c.name;
    EXPECT_EQ(document.fonts.empty() ? "" : document.fonts[0].name, c.font) << c.name;
    const RichDocument again = ReadRichText(WriteRichText(document));
    EXPECT_EQ(again, document) << WriteRichText(document);
  }
}

TEST(Writing, WhatStandsBehindTheLastParagraphMakesNoneOfItsOwn) {
  const char* const groups = "{\\*\\bkmkend a}{\\uc2{\\*\\themedata 50}}{\\*\\new{\\x}}";
  const struct {
    const char* body;
    std::size_t blocks;
  } cases[] = {
      {"\\pard a\\par ", 1},
      {"\\pard a\\par\\trowd\\cellx900\\pard\\intbl b\\cell\\row", 2},
      {"\\pard a\\par{\\v hidden}", 2},
      {"\\pard a", 1},
  };
  for (const auto& c : cases) {
    const std::string rtf = std::string("{\\rtf1\\uc1 ") + c.body + groups + "}";
    const RichDocument document = ReadRichText(rtf);
    EXPECT_EQ(document.blocks.size(), c.blocks) << c.body;
    const std::string written = WriteRichText(document);
    EXPECT_NE(written.find("{\\*\\themedata 50}"), std::string::npos) << written;
    EXPECT_EQ(ReadRichText(written), document) << written;
  }
}

TEST(Writing, EveryFontThatIsWrittenHasAName) {
  RichDocument typed = ReadRichText("");
  Editor(typed).InsertText({}, "a", {});
  EXPECT_NE(WriteRichText(typed).find("{\\fonttbl{\\f0\\froman\\fcharset0 Times New Roman;}}"),
            std::string::npos);
  RichDocument pasted =
      ReadRichText("{\\rtf1{\\fonttbl{\\f1 Arial;}}\\pard\\f1 a{\\plain b}c\\par}");
  const std::string rtf = WriteRichText(pasted);
  EXPECT_EQ(rtf.find(" ;}"), std::string::npos) << rtf;
  EXPECT_EQ(ReadRichText(rtf), pasted);
}

}  // namespace
}  // namespace tarnwell::richtext
