#include "DesignerWidget.h"

#include "WidgetIcon.h"

#include <QCoreApplication>
#include <QIcon>

namespace {

/// %1 class, %2 name in the widget box, %3 object name, %4 geometry, %5 contents, %6 base class,
/// %7 include file, %8 text properties.
constexpr char kForm[] = R"(<ui language="c++" displayname="%2">
 <widget class="%1" name="%3">%4%5</widget>
 <customwidgets>
  <customwidget>
   <class>%1</class>
   <extends>%6</extends>
   <header location="global">%7</header>
   <propertyspecifications>%8</propertyspecifications>
  </customwidget>
 </customwidgets>
</ui>
)";

constexpr char kGeometry[] =
    R"(<property name="geometry"><rect><x>0</x><y>0</y><width>%1</width><height>%2</height></rect></property>)";

constexpr char kSingleLine[] =
    R"(<stringpropertyspecification name="%1" notr="false" type="singleline"/>)";

QString translated(const char *text)
{
    return QCoreApplication::translate("TXGUICommonDesigner", text);
}

QString geometry(const QSize &size)
{
    return size.isEmpty() ? QString()
                          : QString::fromLatin1(kGeometry).arg(size.width()).arg(size.height());
}

} // namespace

DesignerWidget::DesignerWidget(const QString &group, const WidgetRow &row, QObject *parent)
    : QObject(parent)
    , groupName(group)
    , row(row)
{ }

QString DesignerWidget::name() const
{
    return QString::fromLatin1(row.metaObject->className());
}

QString DesignerWidget::group() const
{
    return groupName;
}

QString DesignerWidget::toolTip() const
{
    return translated(row.purpose);
}

QString DesignerWidget::whatsThis() const
{
    return translated(row.purpose);
}

QString DesignerWidget::includeFile() const
{
    return QStringLiteral("<%1.h>").arg(name());
}

QIcon DesignerWidget::icon() const
{
    return QIcon(new WidgetIcon(row.picture)); // the icon owns its engine
}

bool DesignerWidget::isContainer() const
{
    return row.isContainer;
}

QString DesignerWidget::domXml() const
{
    const QString baseClass = QString::fromLatin1(row.metaObject->superClass()->className());
    return QString::fromLatin1(kForm).arg(name(), translated(row.name).toHtmlEscaped(),
                                          objectName(), geometry(row.size),
                                          QString::fromLatin1(row.contents), baseClass,
                                          name() + QLatin1String(".h"), textSpecifications());
}

QWidget *DesignerWidget::createWidget(QWidget *parent)
{
    QWidget *const widget = row.create(parent);
    if (isInDesigner && row.prepareForDesigner) {
        row.prepareForDesigner(*widget);
    }
    return widget;
}

void DesignerWidget::initialize(QDesignerFormEditorInterface *)
{
    isInDesigner = true;
}

bool DesignerWidget::isInitialized() const
{
    return isInDesigner;
}

// The class without its prefix, with a small first letter, as Qt Designer names its own.
QString DesignerWidget::objectName() const
{
    QString result = name();
    if (result.startsWith(QLatin1String("TX"))) {
        result.remove(0, 2);
    }
    qsizetype capitals = 0;
    while (capitals < result.size() && result.at(capitals).isUpper()) {
        ++capitals;
    }
    const qsizetype small = capitals > 1 ? capitals - 1 : 1;
    return result.left(small).toLower() + result.mid(small);
}

QString DesignerWidget::textSpecifications() const
{
    QString result;
    for (const char *property : row.singleLineTexts) {
        result += QString::fromLatin1(kSingleLine).arg(QLatin1String(property));
    }
    return result;
}
