#pragma once

#include "TXTreeComboBox.h"

#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QTreeView>

#include <memory>

/// Base of the tests of TXTreeComboBox: a shown box over a small tree, with what a user does to it.
///
///     Papers              Ink
///       Coated              Cyan
///         Glossy
///         Matte
///       Uncoated
class TreeComboTest : public TestBase
{
protected:
    /// Room enough for the deepest item, so that the list does not scroll sideways.
    static constexpr int kBoxWidth = 250;

    void prepare() override
    {
        model = std::make_unique<QStandardItemModel>();
        tester = std::make_unique<QAbstractItemModelTester>(
            model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
        papers = addItem(model->invisibleRootItem(), "Papers");
        coated = addItem(papers, "Coated");
        glossy = addItem(coated, "Glossy");
        matte = addItem(coated, "Matte");
        uncoated = addItem(papers, "Uncoated");
        ink = addItem(model->invisibleRootItem(), "Ink");
        cyan = addItem(ink, "Cyan");
        combo = std::make_unique<TXTreeComboBox>();
        combo->setModel(model.get());
        combo->setFixedWidth(kBoxWidth);
        combo->show();
        QVERIFY(QTest::qWaitForWindowActive(combo.get()));
    }

    void finish() override
    {
        combo.reset();
        tester.reset();
        model.reset();
    }

    static QStandardItem *addItem(QStandardItem *parent, const QString &text)
    {
        auto *item = new QStandardItem(text);
        parent->appendRow(item);
        return item;
    }

    [[nodiscard]] QTreeView *tree() const { return combo->treeView(); }

    /// Opens the list and waits until it can be used.
    void open()
    {
        combo->showPopup();
        QVERIFY(QTest::qWaitForWindowExposed(tree()->window()));
        QVERIFY(isOpen());
    }

    [[nodiscard]] bool isOpen() const { return combo->view()->isVisible(); }

    /// A place on the text of an item.
    [[nodiscard]] QPoint placeOf(const QStandardItem *item) const
    {
        return tree()->visualRect(item->index()).center();
    }

    /// A place on the arrow of a branch.
    [[nodiscard]] QPoint arrowOf(const QStandardItem *item) const
    {
        const QRect rect = tree()->visualRect(item->index());
        return {rect.left() - tree()->indentation() / 2, rect.center().y()};
    }

    /// A place in the empty room below all items.
    [[nodiscard]] QPoint emptyPlace() const { return tree()->viewport()->rect().bottomLeft(); }

    /// Moves the mouse there, which makes the item below it the current one, and clicks.
    void click(const QPoint &place) const
    {
        QTest::mouseMove(tree()->viewport(), place);
        const QModelIndex item = tree()->indexAt(place);
        if (item.isValid()) {
            QTRY_COMPARE(tree()->currentIndex(), item);
        }
        QTest::mouseClick(tree()->viewport(), Qt::LeftButton, {}, place);
    }

    void press(const QPoint &place) const
    {
        QTest::mousePress(tree()->viewport(), Qt::LeftButton, {}, place);
    }

    std::unique_ptr<QStandardItemModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
    std::unique_ptr<TXTreeComboBox> combo;
    QStandardItem *papers = nullptr;
    QStandardItem *coated = nullptr;
    QStandardItem *glossy = nullptr;
    QStandardItem *matte = nullptr;
    QStandardItem *uncoated = nullptr;
    QStandardItem *ink = nullptr;
    QStandardItem *cyan = nullptr;
};
