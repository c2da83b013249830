// A display grid with people to show.

#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "contacts/addbkdisplay.h"
#include "contacts/contact_book.h"
#include "employees/employee_book.h"
#include "employees/fdisplay1.h"
#include "record_book/record_store.h"
#include "support/failing_file_system.h"
#include "support/program_rig.h"

namespace tarnwell::record_book {

using Entries = std::vector<std::pair<int, std::string>>;

// A display of people, in a program without a window.
class DisplayRig : public ::testing::Test {
 protected:
  void Add(const BookLayout& layout, int record, const Entries& entries) {
    BookRecord person{std::vector<std::string>(static_cast<std::size_t>(layout.entries)), {}};
    for (const auto& [entry, text] : entries) {
      person.entries[static_cast<std::size_t>(entry)] = text;
    }
    ASSERT_TRUE(WriteNew(rig.folder, layout, record, person));
  }
  void AddContact(int record, const Entries& entries) {
    Add(contacts::ContactBook(), record, entries);
  }
  void AddEmployee(int record, const Entries& entries) {
    Add(employees::EmployeeBook(), record, entries);
  }
  // Zed, Acme and two Lees.
  void AddSome() {
    AddContact(2, {{0, "Zed"}, {2, "9 Elm St"}, {7, "555-0109"}, {12, "www.zed.example"}});
    AddContact(3, {{0, "Acme & Co"}, {7, "555-0102"}, {10, "acme@example.com"}});
    AddContact(4, {{0, "Lee"},
                   {1, "Ann"},
                   {2, "1 Oak St"},
                   {4, "York"},
                   {5, "PA"},
                   {6, "17401"},
                   {7, "555-0101"}});
    AddContact(5, {{0, "lee"}, {1, "Bob"}, {3, "Flat 2"}, {8, "555-0103"}});
  }
  DisplayScreen& Open(const char* name = "ADDBKDISPLAY") {
    rig.Start();
    rig.navigator().Show(name);
    return form();
  }
  DisplayScreen& form() { return dynamic_cast<DisplayScreen&>(*rig.navigator().top()); }
  forms::Grid& grid() { return form().grid; }
  void Pick(const std::string& caption) {
    for (int i = 0; i < form().options.size(); ++i) {
      if (form().options.option(i).caption() == caption) return form().options.Pick(i);
    }
    FAIL() << "no option " << caption;
  }
  // The cells of the rows that aren't blank.
  std::vector<std::vector<std::string>> Rows() {
    std::vector<std::vector<std::string>> rows;
    for (int row = 1; row < grid().rows(); ++row) {
      std::vector<std::string> cells;
      for (int i = 0; i < grid().columns(); ++i) cells.push_back(grid().text(row, i));
      if (cells != std::vector<std::string>(cells.size())) rows.push_back(cells);
    }
    return rows;
  }
  std::vector<std::string> Names() {
    std::vector<std::string> names;
    for (const auto& row : Rows()) names.push_back(row.front());
    return names;
  }
  std::vector<std::string> Titles() {
    std::vector<std::string> titles;
    for (int i = 0; i < grid().columns(); ++i) titles.push_back(grid().column(i).title);
    return titles;
  }
  void Seek(const std::string& text) {
    form().search_text.Type(text);
    form().search_text.PressEnter();
  }
  // What a row of the Complete Report or a list says, page by page.
  std::vector<std::string> PrintedTexts() {
    form().print.print.Click();
    std::vector<std::string> texts;
    for (const forms::Page& page : rig.pages.printed.back().pages) {
      texts.emplace_back("--");
      for (const std::string& text : testing::TextsOf(page)) texts.push_back(text);
    }
    return texts;
  }

  testing::FailingFileSystem disk{storage::RealFileSystem()};
  testing::ProgramRig rig{disk};
};

}  // namespace tarnwell::record_book
