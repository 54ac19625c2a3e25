#include "base/dialog_driver.h"
#include "walk.h"

#include "gdm/host/gen_services.h"

#include <QApplication>
#include <QComboBox>
#include <QPushButton>
#include <QRegularExpression>
#include <QTest>
#include <QWindow>

#include <algorithm>
#include <map>

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

QAbstractItemModel *modelOf(const QWidget *list)
{
    if (const auto *box = qobject_cast<const QComboBox *>(list))
        return box->model();
    const auto *view = qobject_cast<const QAbstractItemView *>(list);
    return view ? view->model() : nullptr;
}

/// The enabled buttons that have the word in one of their texts. Buttons with shorter texts come first, such as "Add"
/// before "Show added", and buttons for all rows come last.
QList<QAbstractButton *> buttonsWith(QLatin1String word, const QWidget &dialog)
{
    const QRegularExpression all(word + QLatin1String("[ _-]?all"),
                                 QRegularExpression::CaseInsensitiveOption);
    std::multimap<std::pair<bool, qsizetype>, QAbstractButton *> ranked;
    for (QAbstractButton *button : dialog.findChildren<QAbstractButton *>()) {
        bool isForAll = false;
        qsizetype shortest = 0;
        for (const char *property : {"objectName", "text", "toolTip"}) {
            const QString text = button->property(property).toString().remove(QLatin1Char('&'));
            if (!text.contains(word, Qt::CaseInsensitive))
                continue;
            isForAll = isForAll || text.contains(all);
            shortest = shortest == 0 ? text.size() : std::min<qsizetype>(shortest, text.size());
        }
        if (shortest > 0 && button->isVisible() && button->isEnabled())
            ranked.emplace(std::pair(isForAll, shortest), button);
    }
    QList<QAbstractButton *> buttons;
    buttons.reserve(int(ranked.size()));
    for (const auto &[rank, button] : ranked)
        buttons << button;
    return buttons;
}

} // namespace

QString messageText(const char *key)
{
    return QString::fromLocal8Bit(gen__nls_nlst(key));
}

void expectNames(const QStringList &came, const QStringList &expected, const std::string &where)
{
    QStringList missing = expected, more = came;
    if (came == expected)
        return;
    for (const QString &name : came)
        missing.removeOne(name);
    for (const QString &name : expected)
        more.removeOne(name);
    const std::string difference = !missing.isEmpty() ? " without " + missing.first().toStdString()
                                   : !more.isEmpty()  ? " with " + more.first().toStdString()
                                                      : " in another order";
    expect(false, text(expected.size(), " attributes ", where), text(came.size(), difference));
}

DialogDriver::DialogDriver(const Settings &settings, Kind kind)
    : m_settings(settings)
    , m_kind(kind)
{
    attributesOf(settings); // The dialogs need a walk that ends.
    const QStringList missing = missingHostFunctions();
    if (!missing.isEmpty())
        notCheckable("missing " + missing.join(QLatin1Char(' ')).toStdString());
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
        if (item && item->tableWidget() && item->tableWidget()->rowCount() >= 2)
            return item->tableWidget();
    }
    notCheckable("fewer than two attributes are available");
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

int DialogDriver::topRowWhere(const std::function<bool(const DmlAttrDef &)> &isWanted,
                              const std::string &what) const
{
    for (const QTableWidgetItem *item : m_dialog->getTopListItems(false)) {
        const auto *definition = static_cast<const DmlAttrDef *>(item->data(DmlAttrDefRole).value<void *>());
        if (!item->tableWidget()->isRowHidden(item->row()) && isWanted(*definition))
            return item->row();
    }
    notCheckable("no " + what + " is available");
}

void DialogDriver::press(int key, Qt::KeyboardModifiers modifiers) const
{
    QTest::keyClick(m_dialog->windowHandle(), Qt::Key(key), modifiers);
    QCoreApplication::processEvents();
}

void DialogDriver::type(const QString &ascii) const
{
    press(Qt::Key_A, Qt::ControlModifier);
    if (ascii.isEmpty())
        press(Qt::Key_Delete);
    for (const QChar character : ascii)
        QTest::keyClick(m_dialog->windowHandle(), character.toLatin1());
    QCoreApplication::processEvents();
}

void DialogDriver::click(QWidget *widget) const
{
    QTest::mouseClick(widget, Qt::LeftButton);
    QCoreApplication::processEvents();
}

void DialogDriver::clickRow(QTableWidget *table, int row, Qt::KeyboardModifiers modifiers) const
{
    table->scrollToItem(table->item(row, 0));
    QTest::mouseClick(table->viewport(), Qt::LeftButton, modifiers,
                      table->visualItemRect(table->item(row, 0)).center());
    QCoreApplication::processEvents();
}

void DialogDriver::findFilterLine()
{
    for (QLineEdit *line : m_dialog->findChildren<QLineEdit *>()) {
        if (!line->isVisible() || line->isReadOnly())
            continue;
        click(line);
        type(QStringLiteral("q"));
        if (m_dialog->getUserFilterText() == QLatin1String("q")) {
            m_filterLine = line;
            return;
        }
    }
    notCheckable("no QLineEdit sets the filter text");
}

void DialogDriver::setFilterText(const QString &ascii)
{
    if (!m_filterLine)
        findFilterLine();
    click(m_filterLine);
    type(ascii);
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

void DialogDriver::clickButton(Button kind)
{
    QAbstractButton *&known = m_buttons[int(kind)];
    if (known)
        return click(known);
    const QLatin1String word(kind == Button::Add ? "add" : "remove");
    const QList<QAbstractButton *> buttons = buttonsWith(word, *m_dialog);
    const qsizetype before = m_dialog->getChosenList().size();
    for (QAbstractButton *button : buttons) {
        click(button);
        const qsizetype now = m_dialog->getChosenList().size();
        if (kind == Button::Add ? now > before : now < before) {
            known = button;
            return;
        }
    }
    const std::string places = text('"', word.data(), "\" in object name, text or tool tip");
    notCheckable(buttons.isEmpty()
                     ? "no enabled button has " + places
                     : "none of the enabled buttons with " + places + text(" ", word.data(), "s a row"));
}

int DialogDriver::add(int topRow)
{
    clickRow(topView(), topRow);
    clickButton(Button::Add);
    return int(m_dialog->getChosenList().size()) - 1;
}

void DialogDriver::pressOk() const
{
    for (const QDialogButtonBox *box : m_dialog->findChildren<QDialogButtonBox *>()) {
        if (QPushButton *ok = box->button(QDialogButtonBox::Ok))
            return click(ok);
    }
    notCheckable("no QDialogButtonBox has an OK button");
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
