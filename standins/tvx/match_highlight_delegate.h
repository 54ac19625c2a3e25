#ifndef TVX_MATCH_HIGHLIGHT_DELEGATE_H
#define TVX_MATCH_HIGHLIGHT_DELEGATE_H

#include "tvx/match_finder.h"

#include <QStyledItemDelegate>

namespace Zudunmaf
{
namespace tvx
{

/// Paints the rows on offer, each text in one line: in the name, what the filter text matches stands out, in colours of
/// the palette. Rows are as high as those of the delegate with which the chosen ones are edited.
class MatchHighlightDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit MatchHighlightDelegate(QObject *parent);

    /// Empty for no mark.
    void setSearchedText(const QString &text) { m_finder.setPattern(text); }

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    void paintText(QPainter *painter, const QStyleOptionViewItem &option, const QRect &area,
                   const QVector<MatchFinder::Match> &matches) const;

    MatchFinder m_finder;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
