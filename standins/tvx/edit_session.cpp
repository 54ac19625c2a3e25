#include "tvx/edit_session.h"

#include "tvx/attribute_table.h"
#include "tvx/cell_editor_filter.h"
#include "tvx/editor_content.h"
#include "tvx/editor_note.h"
#include "tvx/number_entry.h"
#include "tvx/option_popup.h"
#include "tvx/text_choices.h"

#include <QAbstractSpinBox>

#include <utility>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

void prepareSpinBoxes(QWidget *editor)
{
    auto boxes = editor->findChildren<QAbstractSpinBox *>();
    if (auto *box = qobject_cast<QAbstractSpinBox *>(editor))
        boxes.append(box);
    for (QAbstractSpinBox *box : std::as_const(boxes)) {
        NumberEntry::acceptEveryText(box);
        NumberEntry::stepAdaptively(box);
    }
}

} // namespace

EditSession::EditSession(AttributeTable *table)
    : QObject(table)
    , m_table(table)
{
    connect(table, &AttributeTable::editorsPlaced, this, &EditSession::placeNote);
    m_afterEvent.setSingleShot(true);
    connect(&m_afterEvent, &QTimer::timeout, this, &EditSession::eventOver);
}

void EditSession::begin(QWidget *editor, const QModelIndex &index, const QTableWidgetItem &value,
                        const QString &name)
{
    m_editor = editor;
    m_index = index;
    m_isTableHidden = false;
    prepareSpinBoxes(editor);
    if (auto *choices = TextChoices::attach(editor, value)) {
        connect(this, &EditSession::ended, choices, &QWidget::hide);
        connect(m_table, &AttributeTable::editorsPlaced, choices, &TextChoices::place);
    }
    m_popup = OptionPopup::attach(editor);
    if (m_popup)
        connect(m_popup, &OptionPopup::picked, this, &EditSession::entered);
    m_filter = new CellEditorFilter(editor, name);
    connect(m_filter, &CellEditorFilter::entered, this, &EditSession::entered);
    connect(m_filter, &CellEditorFilter::left, this, &EditSession::left);
    connect(m_filter, &CellEditorFilter::focusMoved, this, &EditSession::noteFocus);
    // After the filter, whose names for a screen reader are part of the descriptions.
    m_content = new EditorContent(editor, value);
    connect(m_content, &EditorContent::edited, this, &EditSession::noteEdit);
}

void EditSession::openPopupAfterClick()
{
    if (m_popup)
        m_popup->openAfterRelease(m_table->viewport());
}

void EditSession::end()
{
    forgetOldRefusal();
    m_editor = nullptr;
    m_content = nullptr;
    m_filter = nullptr;
    m_isTableHidden = false;
    if (m_note)
        m_note->hide();
    Q_EMIT ended();
}

QModelIndex EditSession::index() const
{
    return m_editor ? QModelIndex(m_index) : QModelIndex();
}

bool EditSession::contains(const QWidget *widget) const
{
    return m_editor && (widget == m_editor || m_editor->isAncestorOf(widget));
}

bool EditSession::isChanged() const
{
    return m_content && m_content->isChanged();
}

bool EditSession::isRefused() const
{
    return m_content && m_content->isRefused();
}

bool EditSession::doesEnterStore() const
{
    return isChanged() || (m_content && m_content->isConfirmable());
}

bool EditSession::prepareCommit()
{
    if (isRefused()) {
        m_lastRefusal = m_content->refusalSentences();
        m_isRefusalNew = true;
        m_afterEvent.start();
        return false;
    }
    // An unchanged editor is not interpreted: a spin box may write its number differently than it was set.
    if (!isChanged())
        return false;
    m_content->interpret();
    return isChanged();
}

void EditSession::restart(const QTableWidgetItem &value)
{
    if (!m_content)
        return;
    m_content->restart(value);
    m_filter->install();
}

void EditSession::confirm()
{
    if (m_content)
        m_content->confirm();
}

void EditSession::showRefusal()
{
    m_content->selectRefused();
    showNote(m_content->refusal());
    m_content->announceRefused();
}

void EditSession::forgetOldRefusal()
{
    if (!m_isRefusalNew)
        forgetRefusal();
}

void EditSession::tableHidden()
{
    if (!m_editor)
        return;
    m_isTableHidden = true;
    m_afterEvent.start();
}

void EditSession::noteEdit()
{
    if (!m_editor)
        return;
    updateNote();
    Q_EMIT edited();
}

void EditSession::noteFocus()
{
    if (isRefused())
        updateNote();
}

/// Shows why the entry is refused. The beginning of a number within the limits is refused only when it is entered, or
/// when the focus goes to the other box.
void EditSession::updateNote()
{
    showNote(m_content->isUnfinished() ? QString() : m_content->refusal());
}

void EditSession::showNote(const QString &message)
{
    if (!m_note)
        m_note = new EditorNote(m_table->viewport());
    m_note->setMessage(message);
    placeNote();
    m_content->describeRefused(message);
}

void EditSession::placeNote()
{
    const QWidget *box = m_content ? m_content->refusedBox() : nullptr;
    if (box && m_note && !m_note->isHidden())
        showBeside(m_note, *box);
}

void EditSession::eventOver()
{
    m_isRefusalNew = false;
    if (m_isTableHidden)
        Q_EMIT hiddenTooLong();
}

} // namespace tvx
} // namespace Zudunmaf
