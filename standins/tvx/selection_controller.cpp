#include "tvx/selection_controller.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "tvx/batch_update.h"
#include "tvx/change_history.h"
#include "tvx/chosen_counts.h"
#include "tvx/chosen_table.h"
#include "tvx/empty_table_guide.h"
#include "tvx/escape_guard.h"
#include "tvx/filter_line_keys.h"
#include "tvx/name_column_width.h"
#include "tvx/quick_entry.h"
#include "tvx/row_menu.h"
#include "tvx/row_mover.h"
#include "tvx/row_sorter.h"
#include "tvx/tvx_texts.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

#include <algorithm>

namespace Zudunmaf
{
namespace tvx
{

SelectionController::SelectionController(int did, TvxAttributesSelectionDialog *dialog)
    : QObject(dialog)
    , m_dialog(dialog)
    , m_widgets(dialog)
    , m_criteria(did, m_widgets)
    , m_history(new ChangeHistory(m_widgets.chosenList, this))
    , m_mover(new RowMover(dialog, m_widgets.topView, m_widgets.chosenList, m_history, this))
    , m_guide(new EmptyTableGuide(m_widgets, m_criteria, this))
    , m_escapeGuard(new EscapeGuard(*m_widgets.chosenList, this))
    , m_status(m_widgets, *m_history)
{
    dialog->installEventFilter(this);
    auto *keys = new FilterLineKeys(m_widgets.filterText, m_widgets.topView, m_mover, this);
    connect(keys, &FilterLineKeys::enteredWithoutRows, m_guide, &EmptyTableGuide::showFirstMatch);
    new QuickEntry(m_widgets, m_mover, this);
    m_widgets.entityList->installEventFilter(this);
    m_widgets.groupList->installEventFilter(this);
}

SelectionController::~SelectionController()
{
    m_widgets.chosenList->dropEditing();
}

void SelectionController::connectWidgets()
{
    if (m_isConnected)
        return;
    m_isConnected = true;
    connectCriteria();
    connectButtons();
    connectHistory();
    connectTables();
    connectShortcuts();
    connect(qApp, &QApplication::focusChanged, this, &SelectionController::refresh);
    refresh();
}

void SelectionController::connectCriteria()
{
    const auto indexChanged = QOverload<int>::of(&QComboBox::currentIndexChanged);
    connect(m_widgets.entityList, indexChanged, this, &SelectionController::applyCriteria);
    connect(m_widgets.groupList, indexChanged, this, &SelectionController::applyCriteria);
    connect(m_widgets.filterText, &QLineEdit::textChanged, m_widgets.chosenList,
            &ChosenTable::forgetOldRefusal);
    connect(m_widgets.filterText, &QLineEdit::textChanged, this, &SelectionController::applyCriteria);
}

void SelectionController::connectButtons()
{
    connect(m_widgets.addButton, &QPushButton::clicked, m_mover, &RowMover::addSelected);
    connect(m_widgets.removeButton, &QPushButton::clicked, m_mover, &RowMover::removeSelected);
    connect(m_widgets.undoButton, &QPushButton::clicked, m_mover, &RowMover::undo);
    connect(m_widgets.clearButton, &QPushButton::clicked, m_mover, &RowMover::removeAll);
    connect(m_widgets.buttonBox, &QDialogButtonBox::accepted, this, &SelectionController::acceptDialog);
    connect(m_widgets.buttonBox, &QDialogButtonBox::rejected, m_dialog, &QDialog::reject);
    connect(m_dialog, &QDialog::finished, m_escapeGuard, &EscapeGuard::forgetRows);
    // For a host that calls accept() or reject() itself. Its own slots are connected later, and find the stored value.
    connect(m_dialog, &QDialog::accepted, this, [this] { m_widgets.chosenList->finishAcceptedEditing(); });
    connect(m_dialog, &QDialog::rejected, this, [this] { m_widgets.chosenList->dropEditing(); });
}

void SelectionController::connectTables()
{
    AvailableTable *top = m_widgets.topView;
    ChosenTable *chosen = m_widgets.chosenList;
    connect(top, &AvailableTable::rowsActivated, m_mover, &RowMover::addSelected);
    connect(chosen, &ChosenTable::rowsDropped, m_mover, &RowMover::addSelected);
    connect(chosen, &ChosenTable::removalRequested, m_mover, &RowMover::removeSelected);
    connect(top, &AvailableTable::rowsDropped, m_mover, &RowMover::removeSelected);
    connect(chosen->menu(), &RowMenu::triggered, this, &SelectionController::refresh);

    auto *counts = new ChosenCounts(chosen);
    top->hints().setChosenCounts(counts);
    connect(m_mover, &RowMover::rowsMoved, top->viewport(), [top, counts] {
        counts->invalidate();
        top->viewport()->update();
    });
    NameColumnWidth::link(top->nameColumnWidth(), chosen->nameColumnWidth());
    connect(top, &AvailableTable::enteredWithoutRows, m_guide, &EmptyTableGuide::showFirstMatch);
    connect(top, &AvailableTable::rowsHiddenOrShown, this, &SelectionController::refresh);
    connect(top, &AvailableTable::itemSelectionChanged, this, &SelectionController::refresh);
    connect(top, &AvailableTable::currentItemChanged, chosen, &ChosenTable::forgetOldRefusal);
    connect(top, &AvailableTable::currentItemChanged, this, &SelectionController::refresh);
    connect(chosen, &ChosenTable::itemSelectionChanged, this, &SelectionController::refresh);
    connect(chosen, &ChosenTable::currentItemChanged, this, &SelectionController::refresh);
    connect(chosen, &ChosenTable::editingStarted, this, &SelectionController::refresh);
    connect(chosen, &ChosenTable::editorChanged, this, &SelectionController::refresh);
    connect(chosen, &ChosenTable::editingEnded, this, &SelectionController::refresh);
    connect(m_mover, &RowMover::hostAddsRow, m_escapeGuard, &EscapeGuard::rememberRow);
    connect(m_escapeGuard, &EscapeGuard::warningChanged, this,
            [this] { m_status.setWarning(m_escapeGuard->warning()); });
    connect(m_mover, &RowMover::rowsMoved, this, &SelectionController::refresh);
    connect(m_mover, &RowMover::rowsMoved, chosen->sorter(), &RowSorter::valuesChanged);
    connect(m_mover, &RowMover::userMovedRows, this, [this] { endSearch(m_widgets.filterText); });
}

void SelectionController::connectHistory()
{
    const ChosenTable *chosen = m_widgets.chosenList;
    connect(chosen, &ChosenTable::valueAboutToChange, m_history, [this, chosen](QTableWidgetItem *value) {
        const QString name = chosen->item(value->row(), AttributeTable::NameColumn)->text();
        m_history->beginChange({value}, textOf(texts::StepEdit).arg(name));
    });
    connect(chosen, &ChosenTable::valueChanged, m_history, &ChangeHistory::endChange);
    connect(chosen->menu(), &RowMenu::aboutToRun, m_history, [this, chosen](const QAction *action) {
        m_history->beginChange(chosen->menu()->items(), action->text().remove(QLatin1Char('&')));
    });
    connect(chosen->menu(), &RowMenu::triggered, m_history, &ChangeHistory::endChange);
}

void SelectionController::connectShortcuts()
{
    auto *find = new QShortcut(QKeySequence::Find, m_dialog);
    connect(find, &QShortcut::activated, this, [this] {
        m_widgets.filterText->setFocus(Qt::ShortcutFocusReason);
        m_widgets.filterText->selectAll();
    });
    auto *undo = new QShortcut(QKeySequence::Undo, m_dialog);
    connect(undo, &QShortcut::activated, m_mover, &RowMover::undo);
    auto *redo = new QShortcut(QKeySequence(QStringLiteral("Ctrl+Shift+Z")), m_dialog);
    connect(redo, &QShortcut::activated, m_mover, &RowMover::redo);
}

void SelectionController::acceptDialog()
{
    if (m_widgets.chosenList->tryFinishEditing())
        m_dialog->accept();
}

void SelectionController::setDisplayUnits(int units)
{
    m_widgets.chosenList->finishEditing();
    m_displayUnits = units;
    m_widgets.topView->hints().setDisplayUnits(units);
    m_widgets.chosenList->hints().setDisplayUnits(units);
    m_criteria.expectFill();
}

void SelectionController::fillAvailable(const QList<QTableWidgetItem *> &items)
{
    m_widgets.topView->fill(items);
    m_criteria.rememberFill();
    fitNameColumns();
    refresh();
}

void SelectionController::fitNameColumns()
{
    const int width = m_widgets.topView->wantedNameWidth();
    // A narrowed fill has only some of the names, and the chosen table may have the others.
    m_nameWidth = m_criteria.wasFillNarrowed() ? std::max(m_nameWidth, width) : width;
    m_widgets.topView->nameColumnWidth()->fit(m_nameWidth);
    m_widgets.chosenList->nameColumnWidth()->fit(m_nameWidth);
}

void SelectionController::applyCriteria()
{
    m_widgets.chosenList->finishEditing();
    m_widgets.topView->setHighlightedText(m_criteria.text());
    {
        const BatchUpdate batch(m_widgets.topView);
        if (m_criteria.needsRefill())
            refill();
        m_dialog->filterAttributeList();
    }
    refresh();
}

/// Fills the available table again. Without groups the walk of the dictionary has failed: then all lists are filled,
/// and the entity that the user has just selected is selected again.
void SelectionController::refill()
{
    if (m_widgets.groupList->count() > 0) {
        m_dialog->setDisplayUnits(m_displayUnits);
        return;
    }
    const int entity = m_widgets.entityList->currentIndex();
    m_dialog->buildInitialLists();
    const QSignalBlocker blocker(m_widgets.entityList);
    if (entity >= 0 && entity < m_widgets.entityList->count())
        m_widgets.entityList->setCurrentIndex(entity);
}

bool SelectionController::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != m_dialog) {
        // A list without the focus ignores the wheel.
        const auto *list = static_cast<QWidget *>(watched);
        return event->type() == QEvent::Wheel && !list->hasFocus();
    }
    switch (event->type()) {
    case QEvent::KeyPress: {
        // QDialog would click the default button after an Enter that no widget has accepted.
        const auto *key = static_cast<QKeyEvent *>(event);
        return key->key() == Qt::Key_Return || key->key() == Qt::Key_Enter || m_escapeGuard->holdsBack(*key);
    }
    case QEvent::Show:
        if (!event->spontaneous())
            m_escapeGuard->rememberRows();
        break;
    case QEvent::FontChange:
        fitToFont();
        break;
    default:
        break;
    }
    return QObject::eventFilter(watched, event);
}

void SelectionController::fitToFont()
{
    fitNameColumns();
    m_widgets.fitToFont();
}

void SelectionController::refresh()
{
    if (!m_isConnected || m_mover->isRemoving())
        return;
    m_guide->update();
    m_status.update();
}

} // namespace tvx
} // namespace Zudunmaf
