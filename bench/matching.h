#ifndef BENCH_MATCHING_H
#define BENCH_MATCHING_H

namespace Zudunmaf::bench
{

/// Returns the seconds to match `featureCount` features with three ConditionMatcher objects: a range of integers, a range
/// of floats in other units, and a text.
double secondsToMatch(int featureCount);

} // namespace Zudunmaf::bench

#endif
