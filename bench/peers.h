#ifndef BENCH_PEERS_H
#define BENCH_PEERS_H

#include <QDialog>
#include <QStringList>

class QLineEdit;
class QSortFilterProxyModel;
class QStandardItemModel;
class QTableView;
class QTableWidget;

namespace Zudunmaf::bench
{

/// The way most Qt programs would do it: a table view on a sort and filter proxy over a standard model.
class ProxyDialog : public QDialog
{
public:
    explicit ProxyDialog(const QStringList &names);

    void setFilter(const QString &text);

private:
    QStandardItemModel *m_model;
    QSortFilterProxyModel *m_proxy;
    QTableView *m_view;
};

/// The least that a QTableWidget costs: two items a row whose data() answers from memory, rows hidden with
/// updates off, a plain search in the name.
class FloorDialog : public QDialog
{
public:
    explicit FloorDialog(const QStringList &names);

    void setFilter(const QString &text);

private:
    QStringList m_names;
    QTableWidget *m_table;
};

} // namespace Zudunmaf::bench

#endif
