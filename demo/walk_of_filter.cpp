#include "walk_of_filter.h"

#include <QTableWidget>

namespace Zudunmaf::demo
{

namespace
{

constexpr int LayerRow = 2;

constexpr char Range[] = "width";
constexpr char Option[] = "film_polarity";
constexpr char Text[] = "layer_name";

} // namespace

std::vector<Walk::Step> WalkOfFilter::steps()
{
    return {
        {"layer", [this] { chooseLayer(); }},
        {"filter", [this] { filterByPart(); }},
        {"add-integer", [this] { add(Range, Way::Mnemonic); }},
        {"add-option", [this] { add(Option, Way::Enter); }},
        {"add-text", [this] { add(Text, Way::DoubleClick); }},
        {"range-editor", [this] { openEditor(Range); }},
        {"range", [this] { finishEditor(Range, "5\t9\n", "5 to 9"); }},
        {"option-editor", [this] { openEditor(Option); }},
        {"option", [this] { finishEditor(Option, "neg\n", "negative"); }},
        {"text", [this] { edit(Text, "top\n", "top"); }},
        {"clear", [this] { resetByMenu(Text, QString()); }},
    };
}

void WalkOfFilter::chooseLayer()
{
    constexpr char notOfLayers[] = "vertex_count";
    const QTableWidget *offer = user().topView;
    chooseEntity(LayerRow);
    expect(!offer->isRowHidden(DialogUser::rowOf(offer, Range)) &&
               offer->isRowHidden(DialogUser::rowOf(offer, notOfLayers)),
           QStringLiteral("the attributes of layers alone"));
}

void WalkOfFilter::filterByPart()
{
    const QTableWidget *offer = user().topView;
    typeFilter(QStringLiteral("wid"));
    expect(!offer->isRowHidden(DialogUser::rowOf(offer, Range)) &&
               offer->isRowHidden(DialogUser::rowOf(offer, Option)),
           QStringLiteral("the attributes with 'wid' in their names alone"));
}

} // namespace Zudunmaf::demo
