#include "walk_of_assign.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/gen_services.h"

#include <QTableWidget>

namespace Zudunmaf::demo
{

namespace
{

constexpr char Integer[] = "vertex_count";
constexpr char Float[] = "rotation";
constexpr char Option[] = "shape";
constexpr char Text[] = "copper_note";
constexpr char Boolean[] = "mirrored";
constexpr char Length[] = "corner_radius";

} // namespace

std::vector<Walk::Step> WalkOfAssign::steps()
{
    return {
        {"add-integer", [this] { add(Integer, Way::Mnemonic); }},
        {"add-float", [this] { add(Float, Way::Enter); }},
        {"add-option", [this] { add(Option, Way::DoubleClick); }},
        {"add-text", [this] { add(Text, Way::Mnemonic); }},
        {"add-boolean", [this] { add(Boolean, Way::Enter); }},
        {"integer", [this] { edit(Integer, "12\n", "12"); }},
        {"float-editor", [this] { openEditor(Float); }},
        {"float", [this] { finishEditor(Float, "2.5\n", "2.500"); }},
        {"option", [this] { edit(Option, "oct\n", "octagon"); }},
        {"text", [this] { edit(Text, "thin\n", "thin"); }},
        {"boolean", [this] { tryBoolean(); }},
        {"default", [this] { resetByMenu(Integer, "4"); }},
        {"remove", [this] { removeBoolean(); }},
        {"units", [this] { changeUnits(); }},
        {"new-units", [this] { addInNewUnits(); }},
    };
}

void WalkOfAssign::tryBoolean()
{
    if (!goToRow(*user().chosenList, Boolean))
        return;
    user().press(Qt::Key_F2);
    expect(!isEditing(), QStringLiteral("no editor for a boolean"));
}

void WalkOfAssign::removeBoolean()
{
    if (!goToRow(*user().chosenList, Boolean))
        return;
    user().press(Qt::Key_Delete);
    const QTableWidget *offer = user().topView;
    expect(DialogUser::rowOf(user().chosenList, Boolean) == -1,
           QStringLiteral("'%1' to be removed").arg(Boolean));
    expect(!offer->isRowHidden(DialogUser::rowOf(offer, Boolean)),
           QStringLiteral("'%1' on offer again").arg(Boolean));
}

void WalkOfAssign::changeUnits()
{
    typeFilter(QString());
    const int inch = gen__torvex_get_str_units("inch");
    const int mm = gen__torvex_get_str_units("mm");
    const QString before = cellText(Float);
    dialog().setDisplayUnits(dialog().displayUnits() == inch ? mm : inch);
    expect(cellText(Float) == before, QStringLiteral("the chosen values to stay"));
}

void WalkOfAssign::addInNewUnits()
{
    add(Length, Way::Mnemonic);
    const bool inInches = dialog().displayUnits() == gen__torvex_get_str_units("inch");
    const QString expected = inInches ? QStringLiteral("0.010 inch") : QStringLiteral("0.250 mm");
    expect(cellText(Length) == expected, QStringLiteral("'%1' to read '%2'").arg(Length, expected));
}

} // namespace Zudunmaf::demo
