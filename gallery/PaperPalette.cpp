#include "PaperPalette.h"

#include <QColor>
#include <QPalette>

#include <utility>

QPalette paperPalette()
{
    const QColor ink(0x1c, 0x22, 0x2e);
    const QColor pale(0x76, 0x7b, 0x84);
    const QColor paper(0xf4, 0xf3, 0xed);
    const QColor line(0xd0, 0xce, 0xc6);
    const QColor accent(0x2b, 0x6c, 0xd4);
    const QColor note(0x2a, 0x30, 0x3c);
    const std::pair<QPalette::ColorRole, QColor> colours[] = {
        {QPalette::WindowText, ink},
        {QPalette::Button, paper.lighter(104)},
        {QPalette::Light, Qt::white},
        {QPalette::Midlight, paper.lighter(102)},
        {QPalette::Dark, line.darker(135)},
        {QPalette::Mid, line},
        {QPalette::Text, ink},
        {QPalette::BrightText, Qt::white},
        {QPalette::ButtonText, ink},
        {QPalette::Base, Qt::white},
        {QPalette::Window, paper},
        {QPalette::Shadow, line.darker(260)},
        {QPalette::Highlight, accent},
        {QPalette::HighlightedText, Qt::white},
        {QPalette::Link, accent},
        {QPalette::LinkVisited, accent.darker(115)},
        {QPalette::AlternateBase, paper},
        {QPalette::ToolTipBase, note},
        {QPalette::ToolTipText, Qt::white},
        {QPalette::PlaceholderText, pale},
    };
    QPalette palette;
    for (const auto &[role, colour] : colours) {
        palette.setColor(QPalette::All, role, colour);
    }
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, pale);
    }
    return palette;
}
