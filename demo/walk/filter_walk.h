#ifndef WALK_FILTER_WALK_H
#define WALK_FILTER_WALK_H

#include "walk.h"

namespace Zudunmaf::walk
{

/// Sets conditions on attributes of layers: an integer range, an option and a text, and clears the text again.
/// Needs the demo's built-in dictionary.
class FilterWalk : public Walk
{
public:
    using Walk::Walk;

protected:
    std::vector<Step> steps() override;

private:
    void chooseLayer();
    void filterByPartOfName();
};

} // namespace Zudunmaf::walk

#endif
