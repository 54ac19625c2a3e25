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
    QString shown = text();
    shown.remove(QLatin1Char('&'));
    return QSize(fontMetrics().horizontalAdvance(shown), fontMetrics().height());
}

} // namespace tvx
} // namespace Zudunmaf
