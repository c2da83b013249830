// A document's box and its widget in a window.

#pragma once

#include <gtest/gtest.h>

#include <QDebug>
#include <QTest>
#include <QTextBlock>
#include <QTextTable>
#include <memory>

#include "desktop/sample_form.h"
#include "desktop/widgets/bound_widgets.h"
#include "desktop/widgets/layout.h"
#include "desktop/widgets/rich_text_view.h"
#include "richtext/sketch.h"

namespace tarnwell::testing {

class RichTextRig : public ::testing::Test {
 protected:
  explicit RichTextRig(QSize size = {700, 500}) { page_->resize(size); }

  void SetUp() override {
    page_->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(page_.get()));
    view_->setFocus();
  }
  void Show(const char* sketch, richtext::Position cursor = {}) {
    box_.SetDocument(richtext::FromSketch(sketch));
    box_.Select({cursor, cursor});
  }
  void Key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(view_, static_cast<Qt::Key>(key), modifiers);
  }
  std::string text() const { return richtext::Sketch(box_.document()); }
  // The rest of a long document is shown a little later.
  bool IsShownWhole() {
    return QTest::qWaitFor(
        [this] { return view_->document()->blockCount() >= box_.paragraph_count(); });
  }
  // All that a view shows: each block's text, formats and cell.
  static QStringList Shown(const QTextDocument& document) {
    QStringList shown;
    const auto describe = [](const QTextFormat& format) {
      QStringList properties;
      const QMap<int, QVariant> all = format.properties();
      for (auto it = all.begin(); it != all.end(); ++it) {
        if (it.key() == QTextFormat::ObjectIndex) continue;
        QString value;
        QDebug(&value) << it.value();
        properties << QString::number(it.key()) + '=' + value;
      }
      return properties.join(' ');
    };
    for (QTextBlock block = document.begin(); block.isValid(); block = block.next()) {
      const QTextCursor cursor(block);
      QString line = describe(block.blockFormat()) + '|' + describe(block.charFormat());
      if (const QTextTable* table = cursor.currentTable()) {
        const QTextTableCell cell = table->cellAt(cursor);
        line += QStringLiteral("|cell %1 %2 %3 ")
                    .arg(cell.row())
                    .arg(cell.column())
                    .arg(cell.columnSpan());
        line += describe(cell.format()) + describe(table->format());
      }
      for (auto part = block.begin(); !part.atEnd(); ++part) {
        line += '|' + part.fragment().text() + ' ' + describe(part.fragment().charFormat());
      }
      shown << line;
    }
    return shown;
  }
  // What a view shows that has seen nothing but this document.
  QStringList ShownAnew() {
    const std::unique_ptr<QWidget> fresh(desktop::Widget(box_));
    auto& view = dynamic_cast<desktop::RichTextView&>(*fresh);
    view.SetZoom(view_->zoom());
    return Shown(*view.document());
  }

  SampleWorld world_;
  SampleForm& form_ = world_.Show();
  forms::RichTextBox box_{form_, "RichTextBox1", {.spoken_name = "Document"}};
  std::unique_ptr<QWidget> page_{
      desktop::Column({desktop::Widget(box_), desktop::Widget(form_.save)})};
  desktop::RichTextView* view_ =
      dynamic_cast<desktop::RichTextView*>(page_->findChild<QTextEdit*>("RichTextBox1"));
};

}  // namespace tarnwell::testing
