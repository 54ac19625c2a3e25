#ifndef GDM_EDITING_ATTR_ITEM_DELEGATE_H
#define GDM_EDITING_ATTR_ITEM_DELEGATE_H

#include <QStyledItemDelegate>

struct DmlAttrDef;

namespace Zudunmaf
{

class AttrFilterLWI;
class DmlAttrLWI;
class FeatureAttrLWI;

/// Edits conditions and values in the cells of a QTableWidget. The row's item stands in column 1, whichever
/// column is edited. One delegate serves every row: it keeps nothing between two calls.
///
/// A commit writes to the item and not through the model, so no itemChanged is raised. Whatever is not found
/// (an item, a definition, an editor of the fitting class) ends the operation silently and leaves the item as
/// it was. Internal: not exported.
class AttrItemDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit AttrItemDelegate(QObject *parent);
    ~AttrItemDelegate() override;

    /// Rows stand 4 pixels higher than the style would make them.
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    /// An editor that fits the kind of item and the type of its attribute; null where there is none, as for a
    /// boolean.
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override;
    void setEditorData(QWidget *editor, const QModelIndex &index) const override;
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override;
    void updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &option,
                              const QModelIndex &index) const override;

private:
    typedef void (*ConditionStep)(AttrFilterLWI &, const DmlAttrDef &, QWidget *);
    typedef void (*ValueStep)(FeatureAttrLWI &, const DmlAttrDef &, QWidget *);

    static DmlAttrLWI *attrItemFromIndex(const QModelIndex &index);
    /// Finds the row's item and its definition, and takes the step that fits the kind of item.
    static void transfer(QWidget *editor, const QModelIndex &index, ConditionStep conditionStep,
                         ValueStep valueStep);
};

} // namespace Zudunmaf

#endif
