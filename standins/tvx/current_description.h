#ifndef TVX_CURRENT_DESCRIPTION_H
#define TVX_CURRENT_DESCRIPTION_H

#include <QString>

namespace Zudunmaf
{
namespace tvx
{

class AttributeFacts;
class SelectionWidgets;

/// Describes the current attribute: that of the open editor, of the chosen table if it has the focus, else of the
/// available table. First its names and its group, then what it takes. While an editor is open, the limits come first.
/// After an entry was refused, the first line says so.
class CurrentDescription
{
public:
    /// The widgets must outlive the object.
    explicit CurrentDescription(const SelectionWidgets &widgets);

    /// Shows the description.
    void show() const;

private:
    QString details(const AttributeFacts &facts) const;

    const SelectionWidgets &m_widgets;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
