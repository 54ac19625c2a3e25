#ifndef TVX_CELL_HINTS_H
#define TVX_CELL_HINTS_H

#include "tvx/prepared_texts.h"

#include <QAccessible>
#include <QColor>
#include <QRect>
#include <QString>

class QModelIndex;
class QPainter;
class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class AttributeFacts;
class AttributeTable;
class ChosenCounts;

/// The hints in the value column: what an attribute takes. Painted over the cells in a muted colour, so that copies,
/// sorting and result lines have none of it. Owned by the table, which calls paint() after it has painted its cells.
///
/// For a screen reader, rows on the screen have the hints as accessible data of their items. The data is set without a
/// signal, and only while a screen reader runs.
class CellHints : private QAccessible::ActivationObserver
{
public:
    enum Kind { Available, Chosen };

    CellHints(AttributeTable *table, Kind kind);
    ~CellHints() override;

    /// Sets the units of values whose cells are empty.
    void setDisplayUnits(int units) { m_displayUnits = units; }
    /// Marks attributes that have chosen conditions. The counts must outlive the object.
    void setChosenCounts(ChosenCounts *counts) { m_counts = counts; }
    /// Returns what is said of the attribute in a row, which must have a value item.
    AttributeFacts factsOf(int row) const;

    /// Returns the hint in an empty cell of the value column.
    QString textOfEmptyCell(const QTableWidgetItem &value) const { return hintOf(value).start; }

    void paint() const;
    /// Updates what a screen reader reads of a row. Does nothing if none runs, or if the row is out of range.
    void updateSpokenText(int row) const;
    /// Makes a screen reader read the current row, as the view does only when the row changes.
    void announceCurrentRow() const;

private:
    Q_DISABLE_COPY(CellHints)

    struct Hint {
        QString start;      ///< Replaces the text of an empty cell.
        QString end;        ///< At the far edge of the cell, if there is room.
        int conditions = 0; ///< Number of chosen conditions, which the far edge shows in place of `end`.
    };

    struct Colours {
        QColor mark;
        QColor hint;
    };

    void accessibilityActiveChanged(bool active) override;
    Hint hintOf(const QTableWidgetItem &value) const;
    void setSpoken(int row, int column, int role, const QString &text) const;
    QAccessibleInterface *accessibleCell(int row, int column) const;
    QString emptyChosenText(const QTableWidgetItem &value, const AttributeFacts &facts) const;
    void paintRow(QPainter *painter, const QModelIndex &index, const Colours &colours) const;
    QRect paintAtStart(QPainter *painter, QRect area, const QString &cell, const QString &hint) const;
    QRect paintAtEnd(QPainter *painter, QRect area, const QString &text) const;
    int widthOf(const QString &text) const;
    void draw(QPainter *painter, const QRect &area, const QString &text, int left) const;

    AttributeTable *m_table;
    Kind m_kind;
    ChosenCounts *m_counts = nullptr;
    int m_displayUnits = -1;
    bool m_hasScreenReader;
    mutable PreparedTexts m_texts;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
