#include "tvx/dialog_status.h"

#include "tvx/attribute_item.h"
#include "tvx/available_table.h"
#include "tvx/change_history.h"
#include "tvx/chosen_table.h"
#include "tvx/filter_criteria.h"
#include "tvx/live_preview.h"
#include "tvx/number_entry.h"
#include "tvx/selection_widgets.h"
#include "tvx/tvx_texts.h"

#include <QAbstractSpinBox>
#include <QLabel>
#include <QPushButton>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

QString separator()
{
    return QStringLiteral("  \u00b7  "); // a middle dot
}

QString typeText(int type)
{
    switch (type) {
    case DmlAttrBoolean:
        return textOf(texts::TypeBoolean);
    case DmlAttrText:
        return textOf(texts::TypeText);
    case DmlAttrOption:
        return textOf(texts::TypeOption);
    case DmlAttrInteger:
        return textOf(texts::TypeInteger);
    case DmlAttrFloat:
        return textOf(texts::TypeFloat);
    default:
        return QString();
    }
}

/// The tool tip of a value is a whole description, one fact a line. That of a condition is not: it is empty, or the
/// prompt.
QString descriptionOf(const QTableWidgetItem &item)
{
    QStringList parts;
    if (isCondition(item)) {
        parts = QStringList{nameOf(item), item.data(DmlAttrPromptRole).toString(),
                            typeText(item.data(DmlAttrTypeRole).toInt())};
        if (parts[0] == parts[1])
            parts.removeFirst();
    } else {
        const QStringList lines = item.toolTip().split(QLatin1Char('\n'));
        for (const QString &line : lines)
            parts.append(line.simplified());
    }
    parts.removeAll(QString());
    return parts.join(separator());
}

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
    label->setToolTip(text);
}

} // namespace

DialogStatus::DialogStatus(const SelectionWidgets &widgets, const FilterCriteria &criteria,
                           const ChangeHistory &history)
    : m_widgets(widgets)
    , m_criteria(criteria)
    , m_history(history)
{
}

void DialogStatus::update() const
{
    updateCounts();
    updateButtons();
    updateTexts();
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
    m_widgets.undoButton->setToolTip(m_history.description());
    setEnabled(m_widgets.clearButton, chosen->rowCount() > 0, chosen);
}

void DialogStatus::updateTexts() const
{
    AvailableTable *top = m_widgets.topView;
    ChosenTable *chosen = m_widgets.chosenList;
    top->emptyText().setText(emptyAvailableText());
    describe(top, top->emptyText().shownText());
    describe(chosen,
             chosen->lastRefusal().isEmpty() ? chosen->emptyText().shownText() : chosen->lastRefusal());

    setText(m_widgets.description, describedText());
    const QString line = currentResultLine(*chosen);
    setText(m_widgets.preview, line.isEmpty() ? QString() : textOf(texts::PreviewLine).arg(line));
}

QString DialogStatus::emptyAvailableText() const
{
    if (m_criteria.dictionary() < 0)
        return textOf(texts::NoDictionary);
    if (m_criteria.isFillMissing() && m_widgets.topView->rowCount() == 0)
        return textOf(texts::NotRead);
    return textOf(m_criteria.isNarrowed() ? texts::NothingMatches : texts::NothingLeft);
}

QString DialogStatus::describedText() const
{
    const ChosenTable *chosen = m_widgets.chosenList;
    // focusWidget() of the window keeps its answer while a menu is open.
    const bool inChosen = chosen->openEditor() || chosen->window()->focusWidget() == chosen;
    const QTableWidgetItem *current = inChosen ? chosen->rowItem(chosen->currentRow())
                                               : m_widgets.topView->rowItem(m_widgets.topView->currentRow());
    if (!current)
        return chosen->lastRefusal();
    QStringList parts = {chosen->lastRefusal(), descriptionOf(*current), limitsOfEditor()};
    parts.removeAll(QString());
    return parts.join(separator());
}

QString DialogStatus::limitsOfEditor() const
{
    const QWidget *editor = m_widgets.chosenList->openEditor();
    if (!editor)
        return QString();
    const auto *box = qobject_cast<const QAbstractSpinBox *>(editor);
    if (!box)
        box = editor->findChild<QAbstractSpinBox *>();
    if (!box)
        return QString();
    const NumberEntry entry(*box);
    return textOf(texts::Limits).arg(entry.minimum(), entry.maximum());
}

} // namespace tvx
} // namespace Zudunmaf
