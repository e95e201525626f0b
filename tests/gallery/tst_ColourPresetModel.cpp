#include "ColourPresetModel.h"

#include "ColourPresetCollection.h"
#include "PresetFiles.h"
#include "TestBase.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>
#include <QTemporaryDir>

#include <memory>

class TestColourPresetModel : public TestBase
{
    Q_OBJECT

private slots:
    void rowTellsNameIdAndSettings();
    void everyChangeOfTheCollectionIsFollowed();
    void failedChangeIsNotTold();
    void otherLanguageTellsTheSettingsAgain();
    void indexOutsideHasNoData();

protected:
    void prepare() override;
    void finish() override;

private:
    [[nodiscard]] QStringList names() const;

    std::unique_ptr<QTemporaryDir> place;
    std::unique_ptr<ColourPresetCollection> collection;
    std::unique_ptr<ColourPresetModel> model;
    std::unique_ptr<QAbstractItemModelTester> tester;
};

void TestColourPresetModel::prepare()
{
    place = std::make_unique<QTemporaryDir>();
    collection = std::make_unique<ColourPresetCollection>(place->path());
    model = std::make_unique<ColourPresetModel>(*collection);
    tester = std::make_unique<QAbstractItemModelTester>(
        model.get(), QAbstractItemModelTester::FailureReportingMode::QtTest);
}

void TestColourPresetModel::finish()
{
    tester.reset();
    model.reset();
    collection.reset();
    place.reset();
}

QStringList TestColourPresetModel::names() const
{
    QStringList texts;
    for (int row = 0; row < model->rowCount(); ++row) {
        texts.append(model->index(row).data().toString());
    }
    return texts;
}

void TestColourPresetModel::rowTellsNameIdAndSettings()
{
    const QString id = collection->add(presetCalled("Proof"), nullptr);
    const QModelIndex index = model->index(0);

    QCOMPARE(index.data().toString(), "Proof");
    QCOMPARE(index.data(Qt::UserRole).toString(), id);
    QCOMPARE(index.data(Qt::ToolTipRole).toString(), collection->find(id)->summary());
    QVERIFY(!index.data(Qt::EditRole).isValid());
    QVERIFY(!(model->flags(index) & Qt::ItemIsEditable));
    QCOMPARE(model->rowCount(index), 0);
}

void TestColourPresetModel::everyChangeOfTheCollectionIsFollowed()
{
    const QString first = collection->add(presetCalled("a"), nullptr);
    const QString second = collection->add(presetCalled("b"), nullptr);
    const QString third = collection->duplicate(first, nullptr);
    QCOMPARE(names(), QStringList({"a", "b", "a 2"}));

    const QSignalSpy changes(model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));
    QVERIFY(collection->rename(second, "c", nullptr));
    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constFirst().constFirst().toModelIndex().row(), 1);

    QVERIFY(collection->remove(first, nullptr));
    QCOMPARE(names(), QStringList({"c", "a 2"}));
    QVERIFY(collection->remove(third, nullptr));
    QVERIFY(collection->remove(second, nullptr));
    QCOMPARE(names(), QStringList());

    QVERIFY(writeBytes(place->filePath("new.json"), presetCalled("new").toJson()));
    QVERIFY(collection->load(nullptr));
    QCOMPARE(names(), QStringList("new"));
}

void TestColourPresetModel::failedChangeIsNotTold()
{
    const QString id = collection->add(presetCalled("a"), nullptr);
    const QSignalSpy insertions(model.get(), SIGNAL(rowsInserted(QModelIndex, int, int)));
    const QSignalSpy changes(model.get(), SIGNAL(dataChanged(QModelIndex, QModelIndex)));

    QVERIFY(collection->add(presetCalled("A"), nullptr).isEmpty());
    QVERIFY(!collection->rename(id, "", nullptr));

    QCOMPARE(insertions.size(), 0);
    QCOMPARE(changes.size(), 0);
    QCOMPARE(names(), QStringList("a"));
}

void TestColourPresetModel::otherLanguageTellsTheSettingsAgain()
{
    const QSignalSpy changes(model.get(),
                             SIGNAL(dataChanged(QModelIndex, QModelIndex, QVector<int>)));
    model->retranslate();
    QCOMPARE(changes.size(), 0);

    collection->add(presetCalled("a"), nullptr);
    collection->add(presetCalled("b"), nullptr);
    model->retranslate();

    QCOMPARE(changes.size(), 1);
    QCOMPARE(changes.constFirst().at(1).toModelIndex().row(), 1);
    QCOMPARE(changes.constFirst().at(2).value<QVector<int>>(), QVector<int>{Qt::ToolTipRole});
}

void TestColourPresetModel::indexOutsideHasNoData()
{
    QVERIFY(!model->data({}, Qt::DisplayRole).isValid());
    QVERIFY(!model->index(0).isValid());
}

int main(int argc, char **argv)
{
    return runTest<TestColourPresetModel>(argc, argv);
}

#include "tst_ColourPresetModel.moc"
