#ifndef TVX_CELL_EDITOR_FILTER_H
#define TVX_CELL_EDITOR_FILTER_H

#include <QObject>
#include <QVector>

class QKeyEvent;
class QWidget;

namespace Zudunmaf
{
namespace tvx
{

/// Watches the widgets of one open cell editor: reports Enter, the focus and Tab past its last widget, ignores the
/// wheel, and names each widget for a screen reader. A child of the editor.
///
/// Comes before the delegate's own event filter, which would commit and close a single editor on Enter, Tab and a loss
/// of the focus, and leave a composite editor open. Filters all three.
class CellEditorFilter : public QObject
{
    Q_OBJECT

public:
    /// `name` is the attribute that is edited.
    CellEditorFilter(QWidget *editor, const QString &name);

    /// Installs this filter before all others. Must be called after each commit, when the view installs the delegate's
    /// again.
    void install();

Q_SIGNALS:
    /// Emitted when Enter is pressed in the editor.
    void entered();
    /// Emitted when the user leaves the editor by Tab.
    void left();
    /// Emitted when the focus reaches a widget of the editor, but not when it comes back with the window or from a
    /// popup.
    void focusMoved();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void nameWidgets(QWidget *editor, const QString &name);
    bool filterKey(QWidget *widget, const QKeyEvent *event);
    bool leaveBy(const QWidget *last, const QWidget *widget);
    static void deliverKeepingText(QWidget *widget, QEvent *event);

    QWidget *m_editor;
    /// The widgets that Tab reaches, in tab order.
    QVector<QWidget *> m_widgets;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
