#pragma once

#include <QByteArray>
#include <functional>
#include <string_view>

namespace tarnwell::desktop {

// Where pictures come from: the content of a file by its name, empty when there is none.
class PictureStore {
 public:
  using Reader = std::function<QByteArray(std::string_view name)>;

  explicit PictureStore(Reader reader) : reader_(std::move(reader)) {}
  QByteArray Read(std::string_view name) const { return reader_(name); }

 private:
  Reader reader_;
};

}  // namespace tarnwell::desktop
