#include "walk.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>

namespace Zudunmaf::walk
{

Walk::Walk(TvxAttributesSelectionDialog &dialog, const QString &pictureDirectory)
    : m_dialog(dialog)
    , m_user(dialog)
    , m_pictureDirectory(pictureDirectory)
{
}

Walk::~Walk() = default;

QString Walk::play()
{
    runStep(QStringLiteral("open"), [this] { open(); });
    const std::vector<Step> all = steps();
    for (const Step &step : all)
        runStep(QString::fromLatin1(step.name), step.run);
    m_step = QStringLiteral("ok");
    if (m_failure.isEmpty())
        pressOk();
    return m_failure;
}

void Walk::runStep(const QString &name, const std::function<void()> &run)
{
    if (!m_failure.isEmpty())
        return;
    m_step = name;
    run();
    savePicture(name);
}

bool Walk::expect(bool holds, const QString &what)
{
    if (!holds && m_failure.isEmpty())
        m_failure = QStringLiteral("step %1: expected %2").arg(m_step, what);
    return holds;
}

void Walk::savePicture(const QString &name)
{
    const QString file = QStringLiteral("%1-%2.png").arg(++m_pictureCount, 2, 10, QLatin1Char('0')).arg(name);
    const QString path = QDir(m_pictureDirectory).filePath(file);
    expect(m_user.picture().save(path), QStringLiteral("to save the picture %1").arg(path));
}

void Walk::open()
{
    if (!expect(m_user.missing().isEmpty(), QStringLiteral("a widget '%1'").arg(m_user.missing())) ||
        !expect(m_user.open(), QStringLiteral("an active window")))
        return;
    expect(m_user.filterText->hasFocus(), QStringLiteral("the focus in the filter field"));
    expect(m_user.topView->rowCount() > 0, QStringLiteral("available attributes"));
}

void Walk::pressOk()
{
    expect(m_user.pushButton(*m_user.okButton) && !m_dialog.isVisible() &&
               m_dialog.result() == QDialog::Accepted,
           QStringLiteral("OK to accept the dialog"));
}

void Walk::chooseEntity(int row)
{
    if (!expect(m_user.goTo(*m_user.entityList), QStringLiteral("the focus in the entity list")))
        return;
    m_user.press(Qt::Key_Home);
    for (int step = 0; step < row; ++step)
        m_user.press(Qt::Key_Down);
    expect(m_user.entityList->currentIndex() == row, QStringLiteral("entity row %1").arg(row));
}

void Walk::typeFilter(const QString &text)
{
    m_user.setFilter(text);
    expect(m_user.filterText->text() == text, QStringLiteral("the filter text '%1'").arg(text));
}

void Walk::add(const QString &name, AddMethod method)
{
    typeFilter(name);
    if (!goToRow(*m_user.topView, name))
        return;
    switch (method) {
    case AddMethod::Mnemonic:
        expect(m_user.pushButton(*m_user.addButton), QStringLiteral("the add button to be released"));
        break;
    case AddMethod::Enter:
        m_user.press(Qt::Key_Return);
        break;
    case AddMethod::DoubleClick:
        m_user.doubleClick(m_user.topView, name);
        break;
    }
    const int row = DialogUser::rowOf(m_user.chosenList, name);
    expect(row >= 0 && row == m_user.chosenList->rowCount() - 1,
           QStringLiteral("'%1' as the last chosen attribute").arg(name));
}

void Walk::openEditor(const QString &name)
{
    if (!goToRow(*m_user.chosenList, name))
        return;
    m_user.press(Qt::Key_F2);
    expect(isEditing(), QStringLiteral("an editor of '%1' with the focus").arg(name));
}

void Walk::finishEditor(const QString &name, const QString &keys, const QString &expected)
{
    m_user.type(keys);
    expect(!isEditing() && m_dialog.isVisible(),
           QStringLiteral("only the editor of '%1' to close").arg(name));
    expect(cellText(name).startsWith(expected),
           QStringLiteral("'%1' to read '%2' and not '%3'").arg(name, expected, cellText(name)));
}

void Walk::edit(const QString &name, const QString &keys, const QString &expected)
{
    openEditor(name);
    finishEditor(name, keys, expected);
}

void Walk::resetByMenu(const QString &name, const QString &expected)
{
    if (!goToRow(*m_user.chosenList, name))
        return;
    const bool opened = m_user.useContextMenu([this](QMenu &menu) {
        const QAction *reset = menu.actions().value(1);
        for (int step = 0; menu.activeAction() != reset && step < menu.actions().size(); ++step)
            m_user.press(Qt::Key_Down);
        expect(reset && menu.activeAction() == reset,
               QStringLiteral("the arrow keys to reach the second action of the menu"));
        savePicture(m_step + QLatin1String("-menu"));
        m_user.press(Qt::Key_Return);
        menu.close();
    });
    expect(opened, QStringLiteral("a context menu"));
    expect(cellText(name) == expected,
           QStringLiteral("'%1' to read '%2' and not '%3'").arg(name, expected, cellText(name)));
}

bool Walk::goToRow(QTableWidget &table, const QString &name)
{
    const int row = DialogUser::rowOf(&table, name);
    if (!expect(row >= 0 && !table.isRowHidden(row), QStringLiteral("a row '%1'").arg(name)) ||
        !expect(m_user.goTo(table), QStringLiteral("the focus in %1").arg(table.objectName())))
        return false;
    for (int step = 0; table.currentRow() != row && step < table.rowCount(); ++step)
        m_user.press(table.currentRow() < row ? Qt::Key_Down : Qt::Key_Up);
    return expect(table.currentRow() == row, QStringLiteral("the arrow keys to reach '%1'").arg(name));
}

bool Walk::isEditing() const
{
    return m_user.chosenList->viewport()->isAncestorOf(QApplication::focusWidget());
}

QString Walk::cellText(const QString &name) const
{
    const int row = DialogUser::rowOf(m_user.chosenList, name);
    const QTableWidgetItem *item = m_user.chosenList->item(row, 1);
    return item ? item->text() : QString();
}

} // namespace Zudunmaf::walk
