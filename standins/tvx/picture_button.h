#ifndef TVX_PICTURE_BUTTON_H
#define TVX_PICTURE_BUTTON_H

#include <QPushButton>

namespace Zudunmaf
{
namespace tvx
{

/// A push button whose text stays beside its picture in a layout from right to left, where QCommonStyle aligns it to
/// the opposite edge, without a margin.
class PictureButton : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent *event) override;
};

} // namespace tvx
} // namespace Zudunmaf

#endif
