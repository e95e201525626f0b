#include "EMailSenderWidget.h"
#include "FTPConfigurationWidget.h"
#include "IconPainter.h"
#include "TXCheckForUpdateConfigWidget.h"
#include "TXDatabaseConfigurationWidget.h"
#include "TXFeedbackWidget.h"
#include "TXSelectDefaultEncodingWidget.h"
#include "TXTriggerEventWidget.h"
#include "TXWebInterfaceConfigurationWidget.h"
#include "WidgetRow.h"

namespace {

void mailPicture(IconPainter &icon)
{
    icon.box({1.5, 4.5, 21, 15}, 2);
    icon.line({{2.5, 6}, {12, 13.5}, {21.5, 6}}, IconPainter::Accent);
}

void ftpPicture(IconPainter &icon)
{
    icon.shape({{1, 5}, {8, 5}, {10, 8}, {23, 8}, {23, 22}, {1, 22}}, IconPainter::Orange);
    icon.line({{8, 20}, {8, 13}}, IconPainter::Bright);
    icon.line({{5, 15.5}, {8, 12}, {11, 15.5}}, IconPainter::Bright);
    icon.line({{16, 11.5}, {16, 18.5}}, IconPainter::Bright);
    icon.line({{13, 16}, {16, 19.5}, {19, 16}}, IconPainter::Bright);
}

void databasePicture(IconPainter &icon)
{
    icon.fill({3, 2, 18, 20}, 4, IconPainter::Accent);
    for (const double y : {0.0, 5.5, 11.0}) {
        icon.arc({3.7, 2.5 + y, 16.6, 5.5}, 180, 180, IconPainter::Bright);
    }
    icon.arc({3.7, 2.5, 16.6, 5.5}, 0, 180, IconPainter::Bright);
}

void encodingPicture(IconPainter &icon)
{
    icon.box({3, 1.5, 18, 21}, 2);
    icon.text({4, 3, 16, 9}, QString::fromUtf8("Aé"));
    icon.text({4, 13, 16, 7}, QStringLiteral("UTF"), IconPainter::Accent);
}

void triggerPicture(IconPainter &icon)
{
    icon.box({1.5, 3.5, 18, 16}, 2);
    icon.fill({1.5, 3.5, 18, 5}, 1.5, IconPainter::Red);
    icon.line({{6, 1.5}, {6, 5}});
    icon.line({{15, 1.5}, {15, 5}});
    icon.disc({16.5, 16.5}, 6.8, IconPainter::Accent);
    icon.line({{16.5, 12.5}, {16.5, 16.5}, {19.5, 18}}, IconPainter::Bright);
}

void webPicture(IconPainter &icon)
{
    icon.disc({12, 12}, 10.5, IconPainter::Accent);
    icon.ring({7.5, 1.5, 9, 21}, IconPainter::Bright);
    icon.line({{3, 9}, {21, 9}}, IconPainter::Bright);
    icon.line({{3, 15}, {21, 15}}, IconPainter::Bright);
}

void updatePicture(IconPainter &icon)
{
    icon.arc({4, 4, 16, 16}, 150, -130, IconPainter::Accent);
    icon.arc({4, 4, 16, 16}, -30, -130, IconPainter::Accent);
    icon.shape({{16, 11}, {23.5, 11}, {20, 15.5}}, IconPainter::Accent);
    icon.shape({{8, 13}, {0.5, 13}, {4, 8.5}}, IconPainter::Accent);
}

void feedbackPicture(IconPainter &icon)
{
    icon.box({1.5, 2.5, 21, 14}, 3);
    icon.shape({{5.5, 16}, {12, 16}, {5.5, 22.5}}, IconPainter::Line);
    icon.line({{5.5, 7.2}, {18.5, 7.2}}, IconPainter::Accent);
    icon.line({{5.5, 11.7}, {14, 11.7}}, IconPainter::Accent);
}

QList<WidgetRow> servicePanels()
{
    return {
        rowFor<EMailSenderWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Mail Settings"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A panel on which the user enters how the program sends mail."),
            mailPicture,
        }),
        rowFor<FTPConfigurationWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "FTP Settings"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A panel on which the user sets up an FTP or SFTP server."),
            ftpPicture,
        }),
        rowFor<TXDatabaseConfigurationWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Database Settings"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A panel on which the user chooses where the program keeps its "
                              "data."),
            databasePicture,
        }),
        rowFor<TXWebInterfaceConfigurationWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Web Interface Settings"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A panel on which the user sets up the program's web server."),
            webPicture,
        }),
    };
}

QList<WidgetRow> programPanels()
{
    return {
        rowFor<TXTriggerEventWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Trigger Settings"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A panel on which the user sets when an event comes back."),
            triggerPicture,
            {},
            false,
            "",
            {"groupBoxTitle"},
        }),
        rowFor<TXSelectDefaultEncodingWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Encoding Settings"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A panel on which the user chooses the encoding of text files."),
            encodingPicture,
        }),
        rowFor<TXCheckForUpdateConfigWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Update Settings"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A panel on which the user sets when to look for newer releases."),
            updatePicture,
        }),
        rowFor<TXFeedbackWidget>({
            QT_TRANSLATE_NOOP("TXGUICommonDesigner", "Feedback Form"),
            QT_TRANSLATE_NOOP("TXGUICommonDesigner",
                              "A form with which the user sends a note to the makers."),
            feedbackPicture,
        }),
    };
}

} // namespace

QList<WidgetRow> panelWidgets()
{
    return servicePanels() + programPanels();
}
