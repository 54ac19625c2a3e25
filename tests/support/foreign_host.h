#ifndef TESTS_SUPPORT_FOREIGN_HOST_H
#define TESTS_SUPPORT_FOREIGN_HOST_H

#include "gdm/items/attr_records.h"

#include <QMap>
#include <QPointer>
#include <QSet>
#include <QStringList>
#include <QStyledItemDelegate>
#include <QTableWidget>

class QMenu;

/// A host for the tests: base dialog, services and dictionary that implement the library's declarations. It returns what a
/// test sets, records every call in order, and uses the freedom of the contract: memory is not initialized, all messages
/// share a buffer, the cursor is no index, and a failed call writes random values.
struct ForeignHost {
    QStringList calls; ///< "name argument argument", without memory and log calls.

    QMap<QByteArray, QByteArray> translations; ///< By message key; field 4 of the key where there is none.
    bool byPrompt = false;
    bool showObsolete = false;
    QList<DmlAttrDef *> dictionary;
    int failAt = 0;      ///< The number of the call that fails, from 1; 0 for none.
    int failStatus = 1;  ///< The status of that call.
    int fallible = 0;    ///< The number of calls that could have failed.
    QStringList reports; ///< "file line".
    QSet<void *> memory; ///< Allocated and not freed.
    QStringList faults;  ///< Wrong calls of the memory services, and Qt warnings.

    int did = 3;
    int mask = -1;
    QString group = QStringLiteral("All Groups");
    QString text;
    int units = -1;
    bool shuffle = false;                ///< Returns the available rows in a random order.
    QList<QTableWidgetItem *> menuItems; ///< The items for an action of the context menu.
    QStringList entities;                ///< "text data metatype did" for each row.
    QStringList groups;
    QPointer<QTableWidget> top, chosen;
    QPointer<QStyledItemDelegate> delegate;
    QPointer<QMenu> menu;

    template <class... Arguments>
    void note(const char *name, Arguments... arguments)
    {
        calls << (QStringList(QString(name)) << ... << word(arguments)).join(' ');
    }
    static QString word(double number) { return QString::number(number, 'g', 6); }
    static QString word(const QString &text) { return text; }

    /// The calls that begin with a text, in order.
    QStringList called(const char *beginning) const;
    /// What a failed operation must not change: lists, rows with their visibility, the current row.
    QString state() const;
};

/// The host of the current test. It is never deleted.
ForeignHost &host();

/// Appends a row with clones of the item in both columns, and returns the item of column 1.
QTableWidgetItem *appendRow(QTableWidget *table, const QTableWidgetItem &item);

#endif
