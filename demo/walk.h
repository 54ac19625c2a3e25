#ifndef DEMO_WALK_H
#define DEMO_WALK_H

#include "dialog_user.h"

#include <QString>

#include <functional>
#include <vector>

class TvxAttributesSelectionDialog;

namespace Zudunmaf::demo
{

/// A tour of a dialog as a user would make it, with a picture of each step: 01-open.png and so on. Each step
/// looks whether the dialog does what it should; the first that does not ends the walk.
class Walk
{
public:
    /// The dialog must outlive the walk; the directory exists.
    Walk(TvxAttributesSelectionDialog &dialog, const QString &pictureDirectory);
    virtual ~Walk();

    /// Ends with OK. Null, or one line with the step and what was missing in it.
    QString play();

protected:
    enum class Way { Mnemonic, Enter, DoubleClick };

    struct Step {
        const char *name;
        std::function<void()> act;
    };

    virtual std::vector<Step> steps() = 0;

    /// The first that does not hold is what play() tells; the walk then ends behind the present step.
    bool expect(bool holds, const QString &what);
    void savePicture(const QString &name);

    TvxAttributesSelectionDialog &dialog() { return m_dialog; }
    const DialogUser &user() const { return m_user; }

    // What the steps are made of.
    void chooseEntity(int row);
    void typeFilter(const QString &text);
    /// Filters for the name, goes to the attribute of the top view and takes it over.
    void add(const QString &name, Way way);
    /// Goes to the chosen attribute and presses F2.
    void openEditor(const QString &name);
    /// Types into the editor that is open and looks at the cell afterwards: the text that it begins with.
    void finishEditor(const QString &name, const QString &keys, const QString &expected);
    /// Both of them.
    void edit(const QString &name, const QString &keys, const QString &expected);
    /// Takes the second action of the context menu, which resets the attribute.
    void resetByMenu(const QString &name, const QString &expected);

    bool goToRow(QTableWidget &table, const QString &name);
    bool isEditing() const;
    QString cellText(const QString &name) const;

private:
    void open();
    void pressOk();
    void playStep(const QString &name, const std::function<void()> &act);

    TvxAttributesSelectionDialog &m_dialog;
    DialogUser m_user;
    QString m_pictureDirectory;
    QString m_step;
    QString m_problem;
    int m_pictureCount = 0;
};

} // namespace Zudunmaf::demo

#endif
