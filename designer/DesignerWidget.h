#pragma once

#include "WidgetRow.h"

#include <QObject>
#include <QtUiPlugin/QDesignerCustomWidgetInterface>

/// Tells Qt Designer, and what else reads forms, all of one widget from its row.
class DesignerWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)

public:
    /// The group is the heading in the widget box.
    DesignerWidget(const QString &group, const WidgetRow &row, QObject *parent);

    [[nodiscard]] QString name() const override;
    [[nodiscard]] QString group() const override;
    [[nodiscard]] QString toolTip() const override;
    [[nodiscard]] QString whatsThis() const override;
    /// As a host writes it, in angle brackets.
    [[nodiscard]] QString includeFile() const override;
    [[nodiscard]] QIcon icon() const override;
    [[nodiscard]] bool isContainer() const override;
    /// What a new one is made of when it is dragged onto a form.
    [[nodiscard]] QString domXml() const override;

    /// Makes one; the parent owns it.
    QWidget *createWidget(QWidget *parent) override;

    /// Called by Qt Designer only, never by QUiLoader.
    void initialize(QDesignerFormEditorInterface *core) override;
    [[nodiscard]] bool isInitialized() const override;

private:
    [[nodiscard]] QString objectName() const;
    [[nodiscard]] QString textSpecifications() const;

    QString groupName;
    WidgetRow row;
    bool isInDesigner = false;
};
