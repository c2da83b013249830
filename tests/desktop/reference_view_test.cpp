#include <gtest/gtest.h>

#include <QTest>

#include "desktop/desktop.h"
#include "forms/form_names.h"
#include "forms/navigator.h"
#include "support/temporary_folder.h"

namespace tarnwell::desktop {
namespace {

TEST(ToolsView, ATextHasMostOfItsPanelAndTheButtonsStandBelowIt) {
  struct Case {
    std::int16_t smaller_screen;
    double least_share;
    double greatest_share;
  };
  for (const auto& [smaller_screen, least, greatest] : {Case{0, 0.80, 0.86}, Case{9, 0.9, 1.0}}) {
    const testing::TemporaryFolder disk;
    Desktop desktop(
        {QString::fromStdString(disk.path()), QStringLiteral(TARNWELL_SOURCE_DIR "/data")});
    desktop.program().variables().SmallerScreen = smaller_screen;
    desktop.navigator().Show(forms::form_names::kToolsandInfo1);
    QWidget& window = desktop.window();
    window.resize(1600, 1000);
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&window));
    const auto* panel = window.findChild<QWidget*>(QStringLiteral("SSPanel3"));
    const auto* text = window.findChild<QWidget*>(QStringLiteral("RichTextBox1"));
    const auto* button = window.findChild<QWidget*>(QStringLiteral("SSCommand2(0)"));
    ASSERT_TRUE(panel && text && button);
    const double share = static_cast<double>(text->height()) / panel->height();
    EXPECT_GE(share, least) << smaller_screen;
    EXPECT_LE(share, greatest) << smaller_screen;
    EXPECT_GE(button->mapTo(panel, QPoint()).y(), text->geometry().bottom());
    EXPECT_FALSE(button->visibleRegion().isEmpty());
  }
}

}  // namespace
}  // namespace tarnwell::desktop
