#include "base/dialog_driver.h"

#include "gdm/host/gen_services.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QWindow>

#include <algorithm>

namespace Zudunmaf::hostcheck
{

namespace
{

constexpr int PatienceInMs = 5000;

QString nameOf(const QTableWidgetItem *item)
{
    return item ? item->data(DmlAttrNameRole).toString() : QString();
}

template <class Dialog>
class Watched : public Dialog
{
public:
    explicit Watched(int dictionary)
        : Dialog(dictionary)
    {
    }

    void filterAttributeList() override
    {
        ++calls.filterings;
        Dialog::filterAttributeList();
    }
    void addButtonClickedCB(QTableWidgetItem *item) override
    {
        calls.added << nameOf(item);
        Dialog::addButtonClickedCB(item);
    }
    void removeButtonClickedCB(QTableWidgetItem *item) override
    {
        calls.removed << nameOf(item);
        Dialog::removeButtonClickedCB(item);
    }

    Calls calls;
};

template <class Dialog>
std::unique_ptr<TvxAttributesSelectionDialog> newDialog(int dictionary, const Calls *&calls)
{
    auto dialog = std::make_unique<Watched<Dialog>>(dictionary);
    calls = &dialog->calls;
    return dialog;
}

template <class Parent>
bool isInside(const QWidget *widget)
{
    for (const QWidget *parent = widget->parentWidget(); parent; parent = parent->parentWidget()) {
        if (qobject_cast<const Parent *>(parent))
            return true;
    }
    return false;
}

QAbstractItemModel *modelOf(const QWidget *list)
{
    if (const auto *box = qobject_cast<const QComboBox *>(list))
        return box->model();
    const auto *view = qobject_cast<const QAbstractItemView *>(list);
    return view ? view->model() : nullptr;
}

} // namespace

QString messageText(const char *key)
{
    return QString::fromLocal8Bit(gen__nls_nlst(key));
}

DialogDriver::DialogDriver(const Settings &settings, Kind kind)
    : m_kind(kind)
{
    m_dialog = kind == Kind::Filter ? newDialog<AttributesFilterDialog>(settings.dictionary, m_calls)
                                    : newDialog<FeatureAttributesDialog>(settings.dictionary, m_calls);
    m_dialog->resize(900, 700);
    m_dialog->show();
    m_dialog->activateWindow();
    if (!QTest::qWaitForWindowActive(m_dialog.get(), PatienceInMs))
        notCheckable("the window does not become active");
}

QTableWidget *DialogDriver::topView() const
{
    for (const QTableWidgetItem *item : m_dialog->getTopListItems(false)) {
        if (item && item->tableWidget())
            return item->tableWidget();
    }
    notCheckable("no attribute is available " + where());
}

QTableWidget *DialogDriver::chosenList() const
{
    for (QTableWidget *table : m_dialog->findChildren<QTableWidget *>()) {
        if (table != topView())
            return table;
    }
    notCheckable("there is no second QTableWidget");
}

QStringList DialogDriver::chosenNames() const
{
    const QList<QTableWidgetItem *> items = m_dialog->getChosenList();
    QStringList names;
    names.reserve(items.size());
    for (const QTableWidgetItem *item : items)
        names << nameOf(item);
    return names;
}

QStringList DialogDriver::availableNames(bool visibleOnly) const
{
    QStringList names;
    for (const QTableWidgetItem *item : m_dialog->getTopListItems(false)) {
        if (item && item->tableWidget() && !(visibleOnly && item->tableWidget()->isRowHidden(item->row())))
            names << nameOf(item);
    }
    names.sort();
    return names;
}

void DialogDriver::press(int key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_dialog->windowHandle(), Qt::Key(key), modifiers);
    QCoreApplication::processEvents();
}

void DialogDriver::type(const QString &ascii) const
{
    for (const QChar character : ascii)
        QTest::keyClick(m_dialog->windowHandle(), character.toLatin1());
    QCoreApplication::processEvents();
}

void DialogDriver::click(QWidget *widget) const
{
    QTest::mouseClick(m_dialog->windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      widget->mapTo(m_dialog.get(), widget->rect().center()));
    QCoreApplication::processEvents();
}

void DialogDriver::clickRow(QTableWidget *table, int row, Qt::KeyboardModifiers modifiers,
                            Qt::MouseButton button) const
{
    table->scrollToItem(table->item(row, 0));
    const QPoint position = table->visualItemRect(table->item(row, 0)).center();
    QTest::mouseClick(m_dialog->windowHandle(), button, modifiers,
                      table->viewport()->mapTo(m_dialog.get(), position));
    QCoreApplication::processEvents();
}

void DialogDriver::setFilterText(const QString &ascii)
{
    const QList<QLineEdit *> lines =
        m_filterLine ? QList<QLineEdit *>{m_filterLine} : m_dialog->findChildren<QLineEdit *>();
    for (QLineEdit *line : lines) {
        if (!line->isVisible() || line->isReadOnly() || isInside<QTableWidget>(line))
            continue;
        click(line);
        press(Qt::Key_A, Qt::ControlModifier);
        press(Qt::Key_Delete);
        type(ascii);
        if (m_filterLine || m_dialog->getUserFilterText() == ascii) {
            m_filterLine = line;
            return;
        }
    }
    notCheckable("no QLineEdit sets the filter text");
}

QWidget *DialogDriver::listWith(const QString &rowText) const
{
    for (QWidget *list : m_dialog->findChildren<QWidget *>()) {
        const QAbstractItemModel *model = list->isVisible() ? modelOf(list) : nullptr;
        if (model && !qobject_cast<QTableWidget *>(list) &&
            !model->match(model->index(0, 0), Qt::DisplayRole, rowText, 1, Qt::MatchExactly).isEmpty())
            return list;
    }
    notCheckable("no list has a row " + rowText.toStdString());
}

int DialogDriver::rowCount(const QWidget *list)
{
    return modelOf(list)->rowCount();
}

void DialogDriver::selectRow(QWidget *list, int row) const
{
    list->setFocus(Qt::TabFocusReason);
    press(Qt::Key_Home);
    for (int step = 0; step < row; ++step)
        press(Qt::Key_Down);
}

void DialogDriver::clickWhatChanges(QAbstractButton *&button, const QString &word, const std::string &what)
{
    const qsizetype before = m_dialog->getChosenList().size();
    QList<QAbstractButton *> buttons = m_dialog->findChildren<QAbstractButton *>();
    // The likely buttons first.
    const auto isLikely = [&word](const QAbstractButton *candidate) {
        const QString texts = candidate->objectName() + candidate->text() + candidate->toolTip();
        return texts.contains(word, Qt::CaseInsensitive);
    };
    std::stable_partition(buttons.begin(), buttons.end(), isLikely);
    if (button)
        buttons = {button};
    for (QAbstractButton *candidate : buttons) {
        if (!candidate->isVisible() || !candidate->isEnabled() || isInside<QDialogButtonBox>(candidate) ||
            isInside<QLineEdit>(candidate) || isInside<QAbstractItemView>(candidate))
            continue;
        click(candidate);
        if (m_dialog->getChosenList().size() != before) {
            button = candidate;
            return;
        }
    }
    if (!button)
        notCheckable("no button " + what);
}

int DialogDriver::add(int topRow)
{
    clickRow(topView(), topRow);
    addSelected();
    return int(m_dialog->getChosenList().size()) - 1;
}

void DialogDriver::addSelected()
{
    clickWhatChanges(m_addButton, QStringLiteral("add"), "adds the selected row");
}

void DialogDriver::removeSelected()
{
    clickWhatChanges(m_removeButton, QStringLiteral("remove"), "removes the selected row");
}

void DialogDriver::end(QDialogButtonBox::StandardButton button) const
{
    for (const QDialogButtonBox *box : m_dialog->findChildren<QDialogButtonBox *>()) {
        if (box->button(button)) {
            click(box->button(button));
            return;
        }
    }
    notCheckable("no QDialogButtonBox has the button");
}

int DialogDriver::topRowWhere(const std::function<bool(const DmlAttrDef &)> &isWanted,
                              const std::string &what) const
{
    for (const QTableWidgetItem *item : m_dialog->getTopListItems(false)) {
        const auto *definition = static_cast<const DmlAttrDef *>(item->data(DmlAttrDefRole).value<void *>());
        if (!item->tableWidget()->isRowHidden(item->row()) && isWanted(*definition))
            return item->row();
    }
    notCheckable("no " + what + " is available " + where());
}

QList<QSpinBox *> DialogDriver::editorBoxes() const
{
    QList<QSpinBox *> boxes;
    for (QSpinBox *box : chosenList()->viewport()->findChildren<QSpinBox *>()) {
        if (box->isVisible())
            boxes << box;
    }
    return boxes;
}

} // namespace Zudunmaf::hostcheck
