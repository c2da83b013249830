// The program at one of the reference screens, with supplied files that a test writes.

#pragma once

#include <gtest/gtest.h>

#include <filesystem>
#include <string>
#include <string_view>

#include "forms/control.h"
#include "program/program.h"
#include "reference/link_tables.h"
#include "storage/file_system.h"
#include "support/fake_services.h"
#include "support/temporary_folder.h"

namespace tarnwell::reference {

struct ReferenceRig : testing::FakeWorld {
  ReferenceRig() {
    std::filesystem::create_directory(supplied.path() + "/links");
    supplied.Write("links/states.txt", StateTable());
    supplied.Write("links/federal.txt", "0\thttps://sba.example/\n6\thttps://dol.example/\n");
    supplied.Write("links/internet.txt", InternetTable());
  }

  // Four places for each state; the third has a label.
  static std::string StateTable() {
    std::string table;
    for (const std::string_view state : kStates) {
      for (const char* place : {"0\t", "1\t", "2\tGrow & Prosper", "3\t"}) {
        table += std::string(state) + "\t" + place + "\thttps://place" + place[0] + ".example/" +
                 std::string(state.substr(0, 2)) + "\n";
      }
    }
    return table;
  }
  static std::string InternetTable() {
    std::string table;
    for (char i = '0'; i < '7'; ++i) {
      table += std::string(1, i) + "\tSite " + i + "\thttps://site" + i + ".example/\n";
    }
    return table;
  }

  void Show(const char* form) {
    program.variables().SplashShown = 99;
    program.Start();
    program.navigator().Show(form);
  }
  template <typename FormClass>
  FormClass& Get(const char* name) {
    return dynamic_cast<FormClass&>(*program.navigator().Find(name));
  }

  testing::TemporaryFolder user;
  testing::TemporaryFolder supplied;
  storage::ProgramFolder folder{storage::RealFileSystem(), user.path(), supplied.path()};
  program::Program program{Lend(folder)};
};

}  // namespace tarnwell::reference
