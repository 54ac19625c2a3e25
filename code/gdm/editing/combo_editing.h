#ifndef GDM_EDITING_COMBO_EDITING_H
#define GDM_EDITING_COMBO_EDITING_H

#include "gdm/items/attr_access.h"

#include <QComboBox>

namespace Zudunmaf
{

/// A combo box that offers entries and takes no others, still empty.
inline QComboBox *newComboBox(QWidget *parent)
{
    QComboBox *box = new QComboBox(parent);
    box->setEditable(false);
    box->setDuplicatesEnabled(false);
    return box;
}

/// Adds every entry of the definition's option list, in its order.
inline void addOptions(QComboBox *box, const DmlAttrDef &definition)
{
    const int count = definition.optionList ? definition.optionCount : 0;
    for (int index = 0; index < count; ++index)
        box->addItem(QString(optionEntry(definition, index)));
}

} // namespace Zudunmaf

#endif
