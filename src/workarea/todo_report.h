#pragma once

#include <vector>

#include "forms/program_variables.h"
#include "print/page_engine.h"
#include "workarea/todo_list.h"

namespace tarnwell::workarea {

// The timeline report: its title and all filled rows, with lines around the cells where the print
// settings say so.
void PrintTimeline(print::PageEngine& engine, const forms::ProgramVariables& variables,
                   const std::vector<ToDoRow>& rows);

}  // namespace tarnwell::workarea
