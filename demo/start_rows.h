#ifndef DEMO_START_ROWS_H
#define DEMO_START_ROWS_H

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QList>
#include <QString>

#include <memory>
#include <vector>

class QTableWidgetItem;
struct DmlAttrDef;

namespace Zudunmaf
{

class DmlAttrLWI;

namespace demo
{

/// Rows for the chosen list, read from a UTF-8 file with the lines that the program prints. Empty lines do
/// not count. The items are clones of those on offer, so they come with the dialog's label and units.
class StartRows
{
public:
    /// The dialog offers the attributes and must outlive this object.
    explicit StartRows(const TvxAttributesSelectionDialog &dialog);
    virtual ~StartRows();

    /// Null where every line was taken; else one line with file, number and what is wrong with it.
    QString read(const QString &fileName);
    /// The rows in the order of the file, owned by this object.
    QList<QTableWidgetItem *> items() const;

protected:
    /// Makes a row of one line with add(). Null, or what is wrong.
    virtual QString takeLine(const QString &line) = 0;

    /// The offered item whose attribute has this name or, failing that, this label; null if there is none.
    const DmlAttrLWI *find(const QString &name) const;
    /// A new last row for an offered item.
    DmlAttrLWI &add(const DmlAttrLWI &offered);
    bool holds(const DmlAttrLWI &offered) const;

    static const DmlAttrDef &definitionOf(const DmlAttrLWI &item);
    static QString unknown(const QString &name);

private:
    Q_DISABLE_COPY(StartRows)

    QList<QTableWidgetItem *> m_offered;
    std::vector<std::unique_ptr<DmlAttrLWI>> m_items;
};

} // namespace demo
} // namespace Zudunmaf

#endif
