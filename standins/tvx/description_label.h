#ifndef TVX_DESCRIPTION_LABEL_H
#define TVX_DESCRIPTION_LABEL_H

#include "tvx/text_lines.h"

namespace Zudunmaf
{
namespace tvx
{

/// Two lines about the current attribute, the first one beginning in bold. A line that is too long is elided on the
/// screen only: text() is complete, and so is the tool tip. The user can select the text with the mouse.
class DescriptionLabel : public TextLines
{
    Q_OBJECT

public:
    explicit DescriptionLabel(QWidget *parent);

    /// Sets the lines. `emphasized` is the start of the first line, and `rest` follows it.
    void setLines(const QString &emphasized, const QString &rest, const QString &second);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_emphasizedLength = 0;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
