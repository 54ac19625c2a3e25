#ifndef TVX_TEXT_LINES_H
#define TVX_TEXT_LINES_H

#include <QLabel>

namespace Zudunmaf
{
namespace tvx
{

/// A plain text that wraps within a fixed height and takes whatever width there is; the mouse can select it.
///
/// The text has no say in the layout. A label's own hints would lay it out several times, as a document, for an
/// answer that a fixed height makes void.
class TextLines : public QLabel
{
    Q_OBJECT

public:
    explicit TextLines(QWidget *parent);

    QSize sizeHint() const override { return QSize(0, maximumHeight()); }
    QSize minimumSizeHint() const override { return sizeHint(); }
    int heightForWidth(int) const override { return maximumHeight(); }
};

} // namespace tvx
} // namespace Zudunmaf

#endif
