#pragma once

#include "PdfFile.h"
#include "TXError.h"
#include "TXReportDocument.h"
#include "TXTable.h"
#include "TestBase.h"

#include <QHash>
#include <QList>
#include <QMarginsF>
#include <QPageLayout>
#include <QPageSize>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <QVariant>

#include <algorithm>
#include <memory>

/// Base of the tests that write a report, or what stands on one, as PDF and read it with other
/// people's tools.
class ReportPdfTest : public TestBase
{
protected:
    void prepare() override { folder = std::make_unique<QTemporaryDir>(); }
    void finish() override { folder.reset(); }

    /// The name of a file in the test's own folder.
    [[nodiscard]] QString fileName(const QString &name = QStringLiteral("report.pdf")) const
    {
        return folder->filePath(name);
    }

    /// The report as PDF. Where it cannot be written the test has failed and the file is not there.
    [[nodiscard]] PdfFile written(TXReportDocument &report) const
    {
        TXError error;
        if (!report.writePdf(fileName(), nullptr, &error)) {
            QTest::qFail(qPrintable(error.getCompletLocalizedDescription()), __FILE__, __LINE__);
        }
        return PdfFile(fileName());
    }

    /// A page of as many points.
    [[nodiscard]] static QPageLayout layoutOf(const QSizeF &points, const QMarginsF &margins)
    {
        return {QPageSize(points, QPageSize::Point, QString(), QPageSize::ExactMatch),
                QPageLayout::Portrait, margins, QPageLayout::Point};
    }

    /// Without header and footer the content fills the margins.
    static void removeHeaderAndFooter(TXReportDocument &report)
    {
        for (const auto place : {TXAlignLeft, TXAlignRight, TXAlignHorizontallyCentred}) {
            report.setHeaderText(QString(), place);
            report.setFooterText(QString(), place);
        }
    }

    /// Where a word stands that is on the page once; a null rectangle where it is not.
    [[nodiscard]] static QRectF boxOf(const QList<PdfFile::Word> &words, const QString &text)
    {
        const auto isIt = [&](const PdfFile::Word &word) {
            return word.text == text;
        };
        if (std::count_if(words.begin(), words.end(), isIt) != 1) {
            return {};
        }
        return std::find_if(words.begin(), words.end(), isIt)->box;
    }

    /// The words as they are read: row by row, from left to right.
    [[nodiscard]] static QStringList inReadingOrder(QList<PdfFile::Word> words)
    {
        constexpr double kSameRowPoints = 1.0;
        std::sort(words.begin(), words.end(),
                  [](const auto &a, const auto &b) { return a.box.top() < b.box.top(); });
        QStringList texts;
        for (auto row = words.begin(); row != words.end();) {
            const double limit = row->box.top() + kSameRowPoints;
            const auto next = std::find_if(
                row, words.end(), [&](const auto &word) { return word.box.top() > limit; });
            std::sort(row, next,
                      [](const auto &a, const auto &b) { return a.box.left() < b.box.left(); });
            std::for_each(row, next, [&](const auto &word) { texts.append(word.text); });
            row = next;
        }
        return texts;
    }

    /// What poppler and a PDF's own fractions of glyph widths leave of the place of a word.
    static constexpr double kTolerancePoints = 0.1;

    [[nodiscard]] static bool isNear(const QPointF &found, const QPointF &expected,
                                     double tolerance = kTolerancePoints)
    {
        const QPointF difference = found - expected;
        return qAbs(difference.x()) < tolerance && qAbs(difference.y()) < tolerance;
    }

    /// For the message of a test that fails.
    [[nodiscard]] static QString toText(const QPointF &found, const QPointF &expected)
    {
        return QStringLiteral("(%1, %2), not (%3, %4)")
            .arg(found.x())
            .arg(found.y())
            .arg(expected.x())
            .arg(expected.y());
    }

    /// A cell whose text stands at its top left corner.
    [[nodiscard]] static QHash<QString, QVariant> leftTopCell(const QVariant &element,
                                                              const QSizeF &size)
    {
        return {{QStringLiteral("CellElement"), element},
                {QStringLiteral("CellSize"), size},
                {QStringLiteral("CellTextHorizontalAlign"), TXAlignLeft},
                {QStringLiteral("CellTextVerticalAlign"), TXAlignTop}};
    }

    /// Rows of two columns: "n<row>" and the text.
    [[nodiscard]] static TXTable tableOf(const QStringList &texts)
    {
        TXTable table(2, false);
        for (int row = 0; row < texts.size(); ++row) {
            table.addCell(leftTopCell(QStringLiteral("n%1").arg(row), {40, 20}));
            table.addCell(leftTopCell(texts[row], {300, 20}));
        }
        return table;
    }

private:
    std::unique_ptr<QTemporaryDir> folder;
};
