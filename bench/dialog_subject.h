#ifndef BENCH_DIALOG_SUBJECT_H
#define BENCH_DIALOG_SUBJECT_H

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QTableWidget>

namespace Zudunmaf::bench
{

/// One of the library's dialogs, controlled through its widgets.
template <class Dialog>
class DialogSubject
{
public:
    explicit DialogSubject(int did)
        : m_dialog(did)
    {
    }

    Dialog &dialog() { return m_dialog; }
    void show() { m_dialog.show(); }
    void setFilter(const QString &text) { child<QLineEdit>("filterText")->setText(text); }
    void setEntity(int row) { child<QComboBox>("entityList")->setCurrentIndex(row); }
    void setGroup(int row) { child<QComboBox>("groupList")->setCurrentIndex(row); }

    void selectRows(const char *table, int count)
    {
        QTableWidget *view = child<QTableWidget>(table);
        const int last = qMin(count, view->rowCount()) - 1;
        view->selectionModel()->select(
            QItemSelection(view->model()->index(0, 0), view->model()->index(last, 1)),
            QItemSelectionModel::ClearAndSelect);
    }

    void add(int count)
    {
        selectRows("topView", count);
        child<QPushButton>("addButton")->click();
    }

    void remove(int count)
    {
        selectRows("chosenList", count);
        child<QPushButton>("removeButton")->click();
    }

    int chosenCount() { return child<QTableWidget>("chosenList")->rowCount(); }

private:
    template <class Widget>
    Widget *child(const char *name)
    {
        return m_dialog.template findChild<Widget *>(QLatin1String(name));
    }

    Dialog m_dialog;
};

} // namespace Zudunmaf::bench

#endif
