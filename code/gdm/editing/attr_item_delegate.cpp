#include "gdm/editing/attr_item_delegate.h"

#include "gdm/editing/condition_editing.h"
#include "gdm/editing/value_editing.h"
#include "gdm/items/attr_access.h"
#include "gdm/items/attr_filter_lwi.h"
#include "gdm/items/feature_attr_lwi.h"

#include <QTableWidget>

namespace Zudunmaf
{

namespace
{

const DmlAttrDef *definitionOf(const DmlAttrLWI *item)
{
    return item ? definitionIn(item->dmlAttribute()) : nullptr;
}

} // namespace

AttrItemDelegate::AttrItemDelegate(QObject *parent)
    : QStyledItemDelegate(parent)
{
}

AttrItemDelegate::~AttrItemDelegate() = default;

QSize AttrItemDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QSize size = QStyledItemDelegate::sizeHint(option, index);
    return QSize(size.width(), size.height() + 4);
}

DmlAttrLWI *AttrItemDelegate::attrItemFromIndex(const QModelIndex &index)
{
    const QAbstractItemModel *model = index.model();
    if (!model)
        return nullptr;
    QObject *owner = static_cast<const QObject *>(model)->parent();
    if (!owner || !owner->inherits("QTableWidget") || index.row() < 0)
        return nullptr;
    return dynamic_cast<DmlAttrLWI *>(static_cast<QTableWidget *>(owner)->item(index.row(), 1));
}

void AttrItemDelegate::callForItem(QWidget *editor, const QModelIndex &index,
                                   ConditionFunction conditionFunction, ValueFunction valueFunction)
{
    DmlAttrLWI *item = editor ? attrItemFromIndex(index) : nullptr;
    const DmlAttrDef *definition = definitionOf(item);
    if (!definition)
        return;
    if (item->itemType() == DmlAttrLWI::ItemType_AttrFilter) {
        if (AttrFilterLWI *filterItem = dynamic_cast<AttrFilterLWI *>(item))
            conditionFunction(*filterItem, *definition, editor);
    } else if (item->itemType() == DmlAttrLWI::ItemType_FeatureAttr) {
        if (FeatureAttrLWI *featureItem = dynamic_cast<FeatureAttrLWI *>(item))
            valueFunction(*featureItem, *definition, editor);
    }
}

QWidget *AttrItemDelegate::createEditor(QWidget *parent, const QStyleOptionViewItem &,
                                        const QModelIndex &index) const
{
    DmlAttrLWI *item = attrItemFromIndex(index);
    const DmlAttrDef *definition = definitionOf(item);
    if (!definition)
        return nullptr;
    switch (item->itemType()) {
    case DmlAttrLWI::ItemType_AttrFilter:
        return newConditionEditor(*definition, parent);
    case DmlAttrLWI::ItemType_FeatureAttr:
        return newValueEditor(*definition, parent);
    default:
        return nullptr;
    }
}

void AttrItemDelegate::setEditorData(QWidget *editor, const QModelIndex &index) const
{
    callForItem(editor, index, loadCondition, loadValue);
}

void AttrItemDelegate::setModelData(QWidget *editor, QAbstractItemModel *, const QModelIndex &index) const
{
    callForItem(editor, index, storeCondition, storeValue);
}

void AttrItemDelegate::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                                            const QModelIndex &index) const
{
    QStyledItemDelegate::updateEditorGeometry(editor, option, index);
}

} // namespace Zudunmaf
