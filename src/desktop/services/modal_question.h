#pragma once

#include <QWidget>

#include "desktop/services/nested_loop.h"

namespace tarnwell::desktop {

// Lives while a dialogue of the desktop waits for its answer.
class ModalQuestion {
 public:
  ModalQuestion();
  ~ModalQuestion();
  ModalQuestion(const ModalQuestion&) = delete;
  ModalQuestion& operator=(const ModalQuestion&) = delete;

  // The window that has to wait for the answer.
  QWidget* asker() const { return asker_; }

 private:
  NestedLoop nested_;
  QWidget* asker_;
};

}  // namespace tarnwell::desktop
