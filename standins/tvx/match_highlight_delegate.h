#ifndef TVX_MATCH_HIGHLIGHT_DELEGATE_H
#define TVX_MATCH_HIGHLIGHT_DELEGATE_H

#include <QRegularExpression>
#include <QStyledItemDelegate>
#include <QTextLayout>

namespace Zudunmaf
{
namespace tvx
{

/// Paints the cells of the available table, each text in one line, and marks in the names what the filter text matches,
/// in colours of the palette. Rows are as high as those of the chosen table.
class MatchHighlightDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    explicit MatchHighlightDelegate(QObject *parent);

    /// Sets the filter text; an empty one removes the marks. The view must be updated by the caller.
    void setSearchedText(const QString &text);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    using Marks = QVector<QTextLayout::FormatRange>;

    Marks marksOf(const QStyleOptionViewItem &cell) const;
    void paintText(QPainter *painter, const QStyleOptionViewItem &cell, const QRect &area,
                   const Marks &marks) const;

    QRegularExpression m_searched;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
