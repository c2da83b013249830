// The colours for a light and a dark desktop and for strong contrast: what the desktop asks for,
// and whether letters, marks and the focus are seen in each.

#include "desktop/widgets/tones.h"

#include <gtest/gtest.h>

#include <QMap>
#include <QTest>

#include "desktop/sample_form.h"
#include "desktop/services/desktop_tones.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/pictures.h"
#include "forms/list_box.h"
#include "forms/rich_text_box.h"
#include "forms/text_box.h"
#include "forms/typed_combo.h"

namespace tarnwell::desktop {
namespace {

constexpr double kLegible = 4.5;
constexpr double kSeen = 3;

struct Written {
  Tone letters;
  Tone ground;
};
const Written kWritten[] = {
    {Tone::kInk, Tone::kGround},
    {Tone::kInk, Tone::kCard},
    {Tone::kInk, Tone::kField},
    {Tone::kInk, Tone::kFieldOff},
    {Tone::kInk, Tone::kFieldHover},
    {Tone::kInk, Tone::kFieldDown},
    {Tone::kInk, Tone::kStripe},
    {Tone::kInk, Tone::kChosen},
    {Tone::kInk, Tone::kInHand},
    {Tone::kInk, Tone::kHead},
    {Tone::kInk, Tone::kChrome},
    {Tone::kInk, Tone::kTip},
    {Tone::kInk, Tone::kProgress},
    {Tone::kFaint, Tone::kCard},
    {Tone::kFaint, Tone::kField},
    {Tone::kFaint, Tone::kFieldOff},
    {Tone::kFaint, Tone::kChrome},
    {Tone::kOnMark, Tone::kMark},
    {Tone::kOnMark, Tone::kMarkHover},
    {Tone::kOnMark, Tone::kMarkDown},
    {Tone::kOnMarkOff, Tone::kMarkOff},
    {Tone::kOnSelected, Tone::kSelected},
    {Tone::kOnMenuHover, Tone::kMenuHover},
    {Tone::kAccent, Tone::kField},
    {Tone::kAccent, Tone::kCard},
    {Tone::kVisited, Tone::kField},
    {Tone::kAlarm, Tone::kField},
};

std::string NameOf(ToneSet set) {
  return std::string("set ") + std::to_string(static_cast<int>(set));
}

TEST(TonesTest, EveryLetterIsLegibleInEverySet) {
  for (const ToneSet set : kToneSets) {
    for (const auto& [letters, ground] : kWritten) {
      EXPECT_GE(Contrast(ColorOf(set, letters), ColorOf(set, ground)), kLegible)
          << NameOf(set) << ", tone " << static_cast<int>(letters) << " on "
          << static_cast<int>(ground);
    }
    EXPECT_GE(Contrast(ColorOf(set, Tone::kHandle), ColorOf(set, Tone::kTrack)), kSeen);
    EXPECT_FALSE(StyleSheetOf(set).contains('@'));
  }
}

TEST(TonesTest, ADesktopGetsTheSetThatItAsksFor) {
  const QPalette light(QColor(0xEF, 0xEF, 0xEF), QColor(0xEF, 0xEF, 0xEF));
  const QPalette dark(QColor(0x31, 0x36, 0x3B), QColor(0x2A, 0x2E, 0x32));
  QPalette black(Qt::black);
  black.setColor(QPalette::WindowText, Qt::white);
  struct Case {
    QPalette palette;
    QVariantMap settings;
    ToneSet set;
  };
  const Case cases[] = {
      {light, {}, ToneSet::kLight},
      {dark, {}, ToneSet::kDark},
      {black, {}, ToneSet::kBlack},
      {light, {{"color-scheme", 1u}}, ToneSet::kDark},
      {light, {{"color-scheme", 0u}}, ToneSet::kLight},
      {dark, {{"color-scheme", 2u}}, ToneSet::kLight},
      {light, {{"color-scheme", 1u}, {"contrast", 1u}}, ToneSet::kBlack},
      {light, {{"gtk-theme", "Adwaita-dark"}}, ToneSet::kDark},
      {light, {{"gtk-theme", "HighContrast"}}, ToneSet::kWhite},
      {light, {{"gtk-theme", "HighContrastInverse"}}, ToneSet::kBlack},
      {light, {{"high-contrast", true}}, ToneSet::kWhite},
      {light, {{"color-scheme", "nonsense"}, {"gtk-theme", 7}}, ToneSet::kLight},
  };
  for (const Case& one : cases) {
    EXPECT_EQ(TonesFor(one.palette, one.settings), one.set)
        << one.palette.color(QPalette::Window).name().toStdString() << " "
        << QStringList(one.settings.keys()).join(' ').toStdString();
  }
}

TEST(TonesTest, AColourOfTheProgramsOwnIsReadOnEveryPanel) {
  for (const QColor ground : {QColor(Qt::black), QColor(Qt::white), QColor(0, 0, 255),
                              QColor(128, 128, 128), QColor(255, 200, 0)}) {
    for (const QColor color : {QColor(Qt::red), QColor(Qt::black), QColor(0xAA, 0, 0)}) {
      EXPECT_GE(Contrast(Readable(color, ground), ground), kLegible) << ground.name().toStdString();
    }
  }
  EXPECT_EQ(Readable(Qt::black, Qt::white), QColor(Qt::black));
}

// One of each kind that a person goes to.
class EveryKind : public testing::SampleForm {
 public:
  explicit EveryKind(forms::Context& context) : SampleForm(context, "Every1") {
    city.SetText("Dayton");
    notes.SetText("Notes");
    state.SetText("Ohio");
    country.SetItems({"Canada", "Mexico"});
    country.Select(0);
    names.SetItems({"Ann", "Bob"});
    table.SetColumns({{.title = "Item", .editable = true}});
    table.SetRows(3);
    table.SetText(1, 0, "Rent");
    link.on_click = [] {};
    day.SetDate(text::MakeDate(2026, 11, 24));
  }

  forms::TextBox notes{panel, "Text9", {.spoken_name = "Notes"}};
  forms::TypedCombo state{panel, "Combo9", {.spoken_name = "State"}};
  forms::ListBox names{panel, "List9", "Names"};
  forms::Grid table{panel, "Grid9", "Table"};
  forms::Label link{panel, "Label9", "www.irs.gov", forms::LabelRole::kLink};
};

class Painted : public ::testing::TestWithParam<ToneSet> {
 protected:
  Painted() {
    ApplyLook(*qApp, GetParam());
    window_.setPalette(PaletteOn(ColorOf(Tone::kGround)));
    forms::Navigator& navigator = world_.navigator;
    navigator.Register(
        "Every1", [](forms::Context& context) { return std::make_unique<EveryKind>(context); });
    navigator.Show("Every1");
    auto& form = dynamic_cast<EveryKind&>(*navigator.top());
    widgets_ = {Widget(form.city),    Widget(form.active),        Widget(form.size.option(0)),
                Widget(form.country), Widget(form.day),           Widget(form.save),
                Widget(form.notes),   Widget(form.state),         Widget(form.names),
                Widget(form.link),    Widget(form.table, store_), Primary(Widget(form.leave))};
    int top = 0;
    for (QWidget* widget : widgets_) {
      widget->setParent(&window_);
      const QSize size = widget->sizeHint().boundedTo({300, 220});
      widget->setGeometry(4, top, size.width(), size.height());
      top += size.height() + 4;
    }
    other_.setParent(&window_);
    other_.setFocusPolicy(Qt::StrongFocus);
    window_.resize(320, top);
    window_.show();
  }
  ~Painted() override { ApplyLook(*qApp); }

  static QImage PictureOf(QWidget& widget) { return widget.grab().toImage(); }

  // Of what lies farthest from the colour that most of the widget has.
  static double ContrastIn(const QImage& image) {
    QMap<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) ++counts[image.pixel(x, y)];
    }
    QRgb ground = counts.firstKey();
    for (auto it = counts.cbegin(); it != counts.cend(); ++it) {
      if (it.value() > counts[ground]) ground = it.key();
    }
    double most = 1;
    for (const QRgb color : counts.keys()) most = std::max(most, Contrast(color, ground));
    return most;
  }

  testing::SampleWorld world_;
  PictureStore store_{[](std::string_view) { return QByteArray(); }};
  QWidget window_;
  QWidget other_;
  std::vector<QWidget*> widgets_;
};

TEST_P(Painted, LettersAreLegibleWhetherTheyCanBeUsedOrNot) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  for (QWidget* widget : widgets_) {
    EXPECT_GE(ContrastIn(PictureOf(*widget)), kLegible) << widget->objectName().toStdString();
    widget->setEnabled(false);
    EXPECT_GE(ContrastIn(PictureOf(*widget)), kSeen) << widget->objectName().toStdString();
  }
}

TEST_P(Painted, TheFocusIsSeen) {
  constexpr int kFewest = 20;  // pixels
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window_));
  for (QWidget* widget : widgets_) {
    other_.setFocus(Qt::TabFocusReason);
    const QImage before = PictureOf(*widget);
    widget->setFocus(Qt::TabFocusReason);
    const QImage after = PictureOf(*widget);
    int changed = 0;
    for (int y = 0; y < before.height(); ++y) {
      for (int x = 0; x < before.width(); ++x) {
        changed += Contrast(before.pixel(x, y), after.pixel(x, y)) >= kSeen ? 1 : 0;
      }
    }
    EXPECT_GE(changed, kFewest) << widget->objectName().toStdString();
  }
}

INSTANTIATE_TEST_SUITE_P(Sets, Painted, ::testing::ValuesIn(kToneSets));

}  // namespace
}  // namespace tarnwell::desktop
