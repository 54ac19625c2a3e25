#ifndef DML_TEXT_POOL_H
#define DML_TEXT_POOL_H

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <deque>
#include <vector>

namespace Zudunmaf::dml
{

/// Owns the texts to which the definitions of one dictionary point. What it hands out is NUL-terminated UTF-8
/// and stays where it is until the pool goes.
class TextPool
{
public:
    const char *keep(const QString &text);
    const char *const *keep(const QStringList &texts);

private:
    // A deque leaves its elements in place while it grows.
    std::deque<QByteArray> m_texts;
    std::deque<std::vector<const char *>> m_lists;
};

} // namespace Zudunmaf::dml

#endif
