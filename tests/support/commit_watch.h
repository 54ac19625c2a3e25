#ifndef TESTS_SUPPORT_COMMIT_WATCH_H
#define TESTS_SUPPORT_COMMIT_WATCH_H

#include <QStyledItemDelegate>

#include <functional>
#include <utility>

/// A delegate that forwards to another one, and reports each commit and each load of an editor before it takes effect.
class CommitWatch : public QStyledItemDelegate
{
public:
    using Report = std::function<void(QWidget *editor, const QModelIndex &index)>;

    /// `inner` becomes the parent of this delegate.
    CommitWatch(QAbstractItemDelegate *inner, Report commit, Report load = nullptr)
        : QStyledItemDelegate(inner)
        , m_inner(inner)
        , m_commit(std::move(commit))
        , m_load(std::move(load))
    {
    }
    QWidget *createEditor(QWidget *parent, const QStyleOptionViewItem &option,
                          const QModelIndex &index) const override
    {
        return m_inner->createEditor(parent, option, index);
    }
    void setEditorData(QWidget *editor, const QModelIndex &index) const override
    {
        if (m_load)
            m_load(editor, index);
        m_inner->setEditorData(editor, index);
    }
    void setModelData(QWidget *editor, QAbstractItemModel *model, const QModelIndex &index) const override
    {
        // Not for the live preview, which stores into a clone of the item.
        const auto *table = qobject_cast<const QWidget *>(index.model()->QObject::parent());
        if (table && table->isAncestorOf(editor))
            m_commit(editor, index);
        m_inner->setModelData(editor, model, index);
    }
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return m_inner->sizeHint(option, index);
    }

private:
    QAbstractItemDelegate *m_inner;
    Report m_commit;
    Report m_load;
};

#endif
