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
    auto found = m_texts.find(text);
    if (found == m_texts.end()) {
        QStaticText made(text);
        made.setTextFormat(Qt::PlainText);
        made.prepare(QTransform(), font);
        found = m_texts.insert(text, made);
    }
    return *found;
}

} // namespace tvx
} // namespace Zudunmaf
