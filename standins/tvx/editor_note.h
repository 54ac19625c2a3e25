#ifndef TVX_EDITOR_NOTE_H
#define TVX_EDITOR_NOTE_H

#include <QLabel>

namespace Zudunmaf
{
namespace tvx
{

/// Shows `widget`, a child of the table's viewport, below an editor or a widget in it; above if there is more room.
void showBeside(QWidget *widget, const QWidget &editor);

/// A short message beside an open cell editor. A child of the table's viewport. Accepts neither focus nor mouse, so
/// that the next click reaches what is below it.
class EditorNote : public QLabel
{
    Q_OBJECT

public:
    explicit EditorNote(QWidget *viewport);

    /// Shows the message, for which the caller calls showBeside(), and alerts a screen reader to a new one. Hides the
    /// note for an empty message.
    void setMessage(const QString &message);
};

} // namespace tvx
} // namespace Zudunmaf

#endif
