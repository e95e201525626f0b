#include "DialogDriver.h"
#include "ErrorBoxPanel.h"
#include "ErrorComposer.h"
#include "ErrorsPage.h"
#include "Mnemonics.h"
#include "TestBase.h"
#include "TestTranslations.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDesktopServices>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTranslator>

namespace {

/// The gallery's own manual, as seen from the manuals of a test.
const QString kManual = QStringLiteral("../../gallery/Resources/Manual/TXGallery.pdf");

} // namespace

class TestErrorsPage : public TestBase
{
    Q_OBJECT

public slots:
    void noteUrl(const QUrl &url) { openedUrls.append(url); }

private slots:
    void startsWithARealError();
    void examplesFillTheFields_data();
    void examplesFillTheFields();
    void completeTextFollowsTheFields();
    void shortBoxesShowEachKind_data();
    void shortBoxesShowEachKind();
    void detailedBoxesShowEachKind_data();
    void detailedBoxesShowEachKind();
    void titleWinsOverTheDomain();
    void onlyTheFirstReasonIsShownWithoutADescription();
    void errorWithNothingToSayOpensNoBox();
    void fileThatIsChosenIsRead();
    void manualIsOpened();
    void missingManualIsTold();
    void tabReachesEveryFieldAndButton();
    void writtenTextsSurviveAChangeOfLanguage();
    void mnemonicsDoNotClash();

protected:
    void prepare() override;
    void finish() override;

private:
    QAbstractButton *buttonNamed(const QString &accessibleName) const;
    QAbstractButton *button(const QString &text) const;
    QLineEdit *field(const QString &label) const;
    QPlainTextEdit *area(const QString &label) const;
    QWidget *buddyOf(const QString &label) const;
    QLineEdit *titleField() const;
    void takeExample(int index);
    void compose(const QString &description, const QString &domain, const QString &nested);

    std::unique_ptr<ErrorsPage> page;
    QList<QUrl> openedUrls;
};

void TestErrorsPage::prepare()
{
    page = std::make_unique<ErrorsPage>(kManual, nullptr);
    page->resize(860, 640);
    page->show();
    QVERIFY(QTest::qWaitForWindowActive(page.get()));
}

void TestErrorsPage::finish()
{
    page.reset();
    openedUrls.clear();
    QDesktopServices::unsetUrlHandler("file");
}

QAbstractButton *TestErrorsPage::buttonNamed(const QString &accessibleName) const
{
    const auto buttons = page->findChildren<QAbstractButton *>();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->accessibleName() == accessibleName) {
            return candidate;
        }
    }
    return nullptr;
}

QAbstractButton *TestErrorsPage::button(const QString &text) const
{
    const auto buttons = page->findChildren<QAbstractButton *>();
    for (QAbstractButton *candidate : buttons) {
        if (candidate->text().remove('&') == text) {
            return candidate;
        }
    }
    return nullptr;
}

QWidget *TestErrorsPage::buddyOf(const QString &label) const
{
    const auto labels = page->findChildren<QLabel *>();
    for (const QLabel *candidate : labels) {
        if (candidate->text().remove('&') == label) {
            return candidate->buddy();
        }
    }
    return nullptr;
}

QLineEdit *TestErrorsPage::field(const QString &label) const
{
    return qobject_cast<QLineEdit *>(buddyOf(label));
}

QPlainTextEdit *TestErrorsPage::area(const QString &label) const
{
    return qobject_cast<QPlainTextEdit *>(buddyOf(label));
}

QLineEdit *TestErrorsPage::titleField() const
{
    const auto edits = page->findChildren<QLineEdit *>();
    for (QLineEdit *edit : edits) {
        if (edit->accessibleName() == "Title") {
            return edit;
        }
    }
    return nullptr;
}

void TestErrorsPage::takeExample(int index)
{
    auto *box = page->findChild<QComboBox *>();
    box->setFocus();
    while (box->currentIndex() != index) {
        QTest::keyClick(box, box->currentIndex() < index ? Qt::Key_Down : Qt::Key_Up);
    }
}

void TestErrorsPage::compose(const QString &description, const QString &domain,
                             const QString &nested)
{
    static_cast<QCheckBox *>(button("Title:"))->setChecked(false);
    field("Description:")->setText(description);
    field("Domain:")->setText(domain);
    area("Nested errors:")->setPlainText(nested);
}

void TestErrorsPage::startsWithARealError()
{
    QCOMPARE(field("Description:")->text(),
             "\"text_file_icon.png\" cannot be used as a colour profile.");
    QCOMPARE(field("Domain:")->text(), "ColourProfileErrorDomain");
    // There are no resources beside a test.
    QCOMPARE(area("Nested errors:")->toPlainText(),
             "The file cannot be opened.\n  No such file or directory");
    QCOMPARE(titleField()->text(), "Colour Profile");
}

void TestErrorsPage::examplesFillTheFields_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QString>("description");
    QTest::addColumn<QString>("domain");
    QTest::addColumn<QString>("firstReason");
    QTest::newRow("password") << 1 << "The password of the measuring device cannot be read."
                              << "MeasuringDeviceErrorDomain"
                              << "The data is not enciphered";
    QTest::newRow("reasons alone") << 2 << ""
                                   << "GalleryErrorDomain"
                                   << "The password of the measuring device cannot be read.";
    QTest::newRow("nothing") << 3 << ""
                             << ""
                             << "";
}

void TestErrorsPage::examplesFillTheFields()
{
    QFETCH(int, index);

    takeExample(index);

    QTEST(field("Description:")->text(), "description");
    QTEST(field("Domain:")->text(), "domain");
    QTEST(area("Nested errors:")->toPlainText().section('\n', 0, 0), "firstReason");
    QVERIFY(titleField()->text().isEmpty());
    QVERIFY(!titleField()->isEnabled());
}

void TestErrorsPage::completeTextFollowsTheFields()
{
    compose("Disk full", "DiskErrorDomain", "Volume A\n  12 bytes free\nVolume B");

    QCOMPARE(area("Complete text:")->toPlainText(),
             "Disk full\n    Volume A\n        12 bytes free\n    Volume B\n"
             "Domain: DiskErrorDomain");
    QVERIFY(area("Complete text:")->isReadOnly());
}

void TestErrorsPage::shortBoxesShowEachKind_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("icon");
    QTest::addColumn<int>("buttons");
    const int ok = QMessageBox::Ok;
    const int yesAndNo = int(QMessageBox::Yes) | int(QMessageBox::No);
    QTest::newRow("information") << "Information" << int(QMessageBox::Information) << ok;
    QTest::newRow("question") << "Question" << int(QMessageBox::Question) << yesAndNo;
    QTest::newRow("warning") << "Warning" << int(QMessageBox::Warning) << ok;
    QTest::newRow("critical") << "Critical" << int(QMessageBox::Critical) << ok;
}

void TestErrorsPage::shortBoxesShowEachKind()
{
    QFETCH(QString, name);
    QFETCH(int, icon);
    QFETCH(int, buttons);
    compose("Disk full", "DiskErrorDomain", "Volume A\nVolume B");
    DialogDriver driver;
    driver.expectMessageBox([=, this](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), "DiskErrorDomain");
        QCOMPARE(box.text(), "Disk full\nVolume A\nVolume B");
        QCOMPARE(int(box.icon()), icon);
        QCOMPARE(int(box.standardButtons()), buttons);
        QCOMPARE(box.parentWidget(), page.get());
        DialogDriver::click(box.buttons().constFirst());
    });

    DialogDriver::click(buttonNamed(name + ", short"));
}

void TestErrorsPage::detailedBoxesShowEachKind_data()
{
    shortBoxesShowEachKind_data();
}

void TestErrorsPage::detailedBoxesShowEachKind()
{
    QFETCH(QString, name);
    QFETCH(int, icon);
    compose("Disk full", "DiskErrorDomain", "Volume A\nVolume B");
    DialogDriver driver;
    driver.expectMessageBox([=](QMessageBox &box) {
        QCOMPARE(box.text(), "Disk full");
        QCOMPARE(box.detailedText(), "Volume A\n    Volume B\nDomain: DiskErrorDomain");
        QCOMPARE(int(box.icon()), icon);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    DialogDriver::click(buttonNamed(name + ", with details"));
}

void TestErrorsPage::titleWinsOverTheDomain()
{
    compose("Disk full", "DiskErrorDomain", {});
    DialogDriver::click(button("Title:"));
    titleField()->setText("Backup");
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.windowTitle(), "Backup");
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    DialogDriver::click(buttonNamed("Warning, short"));
}

void TestErrorsPage::onlyTheFirstReasonIsShownWithoutADescription()
{
    takeExample(2);
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QCOMPARE(box.text(), "The password of the measuring device cannot be read.");
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    DialogDriver::click(buttonNamed("Critical, short"));
}

void TestErrorsPage::errorWithNothingToSayOpensNoBox()
{
    takeExample(3);
    QVERIFY(area("Complete text:")->toPlainText().isEmpty());
    QVERIFY(!area("Complete text:")->placeholderText().isEmpty());
    // Fails when a box comes.
    const DialogDriver driver;

    DialogDriver::click(buttonNamed("Critical, short"));
    DialogDriver::click(buttonNamed("Critical, with details"));
}

void TestErrorsPage::fileThatIsChosenIsRead()
{
    const QTemporaryDir folder;
    QFile file(folder.filePath("short.icc"));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("icc");
    file.close();
    takeExample(3);
    DialogDriver driver;
    driver.expect([&file](QDialog &dialog) {
        auto *files = qobject_cast<QFileDialog *>(&dialog);
        QVERIFY(files);
        files->findChild<QLineEdit *>("fileNameEdit")->setText(file.fileName());
        DialogDriver::click(files->findChild<QDialogButtonBox *>("buttonBox")->buttons().first());
    });

    DialogDriver::click(button("Browse..."));

    QCOMPARE(page->findChild<QComboBox *>()->currentIndex(), 0);
    QCOMPARE(area("Nested errors:")->toPlainText(),
             "The file ends within the header, after 3 bytes.");
}

void TestErrorsPage::manualIsOpened()
{
    QDesktopServices::setUrlHandler("file", this, "noteUrl");

    DialogDriver::click(button("Open Manual"));

    QCOMPARE(openedUrls.size(), 1);
    const QString path = openedUrls.first().toLocalFile();
    QVERIFY2(path.endsWith("/gallery/Resources/Manual/TXGallery.pdf"), qPrintable(path));
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QCOMPARE(file.read(4), "%PDF");
}

void TestErrorsPage::missingManualIsTold()
{
    QDesktopServices::setUrlHandler("file", this, "noteUrl");
    DialogDriver driver;
    driver.expectMessageBox([](QMessageBox &box) {
        QVERIFY(box.text().contains("Measuring Device.pdf"));
        QCOMPARE(box.icon(), QMessageBox::Warning);
        DialogDriver::click(box.button(QMessageBox::Ok));
    });

    DialogDriver::click(button("Open a Missing One"));

    QVERIFY(openedUrls.isEmpty());
}

void TestErrorsPage::tabReachesEveryFieldAndButton()
{
    QSet<QWidget *> reached;
    page->findChild<QComboBox *>()->setFocus();
    for (QWidget *focused = QApplication::focusWidget(); focused && !reached.contains(focused);
         focused = QApplication::focusWidget()) {
        reached.insert(focused);
        QTest::keyClick(focused, Qt::Key_Tab);
    }

    const auto buttons = page->findChildren<QPushButton *>();
    QCOMPARE(buttons.size(), 11);
    for (QPushButton *each : buttons) {
        QVERIFY2(reached.contains(each), qPrintable(each->text()));
    }
    for (const char *label : {"Description:", "Domain:", "Nested errors:", "Complete text:"}) {
        QVERIFY2(reached.contains(buddyOf(label)), label);
    }
}

void TestErrorsPage::writtenTextsSurviveAChangeOfLanguage()
{
    QTranslator french;
    QVERIFY(french.load(testTranslationsFolder() + "/gallerytest_fr.qm"));
    takeExample(1);

    QVERIFY(QCoreApplication::installTranslator(&french));
    QTRY_COMPARE(field("Description:")->text(),
                 QString::fromUtf8("Le mot de passe de l'instrument est illisible."));

    field("Description:")->setText("my own words");
    QVERIFY(QCoreApplication::removeTranslator(&french));
    QCoreApplication::sendPostedEvents();
    QCOMPARE(field("Description:")->text(), "my own words");
}

void TestErrorsPage::mnemonicsDoNotClash()
{
    QCOMPARE(clashingMnemonics(*page), QStringList());
}

int main(int argc, char **argv)
{
    return runTest<TestErrorsPage>(argc, argv);
}

#include "tst_ErrorsPage.moc"
