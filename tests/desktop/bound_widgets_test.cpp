#include "desktop/widgets/bound_widgets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <QWheelEvent>

#include "desktop/sample_form.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/look.h"
#include "desktop/widgets/month_calendar.h"

namespace tarnwell::desktop {
namespace {

class BoundWidgets : public ::testing::Test {
 protected:
  template <typename WidgetClass = QWidget>
  WidgetClass* Find(const char* name) {
    return view_->findChild<WidgetClass*>(QLatin1String(name));
  }

  testing::SampleWorld world_;
  testing::SampleForm& form_ = world_.Show();
  std::unique_ptr<QWidget> view_{Widget(
      form_.panel,
      Column({Widget(form_.heading), Widget(form_.city), Widget(form_.street), Widget(form_.active),
              Widget(form_.size.option(0)), Widget(form_.size.option(1)), Widget(form_.country),
              Widget(form_.day), Widget(form_.save), Widget(form_.leave)}))};

  void SetUp() override {
    view_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view_.get()));
  }
};

TEST_F(BoundWidgets, TypingShowsAtOnceWhatCodePage1252WillKeep) {
  auto* city = Find<QLineEdit>("Text1");
  const struct {
    const char* what;
    QString typed;
    QString shown;
    std::string kept;
  } cases[] = {
      {"a letter of the code page", QStringLiteral("Zürich"), QStringLiteral("Zürich"),
       "Z\xFCrich"},
      {"the euro sign", QStringLiteral("5 €"), QStringLiteral("5 €"), "5 \x80"},
      {"a letter with a nearest form", QStringLiteral("Łódź"), QStringLiteral("Lódz"),
       "L\xF3"
       "dz"},
      {"a letter without one", QStringLiteral("日本"), QStringLiteral("??"), "??"},
      {"a character beyond 16 bits",
       QString::fromUtf8("a\xF0\x9F\x98\x80"
                         "b"),
       QStringLiteral("a?b"), "a?b"},
      {"more than the field takes", QStringLiteral("Winterthur"), QStringLiteral("Winterth"),
       "Winterth"},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    form_.city.SetText("");
    city->setFocus();
    city->insert(one.typed);
    emit city->textEdited(city->text());
    EXPECT_EQ(city->text(), one.shown);
    EXPECT_EQ(form_.city.text(), one.kept);
  }
}

TEST(LinkLabel, LooksLikeALinkUnderThePointerAndWithTheFocus) {
  testing::SampleWorld world;
  testing::SampleForm& form = world.Show();
  forms::Label link(form.panel, "Label4(0)", "A site", forms::LabelRole::kLink);
  int clicks = 0;
  link.on_click = [&] { ++clicks; };
  const std::unique_ptr<QWidget> label(Widget(link));
  const auto looks_like_a_link = [&] {
    return label->font().underline() &&
           label->palette().color(QPalette::WindowText) == label->palette().color(QPalette::Link);
  };
  EXPECT_FALSE(looks_like_a_link());
  QEnterEvent enter(QPointF(1, 1), QPointF(1, 1), QPointF(1, 1));
  QApplication::sendEvent(label.get(), &enter);
  EXPECT_TRUE(looks_like_a_link());
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(label.get(), &leave);
  EXPECT_FALSE(label->font().underline());
  EXPECT_NE(label->palette().color(QPalette::WindowText), label->palette().color(QPalette::Link));
  QFocusEvent focus(QEvent::FocusIn, Qt::TabFocusReason);
  QApplication::sendEvent(label.get(), &focus);
  EXPECT_TRUE(looks_like_a_link());
  QTest::keyClick(label.get(), Qt::Key_Return);
  QTest::mouseClick(label.get(), Qt::LeftButton);
  EXPECT_EQ(clicks, 2);
}

TEST_F(BoundWidgets, TheCursorStaysBehindTheCharacterThatWasReplaced) {
  auto* city = Find<QLineEdit>("Text1");
  form_.city.SetText("ab");
  city->setFocus();
  city->setCursorPosition(1);
  city->insert(QStringLiteral("日"));
  emit city->textEdited(city->text());
  EXPECT_EQ(city->text(), QStringLiteral("a?b"));
  EXPECT_EQ(city->cursorPosition(), 2);
}

TEST_F(BoundWidgets, AFullFieldTakesNothingMoreInItsMiddle) {
  auto* city = Find<QLineEdit>("Text1");
  form_.city.SetText("12345678");
  city->setFocus();
  city->setCursorPosition(3);
  QTest::keyClicks(city, QStringLiteral("x"));
  EXPECT_EQ(form_.city.text(), "12345678");
}

TEST_F(BoundWidgets, FocusGoesBothWays) {
  int street_focused = 0;
  form_.street.on_focus = [&] { ++street_focused; };
  form_.city.on_enter = [&] { form_.street.Focus(); };
  Find("Text1")->setFocus();
  EXPECT_TRUE(form_.city.focused());
  QTest::keyClick(Find("Text1"), Qt::Key_Return);
  EXPECT_TRUE(Find("Text2")->hasFocus());
  EXPECT_EQ(street_focused, 1);
  // A change of the focused control's text leaves the focus where a person put it since.
  view_->setFocus();
  form_.street.SetText("Main Street");
  EXPECT_FALSE(Find("Text2")->hasFocus());
}

TEST_F(BoundWidgets, ChoicesFollowThePersonAndTheProgram) {
  form_.country.SetItems({"France", "Malm\xF6"});
  form_.country.Select(1);
  EXPECT_EQ(Find<QComboBox>("Combo1")->currentText(), QStringLiteral("Malmö"));
  Find("Combo1")->setFocus(Qt::TabFocusReason);
  QTest::keyClick(Find("Combo1"), Qt::Key_Up);
  EXPECT_EQ(form_.country.selected(), 0);

  Find<QRadioButton>("Option1(1)")->click();
  EXPECT_EQ(form_.size.chosen(), 1);
  form_.size.Choose(0);
  EXPECT_TRUE(Find<QRadioButton>("Option1(0)")->isChecked());
  EXPECT_FALSE(Find<QRadioButton>("Option1(1)")->isChecked());

  Find<QCheckBox>("Check1")->click();
  EXPECT_TRUE(form_.active.checked());
}

TEST_F(BoundWidgets, AnOpenListShowsAllOfAFewEntriesAndScrollsThroughMany) {
  auto* country = Find<QComboBox>("Combo1");
  for (const int count : {1, 6, 12, 33}) {
    form_.country.SetItems(std::vector<std::string>(static_cast<std::size_t>(count), "Gygjy"));
    country->showPopup();
    const QAbstractItemView* list = country->view();
    ASSERT_TRUE(QTest::qWaitFor([&] { return list->isVisible(); }));
    const int shown = std::min(count, 12);
    const QRect last = list->visualRect(list->model()->index(shown - 1, 0));
    EXPECT_TRUE(list->viewport()->rect().contains(last)) << count;
    EXPECT_EQ(list->verticalScrollBar()->isVisible(), count > shown) << count;
    country->hidePopup();
  }
}

TEST_F(BoundWidgets, AListChangesOnlyUnderAPersonWhoWentIntoIt) {
  form_.country.SetItems({"France", "Spain", "Italy"});
  auto* country = Find<QComboBox>("Combo1");
  const auto turn_wheel = [&] {
    const QPoint middle = country->rect().center();
    QWheelEvent wheel(middle, country->mapToGlobal(middle), {}, {0, -120}, Qt::NoButton, {},
                      Qt::NoScrollPhase, false);
    QSpontaneKeyEvent::setSpontaneous(&wheel);
    QApplication::sendEvent(country, &wheel);
  };
  const struct {
    const char* what;
    std::function<void()> go;
    bool went_in;
  } cases[] = {
      {"nobody", [&] { form_.save.Focus(); }, false},
      {"the program gave it the focus", [&] { form_.country.Focus(); }, false},
      {"the control before it was disabled",
       [&] {
         form_.size.option(1).Focus();
         form_.size.option(1).SetEnabled(false);
       },
       false},
      {"Tab", [&] { country->setFocus(Qt::TabFocusReason); }, true},
      {"a click",
       [&] {
         QTest::mouseClick(country, Qt::LeftButton);
         country->hidePopup();
       },
       true},
  };
  for (const auto& one : cases) {
    SCOPED_TRACE(one.what);
    form_.size.option(1).SetEnabled(true);
    form_.save.Focus();
    form_.country.Select(1);
    one.go();
    turn_wheel();
    EXPECT_EQ(form_.country.selected(), 1);
    QTest::keyClick(country, Qt::Key_Down);
    EXPECT_EQ(form_.country.selected(), one.went_in ? 2 : 1);
  }
}

TEST_F(BoundWidgets, EnterInAFieldIsTheFieldsOrElseTheDefaultButtons) {
  auto* city = Find<QLineEdit>("Text1");
  for (const bool wanted : {true, false}) {
    int entered = 0;
    form_.city.on_enter = wanted ? std::function<void()>([&] { ++entered; }) : nullptr;
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(city, &enter);
    EXPECT_EQ(enter.isAccepted(), wanted);
    EXPECT_EQ(entered, wanted ? 1 : 0);
  }
}

TEST_F(BoundWidgets, NamesToolTipsAndStatesAreTheControls) {
  EXPECT_EQ(Find("Command2")->accessibleName(), QStringLiteral("Leave"));
  EXPECT_EQ(Find("Command2")->toolTip(), QStringLiteral("  Leave  "));
  EXPECT_EQ(Find("Text1")->accessibleName(), QStringLiteral("City"));
  form_.save.SetEnabled(false);
  form_.heading.SetVisible(false);
  EXPECT_FALSE(Find("Command1")->isEnabled());
  EXPECT_TRUE(Find("Label1")->isHidden());
}

TEST_F(BoundWidgets, AltAndTheMarkedLetterPressACommandAndSoDoesEnter) {
  int saved = 0;
  form_.save.on_click = [&] { ++saved; };
  QTest::keyClick(view_.get(), Qt::Key_V, Qt::AltModifier);
  // The button goes down and up first, as under the mouse.
  EXPECT_TRUE(QTest::qWaitFor([&] { return saved == 1; }, 2000));
  Find("Command1")->setFocus();
  QTest::keyClick(Find("Command1"), Qt::Key_Return);
  EXPECT_EQ(saved, 2);
}

TEST_F(BoundWidgets, TheCalendarIsUsedByKeysAndByTheMouse) {
  auto* calendar = dynamic_cast<MonthCalendar*>(Find("MonthView1"));
  ASSERT_NE(calendar, nullptr);
  form_.day.SetToday(text::MakeDate(2026, 3, 9));
  const struct {
    text::Date from;
    Qt::Key key;
    Qt::KeyboardModifiers modifiers;
    text::Date to;
  } cases[] = {
      {text::MakeDate(2024, 2, 28), Qt::Key_Right, Qt::NoModifier, text::MakeDate(2024, 2, 29)},
      {text::MakeDate(2026, 1, 1), Qt::Key_Left, Qt::NoModifier, text::MakeDate(2025, 12, 31)},
      {text::MakeDate(2026, 3, 9), Qt::Key_Down, Qt::NoModifier, text::MakeDate(2026, 3, 16)},
      {text::MakeDate(2026, 3, 5), Qt::Key_Up, Qt::NoModifier, text::MakeDate(2026, 2, 26)},
      {text::MakeDate(2026, 3, 31), Qt::Key_PageUp, Qt::NoModifier, text::MakeDate(2026, 2, 28)},
      {text::MakeDate(2024, 2, 29), Qt::Key_PageDown, Qt::ControlModifier,
       text::MakeDate(2025, 2, 28)},
      {text::MakeDate(2026, 4, 17), Qt::Key_Home, Qt::NoModifier, text::MakeDate(2026, 4, 1)},
      {text::MakeDate(2026, 4, 17), Qt::Key_End, Qt::NoModifier, text::MakeDate(2026, 4, 30)},
      {text::MakeDate(2020, 4, 17), Qt::Key_Home, Qt::ControlModifier, text::MakeDate(2026, 3, 9)},
      {text::MakeDate(9999, 12, 31), Qt::Key_Right, Qt::NoModifier, text::MakeDate(9999, 12, 31)},
  };
  for (const auto& one : cases) {
    form_.day.SetDate(one.from);
    QTest::keyClick(calendar, one.key, one.modifiers);
    EXPECT_EQ(form_.day.date(), one.to) << one.key;
  }
  form_.day.SetDate(text::MakeDate(2026, 8, 1));
  const text::Date clicked = text::MakeDate(2026, 8, 31);
  QTest::mouseClick(calendar, Qt::LeftButton, {}, calendar->PlaceOf(clicked).center());
  EXPECT_EQ(form_.day.date(), clicked);
  EXPECT_TRUE(calendar->accessibleDescription().startsWith("Monday, August 31, 2026. "));
}

TEST_F(BoundWidgets, TheCalendarsTitleOffersAYear) {
  auto* calendar = dynamic_cast<MonthCalendar*>(Find("MonthView1"));
  ASSERT_NE(calendar, nullptr);
  const auto choose = [&](const QString& year) {
    for (QAction* entry : calendar->findChildren<QMenu*>().last()->actions()) {
      if (entry->text() == year) return entry->trigger();
    }
    ADD_FAILURE() << "not offered";
  };
  const text::Date leap_day = text::MakeDate(2024, 2, 29);
  form_.day.SetDate(leap_day);
  QTest::mouseClick(calendar, Qt::LeftButton, {}, {calendar->width() / 2, 12});
  choose(QStringLiteral("2030"));
  EXPECT_EQ(form_.day.date(), leap_day);  // the page is turned, no day picked
  EXPECT_FALSE(calendar->PlaceOf(text::MakeDate(2030, 2, 28)).isEmpty());
  QTest::keyClick(calendar, Qt::Key_F4);
  choose(QStringLiteral("2033"));
  EXPECT_EQ(form_.day.date(), text::MakeDate(2033, 2, 28));
}

TEST_F(BoundWidgets, TimersTickWhileTheyAreEnabled) {
  int ticks = 0;
  form_.timer.on_tick = [&] {
    if (++ticks == 3) form_.timer.SetEnabled(false);
  };
  RunTimers(form_, view_.get());
  EXPECT_TRUE(QTest::qWaitFor([&] { return ticks == 3; }, 2000));
  EXPECT_FALSE(view_->findChild<QTimer*>(QStringLiteral("Timer1"))->isActive());
}

TEST_F(BoundWidgets, EitherOfFormAndWidgetMayGoFirst) {
  auto* line = Find<QLineEdit>("Text1");
  auto* button = Find<QPushButton>("Command1");
  RunTimers(form_, view_.get());
  world_.navigator.Unload(form_);
  world_.navigator.FreeUnloaded();
  emit line->textEdited(QStringLiteral("after the end"));
  button->click();
  line->setFocus();
  auto* timer = view_->findChild<QTimer*>(QStringLiteral("Timer1"));
  QTimerEvent tick(timer->timerId());
  QCoreApplication::sendEvent(timer, &tick);

  testing::SampleForm& second = world_.Show();
  std::unique_ptr<QWidget> widget(Widget(second.city));
  widget.reset();
  second.city.SetText("still here");
  EXPECT_EQ(second.city.text(), "still here");
}

TEST(Look, TextStaysReadableOnAnyBackground) {
  ASSERT_NEAR(Contrast(Qt::black, Qt::white), 21, 0.01);
  double least = 21;
  for (int red = 0; red <= 255; red += 15) {
    for (int green = 0; green <= 255; green += 15) {
      for (int blue = 0; blue <= 255; blue += 15) {
        const QPalette palette = PaletteOn(QColor(red, green, blue));
        least = std::min(
            least, Contrast(palette.color(QPalette::Window), palette.color(QPalette::WindowText)));
      }
    }
  }
  EXPECT_GE(least, 4.5);
}

TEST(Look, ColoursAreInBlueGreenRedOrder) {
  EXPECT_EQ(ToQColor(forms::kPureBlue), QColor(0, 0, 255));
  EXPECT_EQ(FromQColor(QColor(1, 2, 3)), 0x030201);
}

}  // namespace
}  // namespace tarnwell::desktop
