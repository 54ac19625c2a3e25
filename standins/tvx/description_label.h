#ifndef TVX_DESCRIPTION_LABEL_H
#define TVX_DESCRIPTION_LABEL_H

#include "tvx/text_lines.h"

namespace Zudunmaf
{
namespace tvx
{

/// Two lines about the current attribute. A line that is too long is elided on the screen only: text() is complete, and
/// so is the tool tip, up to 1000 characters. The user can select the text with the mouse.
class DescriptionLabel : public TextLines
{
    Q_OBJECT

public:
    explicit DescriptionLabel(QWidget *parent);

    /// Sets the lines, whose parts are joined by factSeparator(). With `isTitle`, the first part is in bold.
    void setLines(const QString &first, const QString &second, bool isTitle);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool m_isTitle = false;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
