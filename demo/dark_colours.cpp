#include "dark_colours.h"

#include <QApplication>
#include <QPalette>
#include <QStyleFactory>

namespace Zudunmaf::demo
{

void useDarkColours()
{
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    const QColor ground(45, 45, 48);
    const QColor text(230, 230, 230);
    QPalette palette(ground, ground);
    palette.setColor(QPalette::WindowText, text);
    palette.setColor(QPalette::ButtonText, text);
    palette.setColor(QPalette::Base, QColor(30, 30, 32));
    palette.setColor(QPalette::AlternateBase, QColor(38, 38, 41));
    palette.setColor(QPalette::Text, text);
    palette.setColor(QPalette::PlaceholderText, QColor(150, 150, 150));
    palette.setColor(QPalette::Highlight, QColor(48, 110, 170));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, ground);
    palette.setColor(QPalette::ToolTipText, text);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(120, 120, 120));
    QApplication::setPalette(palette);
}

} // namespace Zudunmaf::demo
