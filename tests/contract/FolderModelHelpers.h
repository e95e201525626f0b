#pragma once

#include "FolderModel.h"

#include <QAbstractItemModelTester>
#include <QMimeData>

#include <memory>

/// What the tests of FolderModel share.
namespace FolderTest {

inline constexpr auto kFatal = QAbstractItemModelTester::FailureReportingMode::Fatal;

/// A(A1(A1a) A2) B C
struct Folders
{
    FolderModel model;
    QAbstractItemModelTester tester{&model, kFatal};
    QPersistentModelIndex a = model.addFolder("A");
    QPersistentModelIndex a1 = model.addFolder("A1", a);
    QPersistentModelIndex a1a = model.addFolder("A1a", a1);
    QPersistentModelIndex a2 = model.addFolder("A2", a);
    QPersistentModelIndex b = model.addFolder("B");
    QPersistentModelIndex c = model.addFolder("C");

    std::unique_ptr<QMimeData> drag(const QModelIndexList &indexes) const
    {
        return std::unique_ptr<QMimeData>(model.mimeData(indexes));
    }
};

inline QString outline(const QAbstractItemModel &model, const QModelIndex &parent = {})
{
    QStringList parts;
    for (int row = 0; row < model.rowCount(parent); ++row) {
        const QModelIndex index = model.index(row, 0, parent);
        const QString below = outline(model, index);
        parts.append(index.data().toString() + (below.isEmpty() ? "" : "(" + below + ")"));
    }
    return parts.join(' ');
}

} // namespace FolderTest
