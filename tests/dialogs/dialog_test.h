#ifndef TESTS_DIALOGS_DIALOG_TEST_H
#define TESTS_DIALOGS_DIALOG_TEST_H

#include "dialog_user.h"
#include "gdm/dialogs/tvx_attributes_selection_dialog.h"

#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTableWidget>
#include <QTest>
#include <QTimer>

#include <functional>
#include <memory>

/// A test of each of the two dialogs in turn, by keys and clicks. Each function starts with the dialog on the screen and
/// no attribute chosen, and fails on a Qt warning. Available are the attributes of dictionary.json: plated, note, colour,
/// finish, grade, width, depth, LongName, stackup (only in the filter dialog) and pad_00 to pad_39.
class DialogTest : public QObject, public Zudunmaf::walk::DialogUser
{
    Q_OBJECT

public:
    enum { Name = 0, Value = 1 };
    static constexpr char LongName[] = "serial_number_that_has_a_name_of_sixty_four_letters_as_no_other";

    /// True for the filter dialog, false for "Assign Attributes"; and the text of two that belongs to the dialog.
    static bool inFilter();
    static QString pick(const char *ofFilter, const char *ofAssign);
    /// A row of test data for each way to do something, and the way of the current row.
    static void addWays(std::initializer_list<const char *> ways);
    static QString way();

    /// Replaces the dialog by a new one over dictionary `did`. open() also shows it and waits until keys reach it.
    void create(int did = -1);
    bool open(int did = -1);
    /// Opens another dialog over these attributes, in JSON.
    void loadDictionary(const QByteArray &attributes);
    bool show() const { return DialogUser::open(); }

    /// Types text. In it, "v" is Down, "^" is Up, "=" is Ctrl+A, "<" is Delete, and a tab is Tab.
    void pressKeys(const QString &keys) const;

    /// What the host reads of the chosen attributes: the lines of the filter dialog, the values of the other.
    QStringList results() const;
    QString resultOf(const QString &attribute) const { return results().value(rowOf(chosenList, attribute)); }
    /// Every chosen record, byte by byte, or every chosen value.
    QList<QByteArray> records() const;

    std::unique_ptr<TvxAttributesSelectionDialog> dialog;
    /// What happened, in order: "commit", "pass" for filterAttributeList(), "+name" and "-name" for the hooks, "menu",
    /// "accepted", "rejected".
    static inline QStringList events;
    /// The current attribute of the available table when the library's filterAttributeList() returns.
    static inline QString currentAfterPass;
    /// Runs at the end of each hook, until the test function ends.
    static inline std::function<void()> afterHook;
    /// Makes reject() do nothing, until the test function ends.
    static inline bool refusesToClose = false;
    /// Runs at the start of each commit, until the test function ends.
    static inline std::function<void()> atCommit;

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void init();
    void cleanup();
};

#endif
