#ifndef GDM_HOST_HOST_TEXT_H
#define GDM_HOST_HOST_TEXT_H

#include "gdm/host/gen_services.h"

#include <QString>

#include <cstddef>
#include <cstring>

/// Conversion of host texts to QString: messages from the local 8-bit encoding, texts of the dictionary with the
/// constructor for NUL-terminated strings. Internal: not installed.
namespace Zudunmaf
{

/// Returns the text for a message key.
inline QString messageText(const char *key)
{
    return QString::fromLocal8Bit(gen__nls_nlst(key), -1);
}

/// A character field of a record as a NUL-terminated string. If the record is invalid and lacks the NUL, the string is
/// the whole field; nothing is read beyond it. The record must outlive the object.
template <std::size_t Width>
class FieldText
{
public:
    FieldText(const FieldText &) = delete;
    FieldText &operator=(const FieldText &) = delete;

    explicit FieldText(const char (&field)[Width])
        : m_text(field)
    {
        if (!std::memchr(field, '\0', Width)) {
            std::memcpy(m_bounded, field, Width);
            m_bounded[Width] = '\0';
            m_text = m_bounded;
        }
    }

    const char *bytes() const { return m_text; }
    QString toString() const { return QString(m_text); }

private:
    const char *m_text;
    char m_bounded[Width + 1];
};

/// Returns a character field as a QString.
template <std::size_t Width>
QString fieldString(const char (&field)[Width])
{
    return FieldText<Width>(field).toString();
}

} // namespace Zudunmaf

#endif
