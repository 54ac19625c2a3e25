#ifndef DML_TEXT_POOL_H
#define DML_TEXT_POOL_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <deque>
#include <vector>

namespace Zudunmaf::dml
{

/// Owns the texts that the definitions of one dictionary point to. The texts are NUL-terminated UTF-8; pointers stay
/// valid until the pool is destroyed.
class TextPool
{
public:
    const char *keep(const QString &text);
    const char *const *keep(const QStringList &texts);

private:
    // A deque does not move its elements when it grows.
    std::deque<QByteArray> m_texts;
    std::deque<std::vector<const char *>> m_lists;
};

} // namespace Zudunmaf::dml

#endif
