#ifndef TVX_EMPTY_TABLE_GUIDE_H
#define TVX_EMPTY_TABLE_GUIDE_H

#include "tvx/empty_table_advice.h"

#include <QObject>

namespace Zudunmaf
{
namespace tvx
{

/// Leads the user out of an empty available table: shows the reason and the button, and changes the criteria on
/// request, so that the dialog decides as always which rows are visible. Owned by the controller.
class EmptyTableGuide : public QObject
{
    Q_OBJECT

public:
    /// The arguments must outlive the object.
    EmptyTableGuide(const SelectionWidgets &widgets, const FilterCriteria &criteria, QObject *parent);

    /// Updates the reason and the button.
    void update();
    /// Makes the first match the filter text, and selects all entities and groups if it is not visible then. Does
    /// nothing without a match.
    void showFirstMatch();

private:
    void useButton();
    void updateButton(const EmptyTableAdvice::Advice &advice);
    void widen();
    bool makeLabelCurrent(const QString &label);

    const SelectionWidgets &m_widgets;
    EmptyTableAdvice m_advice;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
