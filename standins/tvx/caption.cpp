#include "tvx/caption.h"

namespace Zudunmaf
{
namespace tvx
{

Caption::Caption(const QString &text, QWidget *parent)
    : QLabel(text, parent)
{
    setTextFormat(Qt::PlainText);
}

QSize Caption::sizeHint() const
{
    ensurePolished();
    QString shown = text();
    const auto mark = shown.indexOf(QLatin1Char('&'));
    if (mark >= 0)
        shown.remove(mark, 1);
    return QSize(fontMetrics().horizontalAdvance(shown), fontMetrics().height()).grownBy(contentsMargins());
}

} // namespace tvx
} // namespace Zudunmaf
