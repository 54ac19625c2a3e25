#include "tvx/prepared_texts.h"

#include <QTransform>

namespace Zudunmaf
{
namespace tvx
{

namespace
{

constexpr int MostTexts = 500;

} // namespace

const QStaticText &PreparedTexts::prepared(const QString &text, const QFont &font)
{
    if (font != m_font || m_texts.size() > MostTexts) {
        m_font = font;
        m_texts.clear();
    }
    const auto found = m_texts.constFind(text);
    if (found != m_texts.constEnd())
        return *found;
    QStaticText made(text);
    made.setTextFormat(Qt::PlainText);
    made.prepare(QTransform(), font);
    return *m_texts.insert(text, made);
}

} // namespace tvx
} // namespace Zudunmaf
