#include "assign_walk.h"

#include "gdm/dialogs/tvx_attributes_selection_dialog.h"
#include "gdm/host/gen_services.h"

#include <QTableWidget>

namespace Zudunmaf::walk
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

std::vector<Walk::Step> AssignWalk::steps()
{
    return {
        {"add-integer", [this] { add(Integer, AddMethod::Mnemonic); }},
        {"add-float", [this] { add(Float, AddMethod::Enter); }},
        {"add-option", [this] { add(Option, AddMethod::DoubleClick); }},
        {"add-text", [this] { add(Text, AddMethod::Mnemonic); }},
        {"add-boolean", [this] { add(Boolean, AddMethod::Enter); }},
        {"integer", [this] { edit(Integer, "12\n", "12"); }},
        {"float-editor", [this] { openEditor(Float); }},
        {"float", [this] { finishEditor(Float, "2.5\n", "2.500"); }},
        {"option", [this] { edit(Option, "oct\n", "octagon"); }},
        {"text", [this] { edit(Text, "thin\n", "thin"); }},
        {"boolean", [this] { tryToEditBoolean(); }},
        {"default", [this] { resetByMenu(Integer, "4"); }},
        {"remove", [this] { removeBoolean(); }},
        {"units", [this] { changeUnits(); }},
        {"new-units", [this] { addInNewUnits(); }},
    };
}

void AssignWalk::tryToEditBoolean()
{
    if (!goToRow(*user().chosenList, Boolean))
        return;
    user().press(Qt::Key_F2);
    expect(!isEditing(), QStringLiteral("no editor for a boolean"));
}

void AssignWalk::removeBoolean()
{
    if (!goToRow(*user().chosenList, Boolean))
        return;
    user().press(Qt::Key_Delete);
    const QTableWidget *available = user().topView;
    expect(DialogUser::rowOf(user().chosenList, Boolean) == -1,
           QStringLiteral("'%1' to be removed").arg(Boolean));
    expect(!available->isRowHidden(DialogUser::rowOf(available, Boolean)),
           QStringLiteral("'%1' to be available again").arg(Boolean));
}

void AssignWalk::changeUnits()
{
    typeFilter(QString());
    const int inch = gen__torvex_get_str_units("inch");
    const int mm = gen__torvex_get_str_units("mm");
    const QString before = cellText(Float);
    dialog().setDisplayUnits(dialog().displayUnits() == inch ? mm : inch);
    expect(cellText(Float) == before, QStringLiteral("the chosen values to keep their units"));
}

void AssignWalk::addInNewUnits()
{
    add(Length, AddMethod::Mnemonic);
    const bool inInches = dialog().displayUnits() == gen__torvex_get_str_units("inch");
    const QString expected = inInches ? QStringLiteral("0.010 inch") : QStringLiteral("0.250 mm");
    expect(cellText(Length) == expected, QStringLiteral("'%1' to read '%2'").arg(Length, expected));
}

} // namespace Zudunmaf::walk
