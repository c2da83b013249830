#pragma once

#include <gtest/gtest.h>

#include <QProcess>
#include <string>
#include <vector>

namespace tarnwell::testing {

// The lines that another program reads out of a PDF, blanks at their ends and between them cut.
inline std::vector<std::string> LinesOfPdf(const QString& file) {
  QProcess reader;
  reader.start(QStringLiteral("pdftotext"), {"-layout", "-enc", "UTF-8", file, "-"});
  EXPECT_TRUE(reader.waitForFinished());
  std::vector<std::string> lines;
  for (const QString& line : QString::fromUtf8(reader.readAllStandardOutput()).split('\n')) {
    if (!line.trimmed().isEmpty()) lines.push_back(line.simplified().toStdString());
  }
  return lines;
}

}  // namespace tarnwell::testing
