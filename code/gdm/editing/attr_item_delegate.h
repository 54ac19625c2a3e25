#ifndef GDM_EDITING_ATTR_ITEM_DELEGATE_H
#define GDM_EDITING_ATTR_ITEM_DELEGATE_H

#include <QStyledItemDelegate>

struct DmlAttrDef;

namespace Zudunmaf
{

class AttrFilterLWI;
class DmlAttrLWI;
class FeatureAttrLWI;

/// Edits conditions and values in a QTableWidget. The edited item is that of column 1, for both columns. The delegate
/// has no state between two calls.
///
/// A commit writes to the item and not through the model, so QTableWidget::itemChanged() is not emitted. If the item,
/// its definition or an editor of the right class is missing, a function does nothing. Internal: not exported.
class AttrItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit AttrItemDelegate(QObject *parent);
    ~AttrItemDelegate() override;

    /// Returns the size hint of the style plus 4 pixels of height.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// Returns an editor for the kind of item and the type of its attribute; null if there is none, as for a boolean.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    typedef void (*ConditionFunction)(AttrFilterLWI &, const DmlAttrDef &, QWidget *);
    typedef void (*ValueFunction)(FeatureAttrLWI &, const DmlAttrDef &, QWidget *);

    static DmlAttrLWI *attrItemFromIndex(const QModelIndex &index);
    /// Calls the function for the kind of the row's item.
    static void callForItem(QWidget *editor, const QModelIndex &index, ConditionFunction conditionFunction,
                            ValueFunction valueFunction);
};

} // namespace Zudunmaf

#endif
