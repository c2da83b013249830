// A document's box and its view, on an empty form.

#pragma once

#include <QApplication>
#include <QKeyEvent>
#include <chrono>
#include <string>

#include "desktop/widgets/rich_text_view.h"
#include "forms/form.h"
#include "idle_world.h"
#include "richtext/rich_text_reader.h"

namespace tarnwell::bench {

class Editor {
 public:
  explicit Editor(storage::ProgramFolder& folder) : world_(folder), form_(world_.ShowBlank()) {
    view_.resize(800, 700);
    view_.show();
  }

  void Open(const std::string& bytes) {
    box_.SetDocument(richtext::ReadRichText(bytes));
    view_.viewport()->repaint();
  }
  const richtext::RichDocument& document() const { return box_.document(); }
  // The whole document is shown once the cursor has been anywhere in it.
  void GoTo(int paragraph) {
    box_.Select({{paragraph, 20}, {paragraph, 20}});
    QApplication::processEvents();
  }
  // Each gives milliseconds until the effect is on the screen.
  double Press(int key, const QString& text = {}, Qt::KeyboardModifiers held = Qt::NoModifier) {
    QKeyEvent event(QEvent::KeyPress, key, held, text);
    return Time([&] {
      QApplication::sendEvent(&view_, &event);
      QApplication::processEvents();
    });
  }
  // Of what goes on by itself, as much as a key may have to wait for.
  double Wait() {
    return Time([] { QApplication::processEvents(QEventLoop::AllEvents, 0); });
  }
  // Of a table changed as a whole: one of its columns gets wider and narrower.
  double ChangeTable(int paragraph, int from, int to) {
    return Time([&] {
      box_.MoveColumnEdge(paragraph, from, to);
      QApplication::processEvents();
    });
  }
  // Of what the bar above a document asks about `place`.
  double TimeOfLook(const richtext::Range& place) {
    box_.Select(place);
    return Time([&] { looks_in_tables_ += box_.SelectionLook().in_table; });
  }
  template <typename Work>
  static double Time(Work work) {
    const auto start = std::chrono::steady_clock::now();
    work();
    const std::chrono::duration<double, std::milli> taken =
        std::chrono::steady_clock::now() - start;
    return taken.count();
  }

 private:
  IdleWorld<> world_;
  forms::Form& form_;
  forms::RichTextBox box_{form_, "RichTextBox1", {}};
  desktop::RichTextView view_{box_};
  int looks_in_tables_ = 0;  // so that no look is left out
  forms::Subscription shown_ = box_.OnChanged([this] { view_.Show(); });
};

}  // namespace tarnwell::bench
