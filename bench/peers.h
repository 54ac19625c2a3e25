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

/// The usual Qt solution: a QTableView on a QSortFilterProxyModel on a QStandardItemModel.
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

/// The minimum cost of a QTableWidget: two items in each row with stored texts, rows hidden while updates are disabled, and
/// a plain search in the name.
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
