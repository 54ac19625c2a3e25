#ifndef TVX_BUTTON_PICTURE_H
#define TVX_BUTTON_PICTURE_H

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

class QPushButton;

namespace Zudunmaf
{
namespace tvx
{

/// Sets the icon of a button: the built-in picture of this name ("Add.ico", "Delete.ico"), or a file in the `icons`
/// search path of QDir. If there is none that can be read, sets an icon of the theme or the style and returns false.
/// The text of the button stays.
bool setButtonPicture(QPushButton *button, TvxAttributesSelectionDialog::Buttons_Enum role,
                      const QString &name);

} // namespace tvx
} // namespace Zudunmaf

#endif
