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
#include "TXVariantViewer.h"
#include "TXWebInterfaceConfigurationWidget.h"
#include "TXWidgetListWidget.h"
#include "TreeViewDragAndDrop.h"
#include "WaitWidget.h"

#include <QCheckBox>
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

    QPixmap applicationLogo() const override { return {}; }
    QString applicationName() const override { return QStringLiteral("Colour Tool"); }
    QString applicationVersion() const override { return QStringLiteral("2.1.0"); }
    QString applicationVersionDetail() const override { return {}; }
    QString applicationCopyrightStartYear() const override { return QStringLiteral("2019"); }
    QString patentFileName() const override { return QStringLiteral("Notices.html"); }
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

Made ftpDialog()
{
    return std::make_unique<FTPConfigurationDialog>(QHash<QString, QVariant>(),
                                                    QStringLiteral("Transfer"), false);
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

Made logWindow()
{
    const auto manager = QSharedPointer<TXLogManager>::create();
    manager->append(1, TXStringI18n("Started"));
    return std::make_unique<TXLogWindow>(manager, nullptr);
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
    static const QList<LibraryWidget> forms = {
        {"AboutAppWindow", plain<HostsAboutWindow>},
        {"AutoMountManagerMainWindow", plain<AutoMountManagerMainWindow>},
        {"AutoMountNetworkDriveEditor", driveEditor},
        {"CredentialDialog", plain<CredentialDialog>},
        {"DoubleSpinBoxWithSliderWidget", sliderWithBox},
        {"EMailSenderWidget", plain<EMailSenderWidget>},
        {"FTPConfigurationDialog", ftpDialog},
        {"FTPConfigurationWidget", plain<FTPConfigurationWidget>},
        {"LineEditDrapAndDrop", named<LineEditDrapAndDrop>},
        {"LockerFirstPasswordDialog", locking<LockerFirstPasswordDialog>},
        {"LockerPasswordDialog", locking<LockerPasswordDialog>},
        {"LockerUIDialog", locking<LockerUIDialog>},
        {"RotationLabel", rotatedLabel},
        {"ShareBrowser", shareBrowser},
        {"TXAspectRatioPixmapLabel", plain<TXAspectRatioPixmapLabel>},
        {"TXCheckForUpdateConfigWidget", plain<TXCheckForUpdateConfigWidget>},
        {"TXCheckForUpdateWidget", plain<TXCheckForUpdateWidget>},
        {"TXColorSquareWidget", plain<TXColorSquareWidget>},
        {"TXComboBox", named<TXComboBox>},
        {"TXComboBoxEditable", named<TXComboBoxEditable>},
        {"TXDBNavWidget", plain<TXDBNavWidget>},
        {"TXDatabaseConfigurationWidget", plain<TXDatabaseConfigurationWidget>},
        {"TXDeltaGradientWidget", plain<TXDeltaGradientWidget>},
        {"TXDoubleSpinBoxDisabled", named<TXDoubleSpinBoxDisabled>},
        {"TXFeedbackDialog", feedbackDialog},
        {"TXFeedbackWidget", plain<TXFeedbackWidget>},
        {"TXGroupBoxBolded", boldedBox},
        {"TXImageViewer", imageViewer},
        {"TXLogWindow", logWindow},
        {"TXPasswordLineEdit", named<TXPasswordLineEdit>},
        {"TXProgressBar", plain<TXProgressBar>},
        {"TXSelectDefaultEncodingWidget", plain<TXSelectDefaultEncodingWidget>},
        {"TXSelectionItemWidget", selectionBar},
        {"TXSpinBoxDisabled", named<TXSpinBoxDisabled>},
        {"TXSplitter", splitter},
        {"TXStackedWidget", stack},
        {"TXSwitchSlider", named<TXSwitchSlider>},
        {"TXTreeComboBox", named<TXTreeComboBox>},
        {"TXTriggerEventWidget", plain<TXTriggerEventWidget>},
        {"TXUnfolderWidget", unfolder},
        {"TXVariantViewer", values},
        {"TXWebInterfaceConfigurationWidget", plain<TXWebInterfaceConfigurationWidget>},
        {"TXWidgetListWidget", listOfWidgets},
        {"TreeViewDragAndDrop", treeView},
        {"WaitWidget", plain<WaitWidget>},
    };
    return forms;
}
