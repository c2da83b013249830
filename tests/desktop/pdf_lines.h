#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <string>
#include <vector>

namespace tarnwell::testing {

// The lines that another program says about a file, blanks at their ends and between them cut.
inline std::vector<std::string> LinesOf(const QString& program, const QStringList& arguments) {
  QProcess reader;
  reader.start(program, arguments);
  EXPECT_TRUE(reader.waitForFinished());
  std::vector<std::string> lines;
  for (const QString& line : QString::fromUtf8(reader.readAllStandardOutput()).split('\n')) {
    if (!line.trimmed().isEmpty()) lines.push_back(line.simplified().toStdString());
  }
  return lines;
}

// The text of a PDF.
inline std::vector<std::string> LinesOfPdf(const QString& file) {
  return LinesOf(QStringLiteral("pdftotext"), {"-layout", "-enc", "UTF-8", file, "-"});
}

}  // namespace tarnwell::testing
