#ifndef GDM_DIALOGS_FILL_H
#define GDM_DIALOGS_FILL_H

#include "gdm/dialogs/dialog_kind.h"
#include "gdm/dialogs/fill_rule.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/dictionary_walk.h"
#include "gdm/items/attr_access.h"

#include <QList>
#include <QStringList>
#include <QTableWidgetItem>

// What both dialogs fill the lists of the base with. A service that fails is reported with the position `here` of the
// dialog's call. Internal: not installed.
namespace Zudunmaf
{

/// Creates a row of the entity list. Its data is an int; only EntityAll, which does not fit into one, is an unsigned
/// int, and -1 as an int.
TvxDataItem *newEntity(const char *textKey, EntityMask mask);

/// Collects the rows of the group list. Returns false if the base has no dictionary, or if the walk fails.
bool collectGroups(const TvxAttributesSelectionDialog &dialog, const DialogKind &kind,
                   const SourcePosition &here, QStringList *groups);

/// Makes the items for the available table, and owns them. Call the steps in the order of their declaration, and stop
/// at the first that returns false because a service failed.
class Fill
{
public:
    Fill(TvxAttributesSelectionDialog &dialog, const DialogKind &kind);
    ~Fill();

    /// Reads whether attributes are labelled by their prompt.
    bool readLabels(const SourcePosition &here);
    /// Reads whether attributes of the group "Obsolete" are accepted.
    bool readObsolete(const SourcePosition &here);
    /// Walks the dictionary and makes an `Item` for each attribute that FillRule accepts.
    template <class Item>
    bool collect(const SourcePosition &here);

    /// Returns the items in the order of the dictionary.
    const QList<QTableWidgetItem *> &items() const { return m_items; }

private:
    Q_DISABLE_COPY(Fill)

    FillRule rule() const;
    template <class Item>
    QTableWidgetItem *newItem(const DmlAttrDef *definition) const;

    TvxAttributesSelectionDialog &m_dialog;
    const DialogKind &m_kind;
    bool m_byPrompt;
    bool m_showObsolete;
    QList<QTableWidgetItem *> m_items;
};

template <class Item>
bool Fill::collect(const SourcePosition &here)
{
    const FillRule fillRule = rule();
    // All entities in both dialogs: FillRule compares the selected mask. The base is asked for the dictionary before
    // each step.
    return walkDictionary([this] { return m_dialog.getEntityDID(); }, EntityAll, here,
                          [this, &fillRule](const DmlAttrDef *definition) {
                              if (fillRule.accepts(*definition))
                                  m_items.append(newItem<Item>(definition));
                          });
}

template <class Item>
QTableWidgetItem *Fill::newItem(const DmlAttrDef *definition) const
{
    Item *item = new Item;
    item->setDisplayPrompt(m_byPrompt);
    item->setDisplayUnits(m_dialog.displayUnits());
    item->setDmlAttribute(variantOfRecord(definition));
    return item;
}

} // namespace Zudunmaf

#endif
