#ifndef TVX_TEXT_LINES_H
#define TVX_TEXT_LINES_H

#include <QLabel>

namespace Zudunmaf
{
namespace tvx
{

/// A plain text that wraps within a fixed height and takes whatever width there is; the mouse can select it.
///
/// The text has no say in the layout: a label's own hints would lay it out several times for an answer that a fixed
/// height makes void. And it can be selected only while the mouse is over it or some of it is selected, since a label
/// whose text can be selected makes a document of each text that it is given.
class TextLines : public QLabel
{
    Q_OBJECT

public:
    explicit TextLines(QWidget *parent);

    QSize sizeHint() const override { return QSize(0, maximumHeight()); }
    QSize minimumSizeHint() const override { return sizeHint(); }
    int heightForWidth(int) const override { return maximumHeight(); }

protected:
    bool event(QEvent *event) override;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
