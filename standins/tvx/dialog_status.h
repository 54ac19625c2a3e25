#ifndef TVX_DIALOG_STATUS_H
#define TVX_DIALOG_STATUS_H

#include <QString>

class QTableWidgetItem;

namespace Zudunmaf
{
namespace tvx
{

class FilterCriteria;
class RowMover;
class SelectionWidgets;

/// Brings everything that depends on the state of the dialog up to date: counts, which buttons can be
/// pressed, the texts in tables without rows, description and preview. It reads that state and changes
/// nothing of it, but that the keyboard goes from a button that cannot be pressed any more to its table.
/// What it is made of must outlive it.
class DialogStatus
{
public:
    DialogStatus(const SelectionWidgets &widgets, const FilterCriteria &criteria, const RowMover &mover);

    void update() const;

private:
    void updateCounts() const;
    void updateButtons() const;
    void updateTexts() const;
    QString emptyAvailableText() const;
    QString describedText() const;
    QString limitsOfEditor() const;

    const SelectionWidgets &m_widgets;
    const FilterCriteria &m_criteria;
    const RowMover &m_mover;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
