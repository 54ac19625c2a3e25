#include "peers.h"

#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QTableWidget>
#include <QVBoxLayout>

namespace Zudunmaf::bench
{

namespace
{

class MemoryItem : public QTableWidgetItem
{
public:
    explicit MemoryItem(const QString &text)
        : QTableWidgetItem(UserType)
        , m_text(text)
    {
    }

    QVariant data(int role) const override
    {
        return role == Qt::DisplayRole ? QVariant(m_text) : QTableWidgetItem::data(role);
    }

private:
    QString m_text;
};

void arrange(QDialog *dialog, QTableView *view)
{
    view->verticalHeader()->hide();
    view->setSelectionBehavior(QAbstractItemView::SelectRows);
    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(view);
    dialog->resize(640, 700);
}

bool isWildcard(const QString &text)
{
    return text.contains(QLatin1Char('*')) || text.contains(QLatin1Char('?'));
}

} // namespace

ProxyDialog::ProxyDialog(const QStringList &names)
    : m_model(new QStandardItemModel(names.size(), 2, this))
    , m_proxy(new QSortFilterProxyModel(this))
    , m_view(new QTableView(this))
{
    for (int row = 0; row < names.size(); ++row) {
        m_model->setItem(row, 0, new QStandardItem(names.at(row)));
        m_model->setItem(row, 1, new QStandardItem);
    }
    m_proxy->setSourceModel(m_model);
    m_proxy->setFilterCaseSensitivity(Qt::CaseInsensitive);
    m_view->setModel(m_proxy);
    arrange(this, m_view);
}

void ProxyDialog::setFilter(const QString &text)
{
    if (isWildcard(text))
        m_proxy->setFilterWildcard(text);
    else
        m_proxy->setFilterFixedString(text);
}

FloorDialog::FloorDialog(const QStringList &names)
    : m_names(names)
    , m_table(new QTableWidget(int(names.size()), 2, this))
{
    for (int row = 0; row < names.size(); ++row) {
        m_table->setItem(row, 0, new MemoryItem(names.at(row)));
        m_table->setItem(row, 1, new MemoryItem(QString()));
    }
    arrange(this, m_table);
}

void FloorDialog::setFilter(const QString &text)
{
    m_table->setUpdatesEnabled(false);
    for (int row = 0; row < m_names.size(); ++row)
        m_table->setRowHidden(row, !m_names.at(row).contains(text, Qt::CaseInsensitive));
    m_table->setUpdatesEnabled(true);
}

} // namespace Zudunmaf::bench
