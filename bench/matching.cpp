#include "matching.h"

#include "gdm/conditions/condition_matcher.h"
#include "gdm/host/gen_services.h"

#include <QElapsedTimer>

#include <vector>

namespace Zudunmaf::bench
{

namespace
{

struct Feature {
    QVariant width;
    QVariant depth;
    QVariant finish;
};

std::vector<Feature> makeFeatures(int count)
{
    std::vector<Feature> features;
    features.reserve(std::size_t(count));
    for (int i = 0; i < count; ++i)
        features.push_back({i % 20, i % 1000 * 0.001, QString::fromLatin1(i % 3 ? "matt" : "glossy")});
    return features;
}

AttrCondition bounds(const char *name, int type, double low, double high)
{
    AttrCondition made;
    made.name = QString::fromLatin1(name);
    made.type = type;
    made.isSet = true;
    made.low = low;
    made.high = high;
    made.unitsText = QString::fromLatin1(type == DmlAttrFloat ? "inch" : "");
    return made;
}

} // namespace

double secondsToMatch(int featureCount)
{
    const std::vector<Feature> features = makeFeatures(featureCount);
    AttrCondition text;
    text.type = DmlAttrText;
    text.isSet = true;
    text.text = QString::fromLatin1("matt");

    QElapsedTimer timer;
    timer.start();
    const ConditionMatcher width(bounds("width", DmlAttrInteger, 0, 19));
    const ConditionMatcher depth(bounds("depth", DmlAttrFloat, 0, 1), gen__torvex_get_str_units("mm"));
    const ConditionMatcher finish(text);
    int satisfied = 0;
    for (const Feature &feature : features)
        satisfied +=
            width.matches(feature.width) && depth.matches(feature.depth) && finish.matches(feature.finish);
    const double seconds = double(timer.nsecsElapsed()) * 1e-9;
    if (satisfied != featureCount - (featureCount + 2) / 3)
        qFatal("%d features satisfy the conditions", satisfied);
    return seconds;
}

} // namespace Zudunmaf::bench
