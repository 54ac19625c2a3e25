#ifndef GDM_EDITING_COMBO_EDITING_H
#define GDM_EDITING_COMBO_EDITING_H

#include "gdm/items/attr_access.h"

#include <QComboBox>

namespace Zudunmaf
{

/// Creates an empty combo box that is not editable.
inline QComboBox *newComboBox(QWidget *parent)
{
    QComboBox *box = new QComboBox(parent);
    box->setEditable(false);
    box->setDuplicatesEnabled(false);
    return box;
}

/// Adds the entries of the definition's option list.
inline void addOptions(QComboBox *box, const DmlAttrDef &definition)
{
    const int count = definition.optionList ? definition.optionCount : 0;
    for (int index = 0; index < count; ++index)
        box->addItem(QString(optionEntry(definition, index)));
}

} // namespace Zudunmaf

#endif
