#ifndef BENCH_MATCHING_H
#define BENCH_MATCHING_H

namespace Zudunmaf::bench
{

/// Seconds for `featureCount` features, each against a ConditionMatcher for three conditions: a range of integers, a range of floats in other
/// units, and a text.
double secondsToMatch(int featureCount);

} // namespace Zudunmaf::bench

#endif
