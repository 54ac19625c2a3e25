#ifndef TVX_CAPTION_H
#define TVX_CAPTION_H

#include <QLabel>

namespace Zudunmaf
{
namespace tvx
{

/// A short plain text in one line, which names a widget and may mark the letter that leads there. A label's own hints
/// set such a text three times, and again after each change of a count.
class Caption : public QLabel
{
    Q_OBJECT

public:
    explicit Caption(const QString &text, QWidget *parent);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }
};

} // namespace tvx
} // namespace Zudunmaf

#endif
