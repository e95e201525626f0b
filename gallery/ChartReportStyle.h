#pragma once

#include <QColor>
#include <QLocale>
#include <QString>

/// What the cover and the tables of the chart report have in common to the eye.
namespace ChartReportStyle {

/// Marks what exceeds the tolerance.
inline const QColor kMarkColour(0xc0, 0x10, 0x20);

/// A colour value or difference as it is read everywhere in the report: two decimals, in the
/// language of the moment, thousands not grouped.
[[nodiscard]] inline QString decimal(double value)
{
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'f', 2);
}

} // namespace ChartReportStyle
