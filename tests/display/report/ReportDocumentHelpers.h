#pragma once

#include "ICompletionDelegate.h"
#include "ReportTestFont.h"
#include "TXError.h"
#include "TXGraphicsScene.h"
#include "TXStringI18n.h"
#include "TXTable.h"

#include <QByteArray>
#include <QDir>
#include <QFile>
#include <QIODevice>
#include <QList>
#include <QSizeF>
#include <QString>
#include <QStringList>
#include <QTest>
#include <QVariant>

#include <functional>

/// Writes down what a worker tells, and lets a test do something in between.
class RecordingDelegate : public ICompletionDelegate
{
public:
    void onProgressionUpdated(QList<QString> path, float progress) override
    {
        paths.append(path);
        percents.append(progress);
        if (whenProgressing) {
            whenProgressing(progress);
        }
    }
    void onMessageUpdated(QList<QString> /*path*/, const TXStringI18n &message) override
    {
        messages.append(message.toString());
    }
    void onLogAppended(QList<QString> /*path*/, const TXError &error) override
    {
        errors.append(error.getLocalizedDescription());
        percentsBeforeLastError = percents;
    }
    void onMetadataEdited(QList<QString> /*path*/, QString /*key*/, QVariant /*value*/) override { }

    std::function<void(float percent)> whenProgressing;
    QList<QList<QString>> paths;
    QList<float> percents;
    QList<float> percentsBeforeLastError;
    QStringList messages;
    QStringList errors;
};

/// Draws a page that tells its number among those of its addPages(), from 0.
inline void drawMark(TXGraphicsScene *scene, int page)
{
    scene->drawText(QStringLiteral("drawn%1").arg(page), {0, 0}, reportTestFont(), Qt::black);
}

/// A table with a header row and rows of the given heights, the texts of which are "row 1" and so
/// on.
inline TXTable tableOfRows(const QList<double> &heights, double headerHeight = 20.0)
{
    constexpr double kWidth = 100.0;
    TXTable table(1, false);
    table.setColumnWidth(float(kWidth), 0);
    table.addCell({{"CellElement", "header"}, {"CellSize", QSizeF(kWidth, headerHeight)}});
    for (int i = 0; i < heights.size(); ++i) {
        table.addCell({{"CellElement", QStringLiteral("row%1").arg(i + 1)},
                       {"CellSize", QSizeF(kWidth, heights.at(i))}});
    }
    return table;
}

inline TXTable tableOfRows(int count)
{
    return tableOfRows(QList<double>(count, 20.0));
}

inline QByteArray contentsOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

inline void fill(const QString &fileName, const QByteArray &contents)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(contents), contents.size());
}

/// Everything in the folder, hidden files too.
inline QStringList entriesOf(const QString &folder)
{
    return QDir(folder).entryList(QDir::AllEntries | QDir::Hidden | QDir::System
                                  | QDir::NoDotAndDotDot);
}
