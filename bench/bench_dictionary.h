#ifndef BENCH_BENCH_DICTIONARY_H
#define BENCH_BENCH_DICTIONARY_H

#include <QString>
#include <QStringList>

/// The dictionary that everything is measured over: attributes of mixed types in 40 groups, carried by
/// features and layers alike.
namespace Zudunmaf::bench
{

/// Loads a dictionary of `count` attributes; its identifier is `count` too. Loading it twice is harmless.
void loadDictionary(int count);

/// The names of its attributes, in their order.
QStringList attributeNames(int count);

} // namespace Zudunmaf::bench

#endif
