#include "tvx/dialog_status.h"

#include "gdm/items/attr_roles.h"
#include "tvx/available_table.h"
#include "tvx/change_history.h"
#include "tvx/chosen_table.h"
#include "tvx/description_label.h"
#include "tvx/live_preview.h"
#include "tvx/selection_widgets.h"
#include "tvx/text_lines.h"
#include "tvx/tvx_texts.h"

#include <QAccessible>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

/// Moves the focus of a button that becomes disabled to its table. Qt would move it to the next button, which may do
/// the opposite.
void setEnabled(QPushButton *button, bool enabled, QWidget *table)
{
    if (!enabled && button->window()->focusWidget() == button)
        table->setFocus();
    button->setEnabled(enabled);
}

void describe(QWidget *widget, const QString &description)
{
    if (widget->accessibleDescription() != description)
        widget->setAccessibleDescription(description);
}

void setText(QLabel *label, const QString &text)
{
    if (label->text() != text)
        label->setText(text);
    label->setToolTip(plainToolTip(text));
}

} // namespace

DialogStatus::DialogStatus(const SelectionWidgets &widgets, const ChangeHistory &history)
    : m_widgets(widgets)
    , m_history(history)
    , m_description(widgets)
{
}

void DialogStatus::update() const
{
    updateCounts();
    updateButtons();
    updateTexts();
}

void DialogStatus::setWarning(const QString &warning)
{
    m_warning = warning;
    updateTexts();
    describe(m_widgets.description, warning);
    QAccessibleEvent alert(m_widgets.description, QAccessible::Alert);
    if (!warning.isEmpty())
        QAccessible::updateAccessibility(&alert);
}

void DialogStatus::updateCounts() const
{
    const QString shown = textOf(texts::ShownOfTotal)
                              .arg(m_widgets.topView->visibleRowCount())
                              .arg(m_widgets.topView->rowCount());
    m_widgets.availableLabel->setText(textOf(texts::Available) + QLatin1Char(' ') + shown);
    m_widgets.chosenLabel->setText(textOf(texts::Chosen) + QLatin1Char(' ') +
                                   QString::number(m_widgets.chosenList->rowCount()));
}

void DialogStatus::updateButtons() const
{
    AvailableTable *top = m_widgets.topView;
    ChosenTable *chosen = m_widgets.chosenList;
    setEnabled(m_widgets.addButton, top->hasVisibleSelection(), top);
    setEnabled(m_widgets.removeButton, chosen->hasVisibleSelection(), chosen);
    setEnabled(m_widgets.undoButton, m_history.canUndo(), chosen);
    m_widgets.undoButton->setToolTip(plainToolTip(m_history.description()));
    setEnabled(m_widgets.clearButton, chosen->rowCount() > 0, chosen);
}

void DialogStatus::updateTexts() const
{
    AvailableTable *top = m_widgets.topView;
    ChosenTable *chosen = m_widgets.chosenList;
    describe(top, top->emptyText().shownText());
    describe(chosen,
             chosen->lastRefusal().isEmpty() ? chosen->emptyText().shownText() : chosen->lastRefusal());

    describe(m_widgets.filterText, top->emptyText().shownText());
    if (m_warning.isEmpty())
        m_description.show();
    else
        m_widgets.description->setLines(m_warning, QString(), false);
    const QString line = currentResultLine(*chosen);
    setText(m_widgets.preview, line.isEmpty() ? QString() : textOf(texts::PreviewLine).arg(line));
}

} // namespace tvx
} // namespace Zudunmaf
