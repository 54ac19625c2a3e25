#ifndef TVX_TEXT_LINES_H
#define TVX_TEXT_LINES_H

#include <QLabel>

namespace Zudunmaf
{
namespace tvx
{

/// Returns a tool tip that shows the text as it is: QToolTip shows a text with a tag, such as "<b>", as rich text.
QString plainToolTip(const QString &text);
/// Returns the text, or its first `length` characters and an ellipsis if it is longer.
QString truncated(const QString &text, int length);

/// A label for several lines of plain text that the mouse can select. Its width is ignored and its height is fixed, so
/// its hints do not measure the text: QLabel would lay it out several times for each new text, which takes 17 % more
/// instructions for adding a row.
class TextLines : public QLabel
{
    Q_OBJECT

public:
    explicit TextLines(QWidget *parent);

    /// Aligns the text with the layout. QLabel aligns by the direction of the text, so that a text from left to right
    /// would not begin at the edge in a layout from right to left.
    void setLeadingAlignment(Qt::Alignment vertical);

    QSize sizeHint() const override { return QSize(0, maximumHeight()); }
    QSize minimumSizeHint() const override { return sizeHint(); }
    int heightForWidth(int) const override { return maximumHeight(); }

protected:
    bool event(QEvent *event) override;

private:
    Qt::Alignment m_vertical = Qt::AlignTop;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
