#include "filter_walk.h"

#include <QTableWidget>

namespace Zudunmaf::walk
{

namespace
{

constexpr int LayerRow = 2;

constexpr char Range[] = "width";
constexpr char Option[] = "film_polarity";
constexpr char Text[] = "layer_name";

} // namespace

std::vector<Walk::Step> FilterWalk::steps()
{
    return {
        {"layer", [this] { chooseLayer(); }},
        {"filter", [this] { filterByPartOfName(); }},
        {"add-integer", [this] { add(Range, AddMethod::Mnemonic); }},
        {"add-option", [this] { add(Option, AddMethod::Enter); }},
        {"add-text", [this] { add(Text, AddMethod::DoubleClick); }},
        {"range-editor", [this] { openEditor(Range); }},
        {"range", [this] { finishEditor(Range, "5\t9\n", "5 to 9"); }},
        {"option-editor", [this] { openEditor(Option); }},
        {"option", [this] { finishEditor(Option, "neg\n", "negative"); }},
        {"text", [this] { edit(Text, "top\n", "top"); }},
        {"clear", [this] { resetByMenu(Text, QString()); }},
    };
}

void FilterWalk::chooseLayer()
{
    constexpr char NotOfLayers[] = "vertex_count";
    const QTableWidget *available = user().topView;
    chooseEntity(LayerRow);
    expect(!available->isRowHidden(DialogUser::rowOf(available, Range)) &&
               available->isRowHidden(DialogUser::rowOf(available, NotOfLayers)),
           QStringLiteral("only attributes of layers to be visible"));
}

void FilterWalk::filterByPartOfName()
{
    const QTableWidget *available = user().topView;
    typeFilter(QStringLiteral("wid"));
    expect(!available->isRowHidden(DialogUser::rowOf(available, Range)) &&
               available->isRowHidden(DialogUser::rowOf(available, Option)),
           QStringLiteral("only attributes with 'wid' in their names to be visible"));
}

} // namespace Zudunmaf::walk
