#include "RatioReporter.h"
#include "TestEnvironment.h"

#include <QApplication>
#include <QFile>
#include <QFileInfo>

#include <cstdio>

#include <unistd.h>

namespace {

/// The file that takes the ratios as Markdown, behind what it already holds.
constexpr char kMarkdownVariable[] = "TX_BENCHMARK_MARKDOWN";

void print(const QString &text)
{
    std::fputs(qPrintable(text), stdout);
}

bool appendMarkdown(const QString &path, const QString &text)
{
    QFile file(path);
    return file.open(QFile::WriteOnly | QFile::Append) && file.write(text.toUtf8()) >= 0;
}

bool report(const RatioTable &table)
{
    print(table.toText());
    const QString path = qEnvironmentVariable(kMarkdownVariable);
    const QString program = QFileInfo(QCoreApplication::applicationFilePath()).fileName();
    return path.isEmpty() || appendMarkdown(path, table.toMarkdown(program));
}

} // namespace

int main(int argc, char **argv)
{
    const TestEnvironment environment;
    QApplication application(argc, argv);
    TestEnvironment::applyToApplication();

    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv)) {
        return 1;
    }
    RatioReporter reporter(isatty(STDOUT_FILENO) != 0);
    benchmark::RunSpecifiedBenchmarks(&reporter);
    const bool isReported = report(reporter.table());
    return isReported && !reporter.hasFailed() ? 0 : 1;
}
