#include "tvx/choice_list.h"

namespace Zudunmaf
{
namespace tvx
{

ChoiceList::ChoiceList(QWidget *parent)
    : QComboBox(parent)
{
    // The size policies of the box that go by this length alone build the popup at once.
    setMinimumContentsLength(12);
    setMaxVisibleItems(20);
}

} // namespace tvx
} // namespace Zudunmaf
