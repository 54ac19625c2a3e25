#ifndef TVX_EDITOR_GUARD_H
#define TVX_EDITOR_GUARD_H

#include <QObject>
#include <QVector>

class QAbstractSpinBox;
class QKeyEvent;
class QWidget;

namespace Zudunmaf
{
namespace tvx
{

/// Looks after one open cell editor and the widgets in it: both decimal signs are taken, the wheel changes
/// nothing, Tab beyond its last widget ends the edit, and each widget has a name to be read aloud. Lives as
/// long as the editor.
class EditorGuard : public QObject
{
    Q_OBJECT

public:
    /// `editor` becomes the parent. `name` is what is edited.
    EditorGuard(QWidget *editor, const QString &name);

    /// Gives the keyboard to the first widget of the editor that takes it.
    void focusFirst();

Q_SIGNALS:
    /// The user has left the editor by Tab.
    void left();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void nameWidgets(QWidget *editor, const QString &name);
    bool filterKey(QWidget *widget, QKeyEvent *event);
    bool filterNumberKey(QAbstractSpinBox *box, QKeyEvent *event);

    /// The widgets that Tab reaches, in its order.
    QVector<QWidget *> m_widgets;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
