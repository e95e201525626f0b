#include "LibraryWidgets.h"

#include "AboutAppWindow.h"
#include "AutoMountManagerMainWindow.h"
#include "AutoMountNetworkDrive.h"
#include "AutoMountNetworkDriveEditor.h"
#include "CredentialDialog.h"
#include "DoubleSpinBoxWithSliderWidget.h"
#include "EMailSenderWidget.h"
#include "FTPConfigurationDialog.h"
#include "FTPConfigurationWidget.h"
#include "LineEditDrapAndDrop.h"
#include "LockerFirstPasswordDialog.h"
#include "LockerPasswordDialog.h"
#include "LockerUIDialog.h"
#include "RotationLabel.h"
#include "ShareBrowser.h"
#include "TXAspectRatioPixmapLabel.h"
#include "TXCheckForUpdateConfigWidget.h"
#include "TXCheckForUpdateWidget.h"
#include "TXColorSquareWidget.h"
#include "TXComboBox.h"
#include "TXComboBoxEditable.h"
#include "TXDBNavWidget.h"
#include "TXDatabaseConfigurationWidget.h"
#include "TXDeltaGradientWidget.h"
#include "TXDoubleSpinBoxDisabled.h"
#include "TXFeedbackDialog.h"
#include "TXFeedbackWidget.h"
#include "TXGroupBoxBolded.h"
#include "TXImageViewer.h"
#include "TXLogManager.h"
#include "TXLogWindow.h"
#include "TXPasswordLineEdit.h"
#include "TXProgressBar.h"
#include "TXSelectDefaultEncodingWidget.h"
#include "TXSelectionItemWidget.h"
#include "TXSpinBoxDisabled.h"
#include "TXSplitter.h"
#include "TXStackedWidget.h"
#include "TXStringI18n.h"
#include "TXSwitchSlider.h"
#include "TXTreeComboBox.h"
#include "TXTriggerEventWidget.h"
#include "TXUnfolderWidget.h"
#include "TXUpdateService.h"
#include "TXVariantViewer.h"
#include "TXWebInterfaceConfigurationWidget.h"
#include "TXWidgetListWidget.h"
#include "TreeViewDragAndDrop.h"
#include "WaitWidget.h"

#include <QCheckBox>
#include <QDir>
#include <QFileInfo>
#include <QListWidget>
#include <QStandardItemModel>
#include <QUrl>
#include <QVBoxLayout>

namespace {

using Made = std::unique_ptr<QWidget>;

class HostsAboutWindow : public AboutAppWindow
{
public:
    using AboutAppWindow::AboutAppWindow;

    [[nodiscard]] QPixmap applicationLogo() const override
    {
        QPixmap logo(64, 64);
        logo.fill(Qt::darkCyan);
        return logo;
    }
    [[nodiscard]] QString applicationName() const override { return QStringLiteral("Colour Tool"); }
    [[nodiscard]] QString applicationVersion() const override { return QStringLiteral("2.1.0"); }
    [[nodiscard]] QString applicationVersionDetail() const override
    {
        return QStringLiteral("(10452)");
    }
    [[nodiscard]] QString applicationCopyrightStartYear() const override
    {
        return QStringLiteral("2019");
    }
    [[nodiscard]] QString patentFileName() const override { return QStringLiteral("Notices.html"); }
};

template<class Widget>
Made plain()
{
    return std::make_unique<Widget>(static_cast<QWidget *>(nullptr));
}

/// A control without a text of its own: its name is the host's, who sets it as on any control of
/// Qt's.
template<class Widget>
Made named()
{
    auto widget = std::make_unique<Widget>(static_cast<QWidget *>(nullptr));
    widget->setAccessibleName(QStringLiteral("Tolerance"));
    return widget;
}

template<class Dialog>
Made locking()
{
    return std::make_unique<Dialog>(true);
}

/// Its name is that of the value, as on the label before it.
Made sliderWithBox()
{
    auto widget = std::make_unique<DoubleSpinBoxWithSliderWidget>();
    widget->setDataName(QStringLiteral("Tolerance"));
    return widget;
}

/// With something to choose from, as the focus is seen on the rows only.
Made treeView()
{
    auto view = std::make_unique<TreeViewDragAndDrop>();
    auto *model = new QStandardItemModel(view.get());
    model->appendRow(new QStandardItem(QStringLiteral("Coated")));
    view->setModel(model);
    view->setAccessibleName(QStringLiteral("Paper"));
    return view;
}

Made selectionBar()
{
    auto bar = std::make_unique<TXSelectionItemWidget>();
    auto *model = new QStandardItemModel(bar.get());
    model->appendRow(new QStandardItem(QStringLiteral("Coated")));
    model->appendRow(new QStandardItem(QStringLiteral("Newsprint")));
    bar->setLabelName(QStringLiteral("Paper"));
    bar->setModel(model, nullptr, nullptr);
    return bar;
}

Made unfolder()
{
    auto box = std::make_unique<TXUnfolderWidget>();
    box->setTitle(QStringLiteral("Paper"));
    auto *layout = new QVBoxLayout(box.get());
    layout->addWidget(new QCheckBox(QStringLiteral("Coated")));
    return box;
}

Made boldedBox()
{
    auto box = std::make_unique<TXGroupBoxBolded>();
    box->setTitle(QStringLiteral("Paper"));
    box->setCheckable(true);
    return box;
}

Made splitter()
{
    auto splitter = std::make_unique<TXSplitter>();
    splitter->addWidget(new QCheckBox(QStringLiteral("Left")));
    splitter->addWidget(new QCheckBox(QStringLiteral("Right")));
    return splitter;
}

Made listOfWidgets()
{
    auto list = std::make_unique<TXWidgetListWidget>();
    list->append(new QCheckBox(QStringLiteral("Cyan")));
    list->append(new QCheckBox(QStringLiteral("Magenta")));
    return list;
}

Made values()
{
    auto viewer = std::make_unique<TXVariantViewer>();
    viewer->setValue(QVariantHash{{QStringLiteral("paper"), QStringLiteral("coated")}});
    return viewer;
}

Made imageViewer()
{
    auto viewer = std::make_unique<TXImageViewer>();
    QPixmap picture(40, 30);
    picture.fill(Qt::darkCyan);
    viewer->setPixmap(picture);
    return viewer;
}

Made stack()
{
    auto stack = std::make_unique<TXStackedWidget>();
    stack->addWidget(new QCheckBox(QStringLiteral("Coated")));
    return stack;
}

template<bool isImport>
Made ftpDialog()
{
    return std::make_unique<FTPConfigurationDialog>(QHash<QString, QVariant>(),
                                                    QStringLiteral("Transfer"), isImport);
}

Made driveEditor()
{
    return std::make_unique<AutoMountNetworkDriveEditor>(AutoMountNetworkDrive());
}

Made shareBrowser()
{
    auto browser = std::make_unique<ShareBrowser>(QUrl(QStringLiteral("smb://localhost/")));
    browser->findChild<QListWidget *>()->addItem(QStringLiteral("printers"));
    return browser;
}

Made feedbackDialog()
{
    return std::make_unique<TXFeedbackDialog>(QVariantHash());
}

/// It lists what is logged while it exists.
Made logWindow()
{
    const auto manager = QSharedPointer<TXLogManager>::create();
    auto window = std::make_unique<TXLogWindow>(manager, nullptr);
    manager->append(1, TXStringI18n("Started"));
    manager->flush();
    return window;
}

/// It asks for updates where nobody listens.
Made updateDialog()
{
    TXUpdateService::setAuthority(QStringLiteral("127.0.0.1:1"));
    return std::make_unique<TXCheckForUpdateWidget>(QStringLiteral("Colour Tool"), 1, false);
}

Made rotatedLabel()
{
    auto label = std::make_unique<RotationLabel>();
    label->setText(QStringLiteral("Density"));
    return label;
}

} // namespace

const QList<LibraryWidget> &libraryWidgets()
{
    using Texts = LibraryWidget::Texts;
    static const QList<LibraryWidget> widgets = {
        {"AboutAppWindow", Texts::Own, plain<HostsAboutWindow>},
        {"AutoMountManagerMainWindow", Texts::Own, plain<AutoMountManagerMainWindow>},
        {"AutoMountNetworkDriveEditor", Texts::Own, driveEditor},
        {"CredentialDialog", Texts::Own, plain<CredentialDialog>},
        {"DoubleSpinBoxWithSliderWidget", Texts::Own, sliderWithBox},
        {"EMailSenderWidget", Texts::Own, plain<EMailSenderWidget>},
        {"FTPConfigurationDialog", Texts::Own, ftpDialog<false>},
        {"FTPConfigurationDialog, import", Texts::Own, ftpDialog<true>},
        {"FTPConfigurationWidget", Texts::Own, plain<FTPConfigurationWidget>},
        {"LineEditDrapAndDrop", Texts::OfTheHost, named<LineEditDrapAndDrop>},
        {"LockerFirstPasswordDialog", Texts::Own, locking<LockerFirstPasswordDialog>},
        {"LockerPasswordDialog", Texts::Own, locking<LockerPasswordDialog>},
        {"LockerUIDialog", Texts::Own, locking<LockerUIDialog>},
        {"RotationLabel", Texts::OfTheHost, rotatedLabel},
        {"ShareBrowser", Texts::Own, shareBrowser},
        {"TXAspectRatioPixmapLabel", Texts::OfTheHost, plain<TXAspectRatioPixmapLabel>},
        {"TXCheckForUpdateConfigWidget", Texts::Own, plain<TXCheckForUpdateConfigWidget>},
        {"TXCheckForUpdateWidget", Texts::Own, updateDialog},
        {"TXColorSquareWidget", Texts::OfTheHost, plain<TXColorSquareWidget>},
        {"TXComboBox", Texts::OfTheHost, named<TXComboBox>},
        {"TXComboBoxEditable", Texts::OfTheHost, named<TXComboBoxEditable>},
        {"TXDBNavWidget", Texts::Own, plain<TXDBNavWidget>},
        {"TXDatabaseConfigurationWidget", Texts::Own, plain<TXDatabaseConfigurationWidget>},
        {"TXDeltaGradientWidget", Texts::Own, plain<TXDeltaGradientWidget>},
        {"TXDoubleSpinBoxDisabled", Texts::OfTheHost, named<TXDoubleSpinBoxDisabled>},
        {"TXFeedbackDialog", Texts::Own, feedbackDialog},
        {"TXFeedbackWidget", Texts::Own, plain<TXFeedbackWidget>},
        {"TXGroupBoxBolded", Texts::OfTheHost, boldedBox},
        {"TXImageViewer", Texts::OfTheHost, imageViewer},
        {"TXLogWindow", Texts::Own, logWindow},
        {"TXPasswordLineEdit", Texts::OfTheHost, named<TXPasswordLineEdit>},
        {"TXProgressBar", Texts::Own, plain<TXProgressBar>},
        {"TXSelectDefaultEncodingWidget", Texts::Own, plain<TXSelectDefaultEncodingWidget>},
        {"TXSelectionItemWidget", Texts::Own, selectionBar},
        {"TXSpinBoxDisabled", Texts::OfTheHost, named<TXSpinBoxDisabled>},
        {"TXSplitter", Texts::OfTheHost, splitter},
        {"TXStackedWidget", Texts::OfTheHost, stack},
        {"TXSwitchSlider", Texts::OfTheHost, named<TXSwitchSlider>},
        {"TXTreeComboBox", Texts::OfTheHost, named<TXTreeComboBox>},
        {"TXTriggerEventWidget", Texts::Own, plain<TXTriggerEventWidget>},
        {"TXUnfolderWidget", Texts::OfTheHost, unfolder},
        {"TXVariantViewer", Texts::OfTheHost, values},
        {"TXWebInterfaceConfigurationWidget", Texts::Own, plain<TXWebInterfaceConfigurationWidget>},
        {"TXWidgetListWidget", Texts::Own, listOfWidgets},
        {"TreeViewDragAndDrop", Texts::OfTheHost, treeView},
        {"WaitWidget", Texts::OfTheHost, plain<WaitWidget>},
    };
    return widgets;
}

const QList<LibraryWidget> &libraryWidgetsWithTexts()
{
    static const QList<LibraryWidget> widgets = [] {
        QList<LibraryWidget> found = libraryWidgets();
        found.removeIf(
            [](const LibraryWidget &widget) { return widget.texts != LibraryWidget::Texts::Own; });
        return found;
    }();
    return widgets;
}

QStringList formsMissingIn(const QList<LibraryWidget> &widgets)
{
    QStringList missing;
    const QDir folder(QStringLiteral(TX_FORMS));
    const QStringList files = folder.entryList({QStringLiteral("*.ui")});
    for (const QString &file : files) {
        missing.append(QFileInfo(file).completeBaseName());
    }
    for (const LibraryWidget &widget : widgets) {
        missing.removeAll(QString::fromLatin1(widget.name));
    }
    return files.isEmpty() ? QStringList(folder.path()) : missing;
}
