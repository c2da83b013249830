#include "richtext/rtf_words.h"

#include <algorithm>
#include <initializer_list>
#include <unordered_map>

namespace tarnwell::richtext {
namespace {

// Words with a meaning of their own, by name.
constexpr KnownWord kNamedWords[] = {
    {"ansi", WordClass::kDocument, Word::kNamedCodePage, 1252},
    {"ansicpg", WordClass::kDocument, Word::kCodePage, 0},
    {"b", WordClass::kCharacter, Word::kBold, 0},
    {"bullet", WordClass::kCharacterOf, Word::kNone, 0x2022},
    {"cb", WordClass::kCharacter, Word::kHighlight, 0},
    {"cell", WordClass::kStructure, Word::kCellEnd, 0},
    {"cf", WordClass::kCharacter, Word::kColor, 0},
    {"chcbpat", WordClass::kCharacter, Word::kHighlight, 0},
    {"colortbl", WordClass::kDestination, Word::kColors, 0},
    {"deff", WordClass::kDocument, Word::kDefaultFont, 0},
    {"deleted", WordClass::kCharacter, Word::kHidden, 0},
    {"emdash", WordClass::kCharacterOf, Word::kNone, 0x2014},
    {"emspace", WordClass::kCharacterOf, Word::kNone, 0x2003},
    {"endash", WordClass::kCharacterOf, Word::kNone, 0x2013},
    {"enspace", WordClass::kCharacterOf, Word::kNone, 0x2002},
    {"f", WordClass::kCharacter, Word::kFont, 0},
    {"fi", WordClass::kParagraph, Word::kFirstLine, 0},
    {"field", WordClass::kDestination, Word::kField, 0},
    {"fldrslt", WordClass::kDestination, Word::kResult, 0},
    {"fonttbl", WordClass::kDestination, Word::kFonts, 0},
    {"fs", WordClass::kCharacter, Word::kSize, 0},
    {"highlight", WordClass::kCharacter, Word::kHighlight, 0},
    {"i", WordClass::kCharacter, Word::kItalic, 0},
    {"ilvl", WordClass::kParagraph, Word::kListLevel, 0},
    {"intbl", WordClass::kParagraph, Word::kInTable, 0},
    {"itap", WordClass::kParagraph, Word::kNesting, 0},
    {"lbr", WordClass::kCharacterOf, Word::kNone, 10},
    {"ldblquote", WordClass::kCharacterOf, Word::kNone, 0x201C},
    {"li", WordClass::kParagraph, Word::kLeftIndent, 0},
    {"lin", WordClass::kParagraph, Word::kLeftIndent, 0},
    {"line", WordClass::kCharacterOf, Word::kNone, 10},
    {"listtext", WordClass::kDestination, Word::kListText, 0},
    {"lquote", WordClass::kCharacterOf, Word::kNone, 0x2018},
    {"ls", WordClass::kParagraph, Word::kListNumber, 0},
    {"ltrmark", WordClass::kCharacterOf, Word::kNone, 0x200E},
    {"mac", WordClass::kDocument, Word::kNamedCodePage, 10000},
    {"margb", WordClass::kDocument, Word::kMarginBottom, 0},
    {"margbsxn", WordClass::kDocument, Word::kMarginBottom, 0},
    {"margl", WordClass::kDocument, Word::kMarginLeft, 0},
    {"marglsxn", WordClass::kDocument, Word::kMarginLeft, 0},
    {"margr", WordClass::kDocument, Word::kMarginRight, 0},
    {"margrsxn", WordClass::kDocument, Word::kMarginRight, 0},
    {"margt", WordClass::kDocument, Word::kMarginTop, 0},
    {"margtsxn", WordClass::kDocument, Word::kMarginTop, 0},
    {"nosupersub", WordClass::kCharacter, Word::kNoSuperSub, 0},
    {"page", WordClass::kCharacterOf, Word::kNone, 12},
    {"pagebb", WordClass::kParagraph, Word::kPageBreakBefore, 0},
    {"paperh", WordClass::kDocument, Word::kPaperHeight, 0},
    {"paperw", WordClass::kDocument, Word::kPaperWidth, 0},
    {"par", WordClass::kStructure, Word::kParagraphEnd, 0},
    {"pard", WordClass::kStructure, Word::kParagraphDefaults, 0},
    {"pc", WordClass::kDocument, Word::kNamedCodePage, 437},
    {"pca", WordClass::kDocument, Word::kNamedCodePage, 850},
    {"pghsxn", WordClass::kDocument, Word::kPaperHeight, 0},
    {"pgwsxn", WordClass::kDocument, Word::kPaperWidth, 0},
    {"pict", WordClass::kDestination, Word::kPicture, 0},
    {"plain", WordClass::kCharacter, Word::kPlain, 0},
    {"pn", WordClass::kDestination, Word::kListDescription, 0},
    {"pntext", WordClass::kDestination, Word::kListText, 0},
    {"qc", WordClass::kParagraph, Word::kAlign, 1},
    {"qj", WordClass::kParagraph, Word::kAlign, 3},
    {"ql", WordClass::kParagraph, Word::kAlign, 0},
    {"qmspace", WordClass::kCharacterOf, Word::kNone, 0x2005},
    {"qr", WordClass::kParagraph, Word::kAlign, 2},
    {"rdblquote", WordClass::kCharacterOf, Word::kNone, 0x201D},
    {"ri", WordClass::kParagraph, Word::kRightIndent, 0},
    {"rin", WordClass::kParagraph, Word::kRightIndent, 0},
    {"row", WordClass::kStructure, Word::kRowEnd, 0},
    {"rquote", WordClass::kCharacterOf, Word::kNone, 0x2019},
    {"rtlmark", WordClass::kCharacterOf, Word::kNone, 0x200F},
    {"s", WordClass::kParagraph, Word::kStyle, 0},
    {"sa", WordClass::kParagraph, Word::kSpaceAfter, 0},
    {"sb", WordClass::kParagraph, Word::kSpaceBefore, 0},
    {"sect", WordClass::kStructure, Word::kSectionEnd, 0},
    {"shppict", WordClass::kDestination, Word::kShapePicture, 0},
    {"sl", WordClass::kParagraph, Word::kLineSpacing, 0},
    {"slmult", WordClass::kParagraph, Word::kSpacingMultiple, 0},
    {"strike", WordClass::kCharacter, Word::kStrike, 0},
    {"stylesheet", WordClass::kDestination, Word::kStyles, 0},
    {"sub", WordClass::kCharacter, Word::kSub, 0},
    {"super", WordClass::kCharacter, Word::kSuper, 0},
    {"tab", WordClass::kCharacterOf, Word::kNone, 9},
    {"tb", WordClass::kParagraph, Word::kBarTab, 0},
    {"tldot", WordClass::kParagraph, Word::kTabLeader, 1},
    {"tleq", WordClass::kParagraph, Word::kTabLeader, 6},
    {"tlhyph", WordClass::kParagraph, Word::kTabLeader, 3},
    {"tlmdot", WordClass::kParagraph, Word::kTabLeader, 2},
    {"tlth", WordClass::kParagraph, Word::kTabLeader, 5},
    {"tlul", WordClass::kParagraph, Word::kTabLeader, 4},
    {"tqc", WordClass::kParagraph, Word::kTabKind, 1},
    {"tqdec", WordClass::kParagraph, Word::kTabKind, 3},
    {"tqr", WordClass::kParagraph, Word::kTabKind, 2},
    {"trowd", WordClass::kStructure, Word::kRowStart, 0},
    {"tx", WordClass::kParagraph, Word::kTab, 0},
    {"u", WordClass::kStructure, Word::kUnicode, 0},
    {"uc", WordClass::kStructure, Word::kUnicodeSkip, 0},
    {"ul", WordClass::kCharacter, Word::kUnderline, 1},
    {"uld", WordClass::kCharacter, Word::kUnderline, 3},
    {"uldash", WordClass::kCharacter, Word::kUnderline, 7},
    {"uldashd", WordClass::kCharacter, Word::kUnderline, 8},
    {"uldashdd", WordClass::kCharacter, Word::kUnderline, 9},
    {"uldb", WordClass::kCharacter, Word::kUnderline, 2},
    {"ulhwave", WordClass::kCharacter, Word::kUnderline, 11},
    {"ulldash", WordClass::kCharacter, Word::kUnderline, 10},
    {"ulnone", WordClass::kCharacter, Word::kUnderline, 0},
    {"ulth", WordClass::kCharacter, Word::kUnderline, 6},
    {"ulthd", WordClass::kCharacter, Word::kUnderline, 13},
    {"ulthdash", WordClass::kCharacter, Word::kUnderline, 14},
    {"ulthdashd", WordClass::kCharacter, Word::kUnderline, 15},
    {"ulthdashdd", WordClass::kCharacter, Word::kUnderline, 16},
    {"ulthldash", WordClass::kCharacter, Word::kUnderline, 17},
    {"ululdbwave", WordClass::kCharacter, Word::kUnderline, 12},
    {"ulw", WordClass::kCharacter, Word::kUnderline, 4},
    {"ulwave", WordClass::kCharacter, Word::kUnderline, 5},
    {"v", WordClass::kCharacter, Word::kHidden, 0},
    {"zwbo", WordClass::kCharacterOf, Word::kNone, 0x200B},
    {"zwj", WordClass::kCharacterOf, Word::kNone, 0x200D},
    {"zwnbo", WordClass::kCharacterOf, Word::kNone, 0x2060},
    {"zwnj", WordClass::kCharacterOf, Word::kNone, 0x200C},
};

// Words that share one meaning, a blank behind each.
constexpr std::string_view kKeptCharacterWords =
    "ab acccomma accdot accnone acf af afs ai alang animtext aul caps cchs cgrid charrsid "
    "charscalex chbrdr chcfpat chshdng crauth crdate cs dbch delrsid dn embo expnd expndtw fcs "
    "hich impr insrsid kerning lang langfe langfenp langnp loch ltrch noproof outl revauth "
    "revauthdel revdttm revdttmdel revised rtlch scaps shad striked up webhidden ";

constexpr std::string_view kKeptParagraphWords =
    "absh abslock absnoovrlp absw adjustright aspalpha aspnum bgbdiag bgcross bgdcross bgdkbdiag "
    "bgdkcross bgdkdcross bgdkfdiag bgdkhoriz bgdkvert bgfdiag bghoriz bgvert box brdrb brdrbar "
    "brdrbtw brdrl brdrr brdrt cbpat cfpat contextualspace cufi culi curi dfrmtxtx dfrmtxty "
    "dropcapli dropcapt dxfrtext faauto facenter fafixed fahang faroman favar frmtxlrtb hyphpar "
    "keep keepn level lisa lisb ltrpar noline nooverflow nowidctlpar nowrap outlinelevel overlay "
    "pararsid phcol phmrg phpg posnegx posnegy posx posxc posxi posxl posxo posxr posy posyb "
    "posyc posyil posyin posyout posyt pvmrg pvpara pvpg rtlpar saauto sbauto sbys shading spv "
    "subdocument widctlpar wraparound wrapdefault wrapthrough wraptight yts ";

constexpr std::string_view kBorderWords =
    "brdrcf brdrdash brdrdashd brdrdashdd brdrdashdot brdrdashdotdot brdrdashdotstr brdrdashsm "
    "brdrdb brdrdot brdremboss brdrengrave brdrframe brdrhair brdrinset brdrnil brdrnone "
    "brdroutset brdrs brdrsh brdrtbl brdrth brdrthtnlg brdrthtnmg brdrthtnsg brdrtnthlg "
    "brdrtnthmg brdrtnthsg brdrtnthtnlg brdrtnthtnmg brdrtnthtnsg brdrtriple brdrw brdrwavy "
    "brdrwavydb brsp ";

constexpr std::string_view kDestinationWords =
    "aftncn aftnsep aftnsepc annotation atnauthor atnicn atnid atnref atntime atrfend atrfstart "
    "background bkmkend bkmkstart do fchars filetbl fldinst footer footerf footerl footerr "
    "footnote ftncn ftnsep ftnsepc header headerf headerl headerr info lchars listoverridetable "
    "listtable mmath nonesttables nonshppict objdata object pnseclvl pntxta pntxtb private1 "
    "result revtbl rsidtbl rxe shp shpgrp tc tcn template txe ud upr xe ";

constexpr std::string_view kKeptInPlaceWords =
    "binfsxn binsxn brdrart chatn chdate chdpa chdpl chftn chftnsep chftnsepc chpgn chtime colno "
    "cols colsr colsx column colw ds endnhere footery guttersxn headery linebetcol linecont "
    "linemod lineppage linerestart linestarts linex lndscpsxn ltrsect margmirsxn pgbrdrb "
    "pgbrdrfoot pgbrdrhead pgbrdrl pgbrdropt pgbrdrr pgbrdrsnap pgbrdrt pgncont pgndec pgnhn "
    "pgnhnsc pgnhnsh pgnhnsm pgnhnsn pgnhnsp pgnlcltr pgnlcrm pgnrestart pgnstarts pgnucltr "
    "pgnucrm pgnx pgny rtlsect saftnnar saftnnrlc saftnrstcont saftnstart sbkcol sbkeven sbknone "
    "sbkodd sbkpage sectd sectdefaultcl sectexpand sectlinegrid sectnum sectrsid sectspecifycl "
    "sectspecifygen sectspecifyl sectsrsid sectunlocked sftnbj sftnnar sftnrestart sftnrstcont "
    "sftnrstpg sftnstart sftntj softcol softlheight softline softpage stextflow titlepg vertal "
    "vertalb vertalc vertalj vertalt ";

constexpr std::string_view kRowWords = "cellx ";

constexpr std::string_view kIgnoredWords = "bin nestcell nestrow rtf ";

using WordMap = std::unordered_map<std::string_view, KnownWord>;

void AddAll(std::string_view words, WordClass word_class, WordMap& map) {
  while (!words.empty()) {
    const std::string_view name = words.substr(0, words.find(' '));
    map.emplace(name, KnownWord{name, word_class, Word::kNone, 0});
    words.remove_prefix(name.size() + 1);
  }
}

WordMap MakeMap() {
  WordMap map;
  for (const KnownWord& word : kNamedWords) map.emplace(word.name, word);
  AddAll(kKeptCharacterWords, WordClass::kKeptCharacter, map);
  AddAll(kKeptParagraphWords, WordClass::kKeptParagraph, map);
  AddAll(kBorderWords, WordClass::kBorder, map);
  AddAll(kDestinationWords, WordClass::kDestination, map);
  AddAll(kKeptInPlaceWords, WordClass::kKeptInPlace, map);
  AddAll(kRowWords, WordClass::kRow, map);
  AddAll(kIgnoredWords, WordClass::kIgnored, map);
  return map;
}

// All words of rows and cells begin with one of these.
bool IsRowWord(std::string_view name) {
  const std::initializer_list<std::string_view> beginnings = {"tr",   "cl",      "tbl",
                                                              "irow", "lastrow", "tdfl"};
  return std::any_of(beginnings.begin(), beginnings.end(),
                     [name](std::string_view beginning) { return name.starts_with(beginning); });
}

}  // namespace

KnownWord FindWord(std::string_view name) {
  static const WordMap map = MakeMap();
  const auto found = map.find(name);
  if (found != map.end()) return found->second;
  return {name, IsRowWord(name) ? WordClass::kRow : WordClass::kUnknown, Word::kNone, 0};
}

std::string_view UnderlineWord(int underline) {
  if (underline == 0) return {};
  const auto* const word = std::find_if(
      std::begin(kNamedWords), std::end(kNamedWords), [underline](const KnownWord& candidate) {
        return candidate.word == Word::kUnderline && candidate.value == underline;
      });
  return word == std::end(kNamedWords) ? std::string_view{} : word->name;
}

}  // namespace tarnwell::richtext
