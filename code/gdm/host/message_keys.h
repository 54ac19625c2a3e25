#ifndef GDM_HOST_MESSAGE_KEYS_H
#define GDM_HOST_MESSAGE_KEYS_H

/// The keys of all messages of the library. A key is passed to gen__nls_nlst() as a whole, so a text that is used in
/// several places has a key for each of them, and each can have a translation of its own. The three keys of "All
/// Groups" of a dialog are the exception: their translations must be equal, because the selected row of the group list
/// is compared with the other two.
///
/// Not messages, and never translated: the window title "Assign Attributes", conditions in cells and lines, and the
/// reasons that are meant for logs.
namespace Zudunmaf
{
namespace keys
{

// Range editors
constexpr char IntRangeFrom[] = "@$@#gdm_qt@$@#GENERAL@$@#337@$@#From:";
constexpr char IntRangeTo[] = "@$@#gdm_qt@$@#GENERAL@$@#355@$@#To:";
constexpr char FloatRangeFrom[] = "@$@#gdm_qt@$@#GENERAL@$@#426@$@#From:";
constexpr char FloatRangeTo[] = "@$@#gdm_qt@$@#GENERAL@$@#445@$@#To:";

// AttributesFilterDialog
constexpr char FilterHeaderName[] = "@$@#gdm_qt@$@#GENERAL@$@#967@$@#Name";
constexpr char FilterHeaderCondition[] = "@$@#gdm_qt@$@#GENERAL@$@#968@$@#Condition";
constexpr char FilterSetCondition[] = "@$@#gdm_qt@$@#GENERAL@$@#976@$@#Set Condition";
constexpr char FilterClearCondition[] = "@$@#gdm_qt@$@#GENERAL@$@#978@$@#Clear Condition";
constexpr char FilterEntityComponent[] = "@$@#gdm_qt@$@#GENERAL@$@#992@$@#Component";
constexpr char FilterEntityFeature[] = "@$@#gdm_qt@$@#GENERAL@$@#993@$@#Feature";
constexpr char FilterEntityLayer[] = "@$@#gdm_qt@$@#GENERAL@$@#994@$@#Layer";
constexpr char FilterEntityJob[] = "@$@#gdm_qt@$@#GENERAL@$@#995@$@#Job";
constexpr char FilterEntityStep[] = "@$@#gdm_qt@$@#GENERAL@$@#996@$@#Step";
constexpr char FilterEntityNet[] = "@$@#gdm_qt@$@#GENERAL@$@#997@$@#Net";
constexpr char FilterEntitySymbol[] = "@$@#gdm_qt@$@#GENERAL@$@#998@$@#Symbol";
constexpr char FilterEntityWheel[] = "@$@#gdm_qt@$@#GENERAL@$@#999@$@#Wheel";
constexpr char FilterEntityAll[] = "@$@#gdm_qt@$@#GENERAL@$@#1000@$@#All Entities";
constexpr char FilterAllGroupsRow[] = "@$@#gdm_qt@$@#GENERAL@$@#1015@$@#All Groups";
constexpr char FilterAllGroupsAtFill[] = "@$@#gdm_qt@$@#GENERAL@$@#1055@$@#All Groups";
constexpr char FilterAllGroupsAtFilter[] = "@$@#gdm_qt@$@#GENERAL@$@#1233@$@#All Groups";

// FeatureAttributesDialog
constexpr char FeatureHeaderName[] = "@$@#gdm_qt@$@#GENERAL@$@#1277@$@#Name";
constexpr char FeatureHeaderValue[] = "@$@#gdm_qt@$@#GENERAL@$@#1278@$@#Value";
constexpr char FeatureEditValue[] = "@$@#gdm_qt@$@#GENERAL@$@#1287@$@#Edit attribute value";
constexpr char FeatureSetDefault[] = "@$@#gdm_qt@$@#GENERAL@$@#1289@$@#Set default value";
constexpr char FeatureEntityFeature[] = "@$@#gdm_qt@$@#GENERAL@$@#1303@$@#Feature";
constexpr char FeatureAllGroupsRow[] = "@$@#gdm_qt@$@#GENERAL@$@#1318@$@#All Groups";
constexpr char FeatureAllGroupsAtFill[] = "@$@#gdm_qt@$@#GENERAL@$@#1358@$@#All Groups";
constexpr char FeatureAllGroupsAtFilter[] = "@$@#gdm_qt@$@#GENERAL@$@#1524@$@#All Groups";

// Description of an attribute
constexpr char TipInternalName[] = "@$@#gdm_qt@$@#GENERAL@$@#1739@$@#internal name: %1";
constexpr char TipDisplayName[] = "@$@#gdm_qt@$@#GENERAL@$@#1740@$@#display name : %1";
constexpr char TipGroup[] = "@$@#gdm_qt@$@#GENERAL@$@#1741@$@#group        : %1";
constexpr char TipBoolean[] = "@$@#gdm_qt@$@#GENERAL@$@#1744@$@#type         : boolean";
constexpr char TipText[] = "@$@#gdm_qt@$@#GENERAL@$@#1747@$@#type         : text";
constexpr char TipTextDefault[] = "@$@#gdm_qt@$@#GENERAL@$@#1748@$@#default val. : %1";
constexpr char TipTextNoDefault[] = "@$@#gdm_qt@$@#GENERAL@$@#1748@$@#N/A";
constexpr char TipOption[] = "@$@#gdm_qt@$@#GENERAL@$@#1751@$@#type         : option";
constexpr char TipOptionDefault[] = "@$@#gdm_qt@$@#GENERAL@$@#1752@$@#default val. : %1";
constexpr char TipOptionNoDefault[] = "@$@#gdm_qt@$@#GENERAL@$@#1752@$@#N/A";
constexpr char TipInteger[] = "@$@#gdm_qt@$@#GENERAL@$@#1755@$@#type         : integer";
constexpr char TipIntegerDefault[] = "@$@#gdm_qt@$@#GENERAL@$@#1756@$@#default val. : %1";
constexpr char TipIntegerRange[] = "@$@#gdm_qt@$@#GENERAL@$@#1757@$@#range        : [%1..%2]";
constexpr char TipFloat[] = "@$@#gdm_qt@$@#GENERAL@$@#1760@$@#type         : float";
constexpr char TipFloatDefault[] = "@$@#gdm_qt@$@#GENERAL@$@#1761@$@#default val. : %1";
constexpr char TipFloatRange[] = "@$@#gdm_qt@$@#GENERAL@$@#1768@$@#range        : [%1..%2]";
constexpr char TipFloatUnits[] = "@$@#gdm_qt@$@#GENERAL@$@#1770@$@#units        : %1";

} // namespace keys
} // namespace Zudunmaf

#endif
