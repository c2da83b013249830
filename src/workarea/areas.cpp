#include "workarea/areas.h"

#include <algorithm>
#include <iterator>

#include "forms/form_names.h"
#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

constexpr AreaButton kAreas[] = {
    {kToDoList, "Company To Do List", "Company To Do List", parts::kCompanyData},
    {kAgreements, "Company Agreements/Docs", " Company Agreements and Documents ",
     parts::kCompanyData},
    {kPolicies, "Company Policies", "  Comapany Policies  ", parts::kCompanyData},
    {kBudget, "Company Budget Form", "  Daily Planner  ", parts::kCompanyData,
     forms::form_names::kBudget1a},
    {kWorksheets, "Company - Additional Docs.",
     "  Company - Additional Documents, Forms and Policies  ", parts::kCompanyData},
    {kRecoveryPlan, "Company Disaster Recovery Plan", "  Disaster Recovery Plan  ",
     parts::kCompanyData},
    {kJobDescriptions, "Company Job Descriptions", "Company Job Descriptions", parts::kCompanyData},
    {kEmployeeDocuments, "Employee Documents", "Employee Documents", parts::kEmployeeData},
    {kDisciplinaryActions, "Employee Displinary Actions", "Employee Displinary Actions",
     parts::kEmployeeData},
    {kEvaluations, "Employee Evaluations", "Employee Evaluations", parts::kEmployeeData},
    {kEmployeeEntry, "Employee Data Entry", "  Employee Evaluations  ", parts::kEmployeeData,
     forms::form_names::kEmployeeEntry},
    {kEmployeeDisplay, "Employee Data Display", "  Employee Evaluations  ", parts::kEmployeeData,
     forms::form_names::kEmployeeDisplay},
    {kSickLeave, "Employee Sick Leave Tracker", "  Employee Evaluations  ", parts::kEmployeeData,
     forms::form_names::kSickLeave1},
    {kVacation, "Employee Vacation Tracker", "  Employee Evaluations  ", parts::kEmployeeData,
     forms::form_names::kVacation1},
};

constexpr DocumentButton kAgreementButtons[] = {
    {0, "Commission Agreement", "  Commission Agreement  "},
    {1, "Computer Repair Agree.", "  Computer Repair Agreement  "},
    {2, "Consulting Agreement", "  Consulting Agreement  "},
    {4, "Copyright Licensing Agree...", "  Copyright Licensing Agreement  "},
    {5, "Employment Agreement", "  Employment Agreement  "},
    {6, "Employment Application", "  Employment Application  "},
    {7, "Employemnt Contract-", "  Employemnt Contract - Sales Agreement  "},
    {8, "Freelance Contract", "  Freelance Contract  "},
    {9, "Gen.Release of Liability", "  General Release of Liability  "},
    {10, "Ind. Contract Agree...", "  Independant Contract Agreement  "},
    {11, "IT Consulting Agree...", "  IT Consulting Agreement  "},
    {12, "Job Description", "  Job Description  "},
    {13, "Mutual Non-Disclosure Agree.", "  Mutual Non-Disclosure Agreement  "},
    {15, "Temp. Employment Contract", "  Temporary Employment Contract  "},
    {16, "Unilateral N-D Agreement", "  Unilateral Non-Disclosure Agreement  "},
    {17, "Work for Hire Agreement", "  Work for Hire Agreement  "},
    {18, "Fax Cover Sheet", "  Fax Cover Sheet  "},
    {19, "Sick Leave Request Form", "  Sick Leave Request Form  "},
    {20, "Vacation Request Form", "  Vacation Request Form  "},
};

constexpr DocumentButton kEmployeeButtons[] = {
    {0, "Disciplinary Action Form", "  Disciplinary Action Form  "},
    {1, "Drug Testing Consent Form", "  Drug Testing Consent Form  "},
    {2, "Employee Handbook", "  Employee Handbook  "},
    {3, "Evaluation Form", "  Evaluation Form  "},
    {4, "Loan Application Form", "  Loan Application Form  "},
    {5, "Non-Compete Form", "  Non-Compete Form  "},
    {6, "Return to Work Form", "  Return to Work Form  "},
    {7, "Termination and Release Form", "  Termination and Release Form  "},
    {8, " Termination of Employment Letter", "  Termination of Employment Letter  "},
    {9, "Warning Notice Form", "  Warning Notice Form  "},
};

constexpr DocumentButton kPolicyButtons[] = {
    {0, "Acceptable Use Policy", "  Acceptable Use Policy  "},
    {1, "Anti-Harassment Policy", "  Anti-Harassment Policy  "},
    {2, "Company Policy Manual", "  Company Policy Manual  "},
    {3, "Cell Phone Use Policy", "  Cell Phone Use Policy  "},
    {4, "Confidentiality Policy", "  Confidentiality Policy  "},
    {5, " Email Use Policy", "  Email Use Policy  "},
    {6, "Jury Duty Policy", "  Jury Duty Policy  "},
    {7, "Smoking Policy", "  Smoking Policy  "},
    {8, "Vacation Policy", "  Vacation Policy  "},
};

constexpr DocumentGroup kGroups[] = {
    {kAgreements, "SSCommand14", 0, " Document: ", kAgreementButtons},
    {kEmployeeDocuments, "SSCommand17", 23, " Document: ", kEmployeeButtons},
    {kPolicies, "SSCommand16", 33, " Policy: ", kPolicyButtons},
};

}  // namespace

std::span<const AreaButton> AreaButtons() { return kAreas; }

std::string_view FormOf(Area area) {
  const auto* button = std::ranges::find(kAreas, area, &AreaButton::area);
  return button == std::end(kAreas) ? std::string_view() : button->form;
}

std::span<const DocumentGroup> DocumentGroups() { return kGroups; }

std::string TitleOf(int number) {
  for (const DocumentGroup& group : kGroups) {
    for (const DocumentButton& document : group.documents) {
      if (group.base + document.index == number) return text::Trim(document.tool_tip);
    }
  }
  return "Document " + std::to_string(number);
}

}  // namespace tarnwell::workarea
