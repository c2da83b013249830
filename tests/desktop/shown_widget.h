// A bound widget alone in a window, used by keys and by the mouse.

#pragma once

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <QTest>
#include <memory>

#include "desktop/sample_form.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/pictures.h"

namespace tarnwell::desktop {

class ShownWidget : public ::testing::Test {
 protected:
  // Before the controls of the test, as in the window.
  void TearDown() override { widget_.reset(); }
  template <typename WidgetClass>
  WidgetClass* Show(QWidget* widget) {
    widget_.reset(widget);
    widget->resize(400, 300);
    widget->show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(widget));
    return qobject_cast<WidgetClass*>(widget);
  }
  QColor PixelAt(int x, int y) { return widget_->grab().toImage().pixelColor(x, y); }

  // A picture of one colour stands for every file.
  static QByteArray RedPicture() {
    QImage image(4, 4, QImage::Format_RGB32);
    image.fill(Qt::red);
    QByteArray bytes;
    QBuffer buffer(&bytes);
    image.save(&buffer, "PNG");
    return bytes;
  }

  testing::SampleWorld world_;
  testing::SampleForm& form_ = world_.Show();
  PictureStore pictures_{[](std::string_view) { return RedPicture(); }};
  std::unique_ptr<QWidget> widget_;
};

}  // namespace tarnwell::desktop
