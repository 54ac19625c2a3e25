#ifndef TVX_BUTTON_PICTURE_H
#define TVX_BUTTON_PICTURE_H

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

class QPushButton;

namespace Zudunmaf
{
namespace tvx
{

/// Gives the button the picture of this file name: one of the base's own ("Add.ico", "Delete.ico"), else a
/// file in the `icons` search path of QDir. Where there is none, or none that can be read, the result is
/// false and the button gets the picture of the icon theme or of the style. Its text stays in either case.
bool setButtonPicture(QPushButton *button, TvxAttributesSelectionDialog::Buttons_Enum role,
                      const QString &name);

} // namespace tvx
} // namespace Zudunmaf

#endif
