#include "tvx/tvx_control.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "tvx/row_mover.h"
#include "tvx/selection_controller.h"

namespace Zudunmaf
{
namespace tvx
{

bool addChosen(TvxAttributesSelectionDialog &dialog, const QTableWidgetItem &item)
{
    auto *controller = dialog.findChild<SelectionController *>(QString(), Qt::FindDirectChildrenOnly);
    return controller && controller->mover().addCopyOf(item);
}

} // namespace tvx
} // namespace Zudunmaf
