// The screen through which one record of a book at a time is entered, viewed, changed, deleted and
// printed. Contacts and employees differ in a table only.

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "forms/choice.h"
#include "forms/command.h"
#include "forms/form.h"
#include "forms/label.h"
#include "forms/list_box.h"
#include "forms/panel.h"
#include "forms/text_box.h"
#include "forms/text_field.h"
#include "parts/color_choice.h"
#include "parts/picture_panel.h"
#include "parts/save_question.h"
#include "print/print_panel.h"
#include "record_book/entry_style.h"
#include "record_book/name_index.h"

namespace tarnwell::record_book {

class EntryScreen : public forms::Form {
 public:
  EntryScreen(forms::Context& context, const EntryStyle& style);

  forms::Panel screen{*this, "SSPanel1"};
  forms::Panel list_panel{screen, "Panel3D1(5)"};
  forms::Label search_label{list_panel, "Label2(0)", "Name to view:"};
  forms::TextField search{list_panel, "Text2", {.spoken_name = "Name to view"}};
  forms::Command view{list_panel, "Command2", "&View"};
  forms::ListBox names{list_panel, "List1", "Names"};
  forms::Label count{list_panel, "Panel3D2"};
  // Label1(0), … in front of Text1(0), …; the last entry may be `comments`.
  std::vector<std::unique_ptr<forms::Panel>> groups;
  std::vector<std::unique_ptr<forms::Label>> labels;
  std::vector<std::unique_ptr<forms::TextField>> fields;
  std::unique_ptr<forms::TextBox> comments;
  forms::Panel picture_panel{screen, "Panel3D3"};
  forms::Picture picture{picture_panel, "Image1", {}};
  forms::Label picture_note{picture_panel, "Label3", {}, forms::LabelRole::kNote};
  forms::Command link;
  forms::Panel print_picture{picture_panel, "Frame1", "Print Picture"};
  forms::CheckBox large{print_picture, "SSCheck1(0)", "Picture (Large)"};
  forms::CheckBox small{print_picture, "SSCheck1(1)", "Picture (Small)"};
  forms::Command mode{screen, "Command4", "&View Screen"};
  forms::Command change{screen, "Command1(4)", "&Clear Current Data"};
  forms::Command save{screen, "Command1(5)", "&Save && New Screen"};
  forms::Command print_file;
  forms::Command remove{screen, "Command1(2)", "Delete &File"};
  forms::Command exit{screen, "Command1(0)", "E&xit", {.cancel = true}};
  parts::PicturePanel pictures;
  print::PrintPanel print;
  parts::ColorChoice colors;

  const EntryStyle& style() const { return style_; }

  void Load() override;
  bool QueryUnload(forms::UnloadCause cause) override;
  std::optional<forms::Draft> TakeDraft() override;
  bool PutDraft(forms::DraftTexts texts) override;

 protected:
  virtual void OpenSheet();
  // What a person does to the view, such as another record, has been done.
  virtual void StateChanged() {}
  bool is_entry() const { return state_ == State::kEntry; }
  bool has_record() const { return state_ == State::kShown || state_ == State::kModifying; }
  std::string TextOf(int entry) const;
  const std::string& picture_path() const { return picture_path_; }
  const std::vector<NameEntry>& entries() const { return entries_; }
  void Open(print::PrintJob job);

 private:
  enum class State {
    kEntry,      // a new record
    kNoRecord,   // the View Screen, before a name is chosen
    kShown,      // a record that is only looked at
    kModifying,  // a record that can be changed
  };

  void BuildEntries();
  void ConnectEntries();
  void ConnectCommands();
  void BuildMenus();
  void AddAddressEntries(forms::MenuItem& edit);
  void AddUtilities();

  int last_entry() const { return style_.book->entries - 1; }
  bool IsComments(int entry) const { return comments && entry == last_entry(); }
  void SetTextOf(int entry, std::string_view text);
  forms::Control& ControlOf(int entry);
  BookRecord Content() const;
  bool HasContent() const;

  // The whole screen anew, empty. False where the names can't be read; the person was told.
  bool ShowScreen(bool entry);
  bool ShowNames();
  void ShowCount();
  void Enter(State state);
  void EnableCommands();
  void MarkFocused(int entry, bool focused);
  void ClearEntries();
  void ShowPicture(const std::string& path);

  void Typed(int entry);
  void Clicked();
  bool PressedEnter(int entry);
  void TellUnsafeName();
  // Before what is typed is left. False when the screen has to stay as it is.
  bool Settle(const parts::SaveWords& words);
  // Likewise, with the colours.
  bool SettleAll();
  // Likewise before that entry of the list is read: says where it stands then, -1 when it isn't to
  // be read.
  int SettleFor(int place);
  void SwitchMode();
  void PickName();
  void SearchAsTyped();
  void View();
  void Read(int place);
  void ChangeOrClear();
  void ClearAll();

  parts::SaveResult Save();
  bool HasName();
  parts::SaveResult SaveNew();
  parts::SaveResult SaveChanged();
  bool ReplacesLast(int record);
  void Delete();
  void Forget(int place);

  void TakeDropped(const std::string& path);
  void TakePicture(const std::string& path);
  void Copy();
  // The entry in hand where it is one of these, else the first that isn't empty. The status says
  // that there is none.
  std::string FirstOf(std::span<const int> entries, std::string_view what);
  void CopyFirst(std::span<const int> entries, std::string_view what);
  void WriteMail();
  void OpenWorksheet();

  EntryStyle style_;
  parts::SaveQuestion question_;
  State state_ = State::kEntry;
  std::vector<NameEntry> entries_;  // as `names` shows them
  std::string searched_;            // the text that the list's selection stands for
  int record_ = 0;                  // of what is shown; 0 for none
  int place_ = -1;                  // in the list
  std::string picture_path_;
  bool save_stopped_ = false;                 // by the last attempt, and the person was told
  std::vector<forms::MenuItem*> of_content_;  // where there is something to copy
  std::vector<forms::MenuItem*> of_entry_;    // of the Entry Screen's menu
  std::vector<forms::MenuItem*> of_view_;
};

}  // namespace tarnwell::record_book
