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

/// A host of the tests' own: base dialog, services and dictionary behind the library's declarations. It
/// answers as a test sets it, writes down every call in order, and is as unkind as the contract allows: dirty
/// memory, one buffer for all messages, a cursor that counts oddly, rubbish in what a failed call leaves.
struct ForeignHost {
    QStringList calls; ///< "name argument argument", but for memory and log calls.

    QMap<QByteArray, QByteArray> translations; ///< By message key; field 4 of the key where there is none.
    bool byPrompt = false;
    bool showObsolete = false;
    QList<DmlAttrDef *> dictionary;
    int failAt = 0;      ///< The fallible call that fails, counted from 1; 0 for none.
    int failStatus = 1;  ///< What it answers.
    int fallible = 0;    ///< Calls so far that could have failed.
    QStringList reports; ///< "file line".
    QSet<void *> memory; ///< Taken and not given back.
    QStringList faults;  ///< Memory misused, and warnings of Qt.

    int did = 3;
    int mask = -1;
    QString group = QStringLiteral("All Groups");
    QString text;
    int units = -1;
    bool shuffle = false;                ///< Hands rows out in no helpful order.
    QList<QTableWidgetItem *> menuItems; ///< What a menu action applies to.
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

    /// The calls whose name begins so, in order.
    QStringList called(const char *beginning) const;
    /// What a failed operation must leave alone: lists, rows with their visibility, the current row.
    QString state() const;
};

/// The host of the test that runs; it outlives everything that is made on it.
ForeignHost &host();

/// Puts clones of the item into columns 0 and 1 of a new last row, and gives the one of column 1.
QTableWidgetItem *appendRow(QTableWidget *table, const QTableWidgetItem &item);

#endif
