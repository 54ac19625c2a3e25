#ifndef TVX_EDITOR_NOTE_H
#define TVX_EDITOR_NOTE_H

#include <QLabel>

namespace Zudunmaf
{
namespace tvx
{

/// Places a child of the table's viewport below an editor, or a widget in it, and shows it; above, if there is more room.
/// As a child of the viewport it moves with the rows.
void showBeside(QWidget *widget, const QWidget &editor);

/// A short message at an open cell editor, above the cells. It takes neither focus nor mouse, so that whatever the
/// user does next reaches its target at once.
class EditorNote : public QLabel
{
    Q_OBJECT

public:
    explicit EditorNote(QWidget *viewport);

    /// Shows the message beside the editor and alerts a screen reader to a new one. Hides the note for an empty message.
    void showMessage(const QString &message, const QWidget &editor);
};

} // namespace tvx
} // namespace Zudunmaf

#endif
