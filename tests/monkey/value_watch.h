#ifndef TESTS_MONKEY_VALUE_WATCH_H
#define TESTS_MONKEY_VALUE_WATCH_H

#include "commit_watch.h"
#include "gdm/gdm_qt.h"

#include <QCoreApplication>
#include <QEvent>
#include <QMap>
#include <QMenu>
#include <QSet>
#include <QTableWidget>

/// Checks that the value of a chosen attribute changes only by a commit that the user has caused, or by an action of the
/// context menu. A commit is the user's if a key, a click or a drop has reached the editor since it was loaded, and since its
/// last commit.
class ValueWatch : public QObject
{
public:
    ValueWatch() { qApp->installEventFilter(this); }

    void attach(TvxAttributesSelectionDialog *dialog)
    {
        const auto commit = [this](QWidget *editor, const QModelIndex &index) {
            const auto *table = qobject_cast<const QTableWidget *>(index.model()->QObject::parent());
            m_committed.insert(table->item(index.row(), 1));
            if (!m_used.remove(editor))
                m_fault = "an editor was committed without the user";
        };
        const auto load = [this](QWidget *editor, const QModelIndex &) { m_used.remove(editor); };
        dialog->setItemDelegate(new CommitWatch(tableOf(dialog)->itemDelegate(), commit, load));
        connect(dialog->findChild<QMenu *>(), &QMenu::triggered, this, [this] { m_isMenuUsed = true; });
    }

    /// Call this before each event, and fault() after it.
    void begin(const TvxAttributesSelectionDialog *dialog)
    {
        m_fault.clear();
        m_committed.clear();
        m_isMenuUsed = false;
        m_dialog = dialog;
        m_values = valuesOf(dialog);
    }

    QString fault(const TvxAttributesSelectionDialog *dialog) const
    {
        if (!m_fault.isEmpty() || dialog != m_dialog || m_isMenuUsed)
            return m_fault;
        const auto values = valuesOf(dialog);
        for (auto value = values.begin(); value != values.end(); ++value) {
            const bool changed = m_values.value(value.key(), *value) != *value;
            if (changed && !m_committed.contains(value.key()))
                return "a value has changed without a commit";
        }
        return QString();
    }

protected:
    bool eventFilter(QObject *receiver, QEvent *event) override
    {
        const bool isUse = event->type() == QEvent::KeyPress || event->type() == QEvent::MouseButtonPress ||
                           event->type() == QEvent::Drop;
        for (QObject *object = receiver; isUse && object; object = object->parent())
            m_used.insert(object);
        return false;
    }

private:
    using Values = QMap<const QTableWidgetItem *, QByteArray>;

    static QTableWidget *tableOf(const TvxAttributesSelectionDialog *dialog)
    {
        return dialog->findChild<QTableWidget *>("chosenList");
    }

    /// The bytes of each chosen condition, or the exact value.
    static Values valuesOf(const TvxAttributesSelectionDialog *dialog)
    {
        Values values;
        for (const QTableWidgetItem *item : dialog->getChosenList()) {
            const QVariant value = static_cast<const Zudunmaf::DmlAttrLWI *>(item)->attrValue();
            if (value.userType() == QMetaType::VoidStar)
                values[item] =
                    QByteArray(static_cast<const char *>(value.value<void *>()), sizeof(DmlAttrValue));
            else if (value.userType() == QMetaType::Double)
                values[item] = QByteArray::number(value.toDouble(), 'g', 17);
            else
                values[item] = value.toString().toUtf8();
        }
        return values;
    }

    QString m_fault;
    QSet<const QObject *> m_used;
    QSet<const QTableWidgetItem *> m_committed;
    Values m_values;
    const TvxAttributesSelectionDialog *m_dialog = nullptr;
    bool m_isMenuUsed = false;
};

#endif
