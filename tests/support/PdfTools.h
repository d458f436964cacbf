// Looks at a PDF with tools that know nothing of this program.
#pragma once

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QString>
#include <QStringList>
#include <QTest>

namespace quartela::test {

// What the tool writes; fails the test, and gives nothing, when the tool does not run or fails.
inline QString outputOf(const QString& tool, const QStringList& arguments) {
  QProcess process;
  process.start(tool, arguments);
  if (!process.waitForFinished() || process.exitCode() != 0) {
    QTest::qFail(
        qPrintable(tool + QStringLiteral(": ") + QString::fromUtf8(process.readAllStandardError())),
        __FILE__, __LINE__);
    return {};
  }
  return QString::fromUtf8(process.readAllStandardOutput());
}

// The texts of the whole file as they stand on the paper, runs of blanks as one.
inline QString textsOfPdf(const QString& pdf) {
  return outputOf(QStringLiteral("pdftotext"),
                  {QStringLiteral("-layout"), pdf, QStringLiteral("-")})
      .simplified();
}

// The first of the texts that does not stand behind the one before it; empty when all do.
inline QString firstOutOfOrder(const QString& page, const QStringList& texts) {
  qsizetype at = 0;
  for (const QString& text : texts) {
    const qsizetype found = page.indexOf(text, at);
    if (found < 0) {
      return text;
    }
    at = found + text.size();
  }
  return {};
}

// What a bar code reader makes of the first page at that resolution.
inline QString barCodeOfPdf(const QString& pdf, int dotsPerInch) {
  const QString picture = pdf + QStringLiteral(".%1").arg(dotsPerInch);
  outputOf(QStringLiteral("pdftoppm"),
           {QStringLiteral("-r"), QString::number(dotsPerInch), QStringLiteral("-png"),
            QStringLiteral("-singlefile"), pdf, picture});
  return outputOf(QStringLiteral("zbarimg"),
                  {QStringLiteral("--raw"), QStringLiteral("--quiet"), QStringLiteral("-Sdisable"),
                   QStringLiteral("-Si25.enable"), picture + QStringLiteral(".png")})
      .trimmed();
}

}  // namespace quartela::test
