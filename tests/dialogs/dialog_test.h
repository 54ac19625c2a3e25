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

/// A test over each of the two dialogs in turn, worked as a user does. Each function starts with the dialog on the
/// screen and nothing chosen, and ends with no Qt warning given. On offer is what dictionary.json has: plated,
/// note, colour, finish, grade, width, depth, LongName, stackup (in the filter dialog alone) and pad_00 to pad_39.
class DialogTest : public QObject, public Zudunmaf::walk::DialogUser
{
    Q_OBJECT

public:
    enum { Name = 0, Value = 1 };
    static constexpr char LongName[] = "serial_number_that_has_a_name_of_sixty_four_letters_as_no_other";

    /// Whether this is the turn of the filter dialog, and what of two texts belongs to the turn.
    static bool inFilter();
    static QString pick(const char *ofFilter, const char *ofAssign);
    /// A row of test data for each way, and the way of the row.
    static void addWays(std::initializer_list<const char *> ways);
    static QString way();

    /// Another dialog over dictionary `did` in place of the present one; open() also shows it and waits for keys.
    void create(int did = -1);
    bool open(int did = -1);
    bool show() const { return DialogUser::open(); }

    /// What the host reads of the chosen attributes: the lines of the filter dialog, the values of the other.
    QStringList results() const;
    QString resultOf(const QString &attribute) const { return results().value(rowOf(chosenList, attribute)); }
    /// Every chosen record, byte by byte, or every chosen value.
    QList<QByteArray> records() const;
    /// What stands on the screen: nothing is painted anew for the purpose.
    QImage screenshot(const QWidget *widget, const QRect &area) const;

    std::unique_ptr<TvxAttributesSelectionDialog> dialog;
    /// What happened, in order: "commit", "pass" of the filter, "+name" and "-name" of the hooks, "menu",
    /// "accepted", "rejected".
    static inline QStringList events;
    /// The current attribute of the top view as a subclass finds it right after the library's filterAttributeList().
    static inline QString currentAfterPass;
    /// Runs at the end of the add hook, until the test function ends.
    static inline std::function<void()> afterAdding;
    /// Runs at the start of each commit, until the test function ends.
    static inline std::function<void()> atCommit;

private Q_SLOTS:
    void initTestCase_data();
    void initTestCase();
    void init();
    void cleanup();
};

#endif
