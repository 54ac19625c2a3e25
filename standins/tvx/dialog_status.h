#ifndef TVX_DIALOG_STATUS_H
#define TVX_DIALOG_STATUS_H

#include "tvx/current_description.h"

namespace Zudunmaf
{
namespace tvx
{

class ChangeHistory;
class SelectionWidgets;

/// Updates everything that follows from the state of the dialog: counts, enabled buttons, description and result line.
/// Moves the focus off a button that becomes disabled, and changes no other state. Owned by the controller; its
/// arguments must outlive it.
class DialogStatus
{
public:
    DialogStatus(const SelectionWidgets &widgets, const ChangeHistory &history);

    void update() const;
    /// Shows a warning in place of the description, until it is empty again, and alerts a screen reader to it.
    void setWarning(const QString &warning);

private:
    void updateCounts() const;
    void updateButtons() const;
    void updateTexts() const;

    const SelectionWidgets &m_widgets;
    const ChangeHistory &m_history;
    CurrentDescription m_description;
    QString m_warning;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
