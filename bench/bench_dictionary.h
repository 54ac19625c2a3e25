#ifndef BENCH_BENCH_DICTIONARY_H
#define BENCH_BENCH_DICTIONARY_H

#include <QString>
#include <QStringList>

/// The dictionary of the benchmarks: attributes of mixed types in 40 groups, for features and layers.
namespace Zudunmaf::bench
{

/// Loads a dictionary of `count` attributes with the identifier `count`. Does nothing if it is already loaded.
void loadDictionary(int count);

/// Returns the names of its attributes, in order.
QStringList attributeNames(int count);

} // namespace Zudunmaf::bench

#endif
