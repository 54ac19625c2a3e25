#include "tvx/button_picture.h"

#include "tvx/button_glyph.h"

#include <QIcon>
#include <QPixmap>
#include <QPushButton>
#include <QStyle>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

QIcon ownPicture(QPushButton *button, const QString &name)
{
    if (name == QLatin1String("Add.ico"))
        return QIcon(new ButtonGlyph(ButtonGlyph::Plus, button));
    if (name == QLatin1String("Delete.ico"))
        return QIcon(new ButtonGlyph(ButtonGlyph::Minus, button));
    return QIcon();
}

QIcon filePicture(const QString &name)
{
    const QString path = QLatin1String("icons:") + name;
    // QIcon is not null for a file that is not a picture; QPixmap is.
    if (QPixmap(path).isNull())
        return QIcon();
    return QIcon(path);
}

QIcon substitute(const QPushButton *button, bool adds)
{
    const QIcon themed = QIcon::fromTheme(QLatin1String(adds ? "list-add" : "list-remove"));
    if (!themed.isNull())
        return themed;
    return button->style()->standardIcon(adds ? QStyle::SP_ArrowDown : QStyle::SP_ArrowUp, nullptr, button);
}

} // namespace

bool setButtonPicture(QPushButton *button, TvxAttributesSelectionDialog::Buttons_Enum role,
                      const QString &name)
{
    QIcon picture = ownPicture(button, name);
    if (picture.isNull())
        picture = filePicture(name);
    const bool found = !picture.isNull();
    button->setIcon(found ? picture : substitute(button, role == TvxAttributesSelectionDialog::Buttons_Add));
    return found;
}

} // namespace tvx
} // namespace Zudunmaf
