#ifndef TVX_PREPARED_TEXTS_H
#define TVX_PREPARED_TEXTS_H

#include <QFont>
#include <QHash>
#include <QStaticText>
#include <QString>

namespace Zudunmaf
{
namespace tvx
{

/// Texts that are laid out once and painted often. QPainter::drawText() lays out its text each time, which is most of
/// the time of a key over few rows.
class PreparedTexts
{
public:
    /// Returns the text, laid out in one line in this font. The reference is valid until the next call.
    const QStaticText &prepared(const QString &text, const QFont &font);

private:
    QFont m_font;
    QHash<QString, QStaticText> m_texts;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
