// Who lies above whom: the stack of loaded forms.

#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "forms/form.h"

namespace tarnwell::forms {

// Watches the stack, to show it.
class NavigatorObserver {
 public:
  virtual ~NavigatorObserver() = default;
  virtual void FormLoaded(Form& form, bool modal) = 0;
  virtual void FormRaised(Form& form) = 0;    // it is on top now, about to be activated
  virtual void FormUnloaded(Form& form) = 0;  // its views must go; the form follows a little later
  virtual void ProgramEnded() = 0;
};

class Navigator {
 public:
  using Factory = std::function<std::unique_ptr<Form>(Context&)>;
  using Preparation = std::function<void(Form&)>;

  void Register(std::string_view name, Factory factory);
  std::vector<std::string> Names() const;

  void SetContext(Context& context) { context_ = &context; }
  void SetObserver(NavigatorObserver* observer) { observer_ = observer; }

  // Loads the form if it isn't loaded, and puts it on top.
  void Show(std::string_view name);
  // Likewise, and comes back when it has been unloaded. `prepare` gets the new form before it
  // loads, to hand it what it works on.
  void ShowModal(std::string_view name, const Preparation& prepare = {});
  // Without a question: its Unload routine runs and the form below gets on top.
  void Unload(Form& form);
  // Asks the form first, which is told the cause. False if it stays; a busy form does.
  bool Close(Form& form, UnloadCause cause);
  // At once: no further form is asked, nothing more is saved.
  void EndProgram();
  bool ended() const { return ended_; }

  Form* top() const { return stack_.empty() ? nullptr : stack_.back().get(); }
  Form* Find(std::string_view name) const;
  // Frees the forms that were unloaded. Not from inside a handler of a form.
  void FreeUnloaded() { unloaded_.clear(); }

 private:
  Form* Push(std::string_view name, bool modal, const Preparation& prepare = {});
  void Raise();

  Context* context_ = nullptr;
  NavigatorObserver* observer_ = nullptr;
  std::map<std::string, Factory, std::less<>> factories_;
  std::vector<std::unique_ptr<Form>> stack_;  // the top one last
  std::vector<std::unique_ptr<Form>> unloaded_;
  bool ended_ = false;
};

}  // namespace tarnwell::forms
