#include "pde/forms/InfoMark.h"

#include "toolkit/style/KestaColors.h"
#include "toolkit/style/Pictures.h"

#include <QPainter>

namespace kesta {

void DrawInfoMark(QPainter& painter, const QRectF& bounds, const Bundle& bundle)
{
    const QPixmap mark = PictureNamed(PictureFolder(bundle) + QStringLiteral("/ButtonGraphic_Info.png"),
                                      painter.device()->devicePixelRatioF(), CurrentColors().text2);
    painter.drawPixmap(bounds.topLeft(), mark);
}

} // namespace kesta
