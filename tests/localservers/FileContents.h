#pragma once

#include <QByteArray>
#include <QFile>
#include <QString>
#include <QTest>

/// What stands in a file; empty when it cannot be read.
inline QByteArray contents(const QString &path)
{
    QFile file(path);
    return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
}

/// Makes a file in a folder, or fails the test.
inline void put(const QString &folder, const QString &name, const QByteArray &content)
{
    QFile file(folder + u'/' + name);
    QVERIFY2(file.open(QFile::WriteOnly), qPrintable(file.fileName()));
    QCOMPARE(file.write(content), content.size());
}
