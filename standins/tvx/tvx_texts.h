#ifndef TVX_TVX_TEXTS_H
#define TVX_TVX_TEXTS_H

#include "common/message_catalogue.h"

#include <QString>

namespace Zudunmaf
{
namespace tvx
{

/// The keys of the base dialog's own messages. The letter after "&" is the mnemonic of a widget; a translation keeps
/// the mnemonics distinct.
namespace texts
{

constexpr char Entity[] = "@$@#tvx@$@#GENERAL@$@#1@$@#&Entity:";
constexpr char Group[] = "@$@#tvx@$@#GENERAL@$@#2@$@#&Group:";
constexpr char Filter[] = "@$@#tvx@$@#GENERAL@$@#3@$@#&Filter:";
constexpr char FilterHint[] = "@$@#tvx@$@#GENERAL@$@#4@$@#Part of a name, * and ? allowed";
constexpr char Available[] = "@$@#tvx@$@#GENERAL@$@#5@$@#A&ttributes:";
constexpr char Chosen[] = "@$@#tvx@$@#GENERAL@$@#6@$@#C&hosen:";
constexpr char ShownOfTotal[] = "@$@#tvx@$@#GENERAL@$@#7@$@#%1 of %2";

constexpr char Add[] = "@$@#tvx@$@#GENERAL@$@#10@$@#&Add";
constexpr char AddHint[] =
    "@$@#tvx@$@#GENERAL@$@#11@$@#Add the selected attributes (Enter), and edit the last one (Ctrl+Enter)";
constexpr char Remove[] = "@$@#tvx@$@#GENERAL@$@#12@$@#&Remove";
constexpr char RemoveHint[] = "@$@#tvx@$@#GENERAL@$@#13@$@#Remove the selected attributes (Delete)";
constexpr char Undo[] = "@$@#tvx@$@#GENERAL@$@#14@$@#&Undo";
constexpr char UndoHint[] = "@$@#tvx@$@#GENERAL@$@#15@$@#Undo the last step (Ctrl+Z)";
constexpr char UndoStep[] = "@$@#tvx@$@#GENERAL@$@#80@$@#Undo: %1 (Ctrl+Z)";
constexpr char RedoStep[] = "@$@#tvx@$@#GENERAL@$@#81@$@#Redo: %1 (Ctrl+Shift+Z)";
constexpr char StepAdd[] = "@$@#tvx@$@#GENERAL@$@#82@$@#add %1";
constexpr char StepAddSeveral[] = "@$@#tvx@$@#GENERAL@$@#83@$@#add %1 attributes";
constexpr char StepRemove[] = "@$@#tvx@$@#GENERAL@$@#84@$@#remove %1";
constexpr char StepRemoveSeveral[] = "@$@#tvx@$@#GENERAL@$@#85@$@#remove %1 attributes";
constexpr char StepEdit[] = "@$@#tvx@$@#GENERAL@$@#86@$@#edit %1";
constexpr char EscapeWarning[] =
    "@$@#tvx@$@#GENERAL@$@#88@$@#Escape again discards the changes of the chosen attributes.";
constexpr char ChosenHint[] = "@$@#tvx@$@#GENERAL@$@#87@$@#Edit the current row (F2)";
constexpr char ClearAll[] = "@$@#tvx@$@#GENERAL@$@#16@$@#Clear a&ll";
constexpr char ClearAllHint[] =
    "@$@#tvx@$@#GENERAL@$@#17@$@#Remove all chosen attributes; Undo restores them";
constexpr char Ok[] = "@$@#tvx@$@#GENERAL@$@#18@$@#&OK";
constexpr char Cancel[] = "@$@#tvx@$@#GENERAL@$@#19@$@#&Cancel";

constexpr char NoDictionary[] = "@$@#tvx@$@#GENERAL@$@#20@$@#There is no attribute dictionary.";
constexpr char NothingMatches[] =
    "@$@#tvx@$@#GENERAL@$@#21@$@#No attributes to choose here. Clear the filter, or "
    "select all entities and all groups.";
constexpr char NothingLeft[] = "@$@#tvx@$@#GENERAL@$@#22@$@#No attribute is left to choose.";
constexpr char NothingChosen[] =
    "@$@#tvx@$@#GENERAL@$@#23@$@#Nothing chosen yet. Select attributes above and press Enter or Add.";

constexpr char NotRead[] =
    "@$@#tvx@$@#GENERAL@$@#24@$@#The attributes could not be read, or there is no such "
    "dictionary.";

constexpr char Description[] = "@$@#tvx@$@#GENERAL@$@#30@$@#Description";
constexpr char Preview[] = "@$@#tvx@$@#GENERAL@$@#31@$@#Result";
constexpr char PreviewLine[] = "@$@#tvx@$@#GENERAL@$@#32@$@#Result: %1";
constexpr char Limits[] = "@$@#tvx@$@#GENERAL@$@#33@$@#Allowed: %1";
constexpr char AtLeast[] = "@$@#tvx@$@#GENERAL@$@#40@$@#At least %1";
constexpr char AtMost[] = "@$@#tvx@$@#GENERAL@$@#41@$@#At most %1";
constexpr char NumberNeeded[] = "@$@#tvx@$@#GENERAL@$@#42@$@#A number from %1 to %2";
constexpr char WholeNumberNeeded[] = "@$@#tvx@$@#GENERAL@$@#43@$@#A whole number from %1 to %2";
constexpr char MostDecimals[] = "@$@#tvx@$@#GENERAL@$@#45@$@#At most %1 decimals";
constexpr char NotStored[] = "@$@#tvx@$@#GENERAL@$@#44@$@#%1: \"%2\" was not stored. %3.";
constexpr char TypeBoolean[] = "@$@#tvx@$@#GENERAL@$@#34@$@#boolean";
constexpr char TypeText[] = "@$@#tvx@$@#GENERAL@$@#35@$@#text";
constexpr char TypeOption[] = "@$@#tvx@$@#GENERAL@$@#36@$@#option";
constexpr char TypeInteger[] = "@$@#tvx@$@#GENERAL@$@#37@$@#integer";
constexpr char TypeFloat[] = "@$@#tvx@$@#GENERAL@$@#38@$@#float";

constexpr char TextSuchAs[] = "@$@#tvx@$@#GENERAL@$@#50@$@#text, such as %1";
constexpr char YesOrNo[] = "@$@#tvx@$@#GENERAL@$@#51@$@#yes or no";
constexpr char Any[] = "@$@#tvx@$@#GENERAL@$@#52@$@#any";
constexpr char Carried[] = "@$@#tvx@$@#GENERAL@$@#53@$@#carried";
constexpr char Yes[] = "@$@#tvx@$@#GENERAL@$@#54@$@#yes";
constexpr char No[] = "@$@#tvx@$@#GENERAL@$@#55@$@#no";
constexpr char Range[] = "@$@#tvx@$@#GENERAL@$@#56@$@#%1 to %2";
constexpr char More[] = "@$@#tvx@$@#GENERAL@$@#57@$@#%1 more";
constexpr char Default[] = "@$@#tvx@$@#GENERAL@$@#58@$@#default %1";
constexpr char FoundElsewhere[] =
    "@$@#tvx@$@#GENERAL@$@#60@$@#No match here. Other entities or groups have %2: %1.";
constexpr char IsChosen[] = "@$@#tvx@$@#GENERAL@$@#61@$@#%1 is chosen already.";
constexpr char AreChosen[] = "@$@#tvx@$@#GENERAL@$@#62@$@#%1 matching attributes are chosen already.";
constexpr char NothingFound[] = "@$@#tvx@$@#GENERAL@$@#63@$@#No attribute matches \"%1\".";
constexpr char ByDescription[] = "@$@#tvx@$@#GENERAL@$@#64@$@#By description: %1.";
constexpr char ByName[] = "@$@#tvx@$@#GENERAL@$@#65@$@#By name: %1.";
constexpr char EnterShowsFirst[] = "@$@#tvx@$@#GENERAL@$@#66@$@#Press Enter to show the first.";
constexpr char Widen[] = "@$@#tvx@$@#GENERAL@$@#67@$@#&Widen to all entities and groups";
constexpr char WidenHint[] = "@$@#tvx@$@#GENERAL@$@#68@$@#Show attributes that the criteria hide";
constexpr char ShowFirst[] = "@$@#tvx@$@#GENERAL@$@#69@$@#Sho&w %1";
constexpr char ChosenTimes[] = "@$@#tvx@$@#GENERAL@$@#70@$@#chosen, conditions: %1";

} // namespace texts

/// Returns the text of a key in the user's language.
inline QString textOf(const char *key)
{
    return QString::fromUtf8(standins::messageOf(key));
}

/// Returns the same text without mnemonic and colon, for a screen reader.
inline QString spokenTextOf(const char *key)
{
    QString text = textOf(key).remove(QLatin1Char('&'));
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1) : text;
}

} // namespace tvx
} // namespace Zudunmaf

#endif
