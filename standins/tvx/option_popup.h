#ifndef TVX_OPTION_POPUP_H
#define TVX_OPTION_POPUP_H

#include <QObject>
#include <QTimer>

class QComboBox;
class QWidget;

namespace Zudunmaf
{
namespace tvx
{

/// The popup of an option's editor: at most 15 lines with a scroll bar, and picking an entry ends the edit. A child of
/// the editor.
class OptionPopup : public QObject
{
    Q_OBJECT

public:
    /// Attaches to the editor of an option. Returns null, and does nothing, for any other editor, such as one in which
    /// a text can be typed.
    static OptionPopup *attach(QWidget *editor);

    /// Opens the popup when the mouse button that was pressed on `viewport` is released. The popup would take an
    /// earlier release as a choice.
    void openAfterRelease(QWidget *viewport);

Q_SIGNALS:
    /// Emitted after an entry of the open popup was picked. A choice by arrow keys without the popup picks nothing.
    void picked();

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    explicit OptionPopup(QComboBox *box);
    void noteChoice();
    void reportPick();

    QComboBox *m_box;
    /// These three fire when the event that is being delivered is over.
    QTimer m_opening;
    /// Active after the popup was hidden: QComboBox hides it in the same event, before it reports the choice.
    QTimer m_hiding;
    QTimer m_picking;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
