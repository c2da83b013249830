#include "workarea/rule_table.h"

#include <algorithm>

#include "text/letters.h"

namespace tarnwell::workarea {
namespace {

constexpr RuleRow kRows[] = {
    {"Access Controls", "164.312(a)(1)", "Unique User Identification (R)", 34},
    {"Access Controls", "164.312(a)(1)", "Emergency Access Procedure (R)", 35},
    {"Access Controls", "164.312(a)(1)", "Automatic Logoff (A)", 36},
    {"Access Controls", "164.312(a)(1)", "Encryption and Decryption (A)", 37},
    {"Audit Controls", "164.312(b)", "Audit Controls (R)", 38},
    {"Ingerity", "164.312(c)(1)", "Mechanism to Authenticate Electronic PHI (A)", 39},
    {"Person or Entity Authentication", "164.312(d)", "Person or Entity Authentication (R)", 40},
    {"Transmission Security", "164.312(e)(1)", "Integrity Controls (A)", 41},
    {"Transmission Security", "164.312(e)(1)", "Encryption (A)", 42},
};

constexpr std::string_view kSafeguards[] = {
    "Risk Analysis",
    "Risk Management",
    "Sanction Policy",
    "Information System Activity",
    "Assigned security responsibility",
    "Authorization and/or Supervision",
    "Workforce clearance procedure",
    "Termination Procedures",
    "Isolating health care clearinghouse functions",
    "Access authorization",
    "Access Establishment",
    "Security Reminders",
    "Protection from Malicious Software",
    "Log-in Monitoring",
    "Password Management",
    "response and reporting",
    "Data Backup Plan",
    "Disaster Recovery Plan",
    "Emergency Mode Operation Plan",
    "Testing and revision procedures",
    "Applications and Data Criticality Analysis",
    "Evaluation",
    "Written contract or other arrangement",
    "Contingency operations",
    "Facility security plan",
    "Access control and validation procedures",
    "Maintenance records",
    "Workstation use",
    "Workstation security",
    "Disposal",
    "Media re-use",
    "Accountability",
    "Data backup and storage",
    "Unique user identification",
    "Emergency access procedure",
    "Automatic logoff",
    "Encryption and decryption",
    "Audit controls",
    "Mechanism to authenticate electronic protected health information",
    "Person or entity authentication",
    "Integrity controls",
    "Encryption",
    "Business associate",
    "Requirements for group health plans",
    "Documentation",
    "",
    "",
};

}  // namespace

std::span<const RuleRow> RuleRows() { return kRows; }

std::string_view SafeguardWord(int number) {
  const bool is_one = number >= 1 && number <= static_cast<int>(std::size(kSafeguards));
  return is_one ? kSafeguards[number - 1] : std::string_view();
}

int FindSection(std::span<const std::string> paragraphs, std::string_view word) {
  if (word.empty()) return -1;
  auto found = std::ranges::find_if(paragraphs, [&](const std::string& paragraph) {
    return text::EqualIgnoringCase(text::Trim(paragraph), word);
  });
  if (found == paragraphs.end()) {
    const std::string wanted = text::UpperCase(word);
    found = std::ranges::find_if(paragraphs, [&](const std::string& paragraph) {
      return text::UpperCase(paragraph).find(wanted) != std::string::npos;
    });
  }
  return found == paragraphs.end() ? -1 : static_cast<int>(found - paragraphs.begin());
}

}  // namespace tarnwell::workarea
