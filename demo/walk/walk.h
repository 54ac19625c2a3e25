#ifndef WALK_WALK_H
#define WALK_WALK_H

#include "dialog_user.h"

#include <QString>

#include <functional>
#include <vector>

class TvxAttributesSelectionDialog;

namespace Zudunmaf::walk
{

/// Works a dialog as a user would, and saves a picture of each step: 01-open.png and so on. Each step checks
/// what the dialog did; the first failed check ends the walk.
class Walk
{
public:
    /// The dialog must outlive the walk. The directory must exist.
    Walk(TvxAttributesSelectionDialog &dialog, const QString &pictureDirectory);
    virtual ~Walk();

    /// Opens the dialog, runs all steps and presses OK. Returns a null string, or one line with the step and the
    /// check that failed.
    QString play();

protected:
    enum class AddMethod { Mnemonic, Enter, DoubleClick };

    struct Step {
        const char *name;
        std::function<void()> run;
    };

    virtual std::vector<Step> steps() = 0;

    /// Returns `holds`. The first failed check ends the walk after the current step, and `what` becomes its message.
    bool expect(bool holds, const QString &what);
    void savePicture(const QString &name);

    TvxAttributesSelectionDialog &dialog() { return m_dialog; }
    const DialogUser &user() const { return m_user; }

    void chooseEntity(int row);
    void typeFilter(const QString &text);
    /// Filters for the name, moves to the available attribute and adds it.
    void add(const QString &name, AddMethod method);
    /// Moves to the chosen attribute and presses F2.
    void openEditor(const QString &name);
    /// Types into the open editor. Checks that it closes and that the cell's text then starts with `expected`.
    void finishEditor(const QString &name, const QString &keys, const QString &expected);
    void edit(const QString &name, const QString &keys, const QString &expected);
    /// Triggers the second action of the context menu, which resets the attribute.
    void resetByMenu(const QString &name, const QString &expected);

    bool goToRow(QTableWidget &table, const QString &name);
    bool isEditing() const;
    /// Returns the text of the chosen attribute's value.
    QString cellText(const QString &name) const;

private:
    void open();
    void pressOk();
    void runStep(const QString &name, const std::function<void()> &run);

    TvxAttributesSelectionDialog &m_dialog;
    DialogUser m_user;
    QString m_pictureDirectory;
    QString m_step;
    QString m_failure;
    int m_pictureCount = 0;
};

} // namespace Zudunmaf::walk

#endif
