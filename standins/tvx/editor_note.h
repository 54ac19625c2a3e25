#ifndef TVX_EDITOR_NOTE_H
#define TVX_EDITOR_NOTE_H

#include <QLabel>

namespace Zudunmaf
{
namespace tvx
{

/// Places a widget of the editor's window below the editor, or above it where there is no room below, and shows it.
void showBesideEditor(QWidget *widget, const QWidget &editor);

/// A short message at an open cell editor, above the tables. It takes neither focus nor mouse, so that whatever the
/// user does next reaches its target at once.
class EditorNote : public QLabel
{
    Q_OBJECT

public:
    explicit EditorNote(QWidget *window);

    /// Shows the message beside the editor and alerts a screen reader to a new one. Hides the note for an empty message.
    void showMessage(const QString &message, const QWidget &editor);
};

} // namespace tvx
} // namespace Zudunmaf

#endif
