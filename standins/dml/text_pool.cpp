#include "dml/text_pool.h"

namespace Zudunmaf::dml
{

const char *TextPool::keep(const QString &text)
{
    return m_texts.emplace_back(text.toUtf8()).constData();
}

const char *const *TextPool::keep(const QStringList &texts)
{
    std::vector<const char *> &list = m_lists.emplace_back();
    list.reserve(size_t(texts.size()));
    for (const QString &text : texts)
        list.push_back(keep(text));
    return list.data();
}

} // namespace Zudunmaf::dml
