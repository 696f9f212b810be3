#include "toolkit/controls/PictureView.h"

#include "toolkit/controls/AccessibleControls.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/style/Pictures.h"

#include <QDir>
#include <QPainter>

namespace kesta {
namespace {

constexpr QSize kPictureSize{48, 48};

} // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent)
{
    InstallAccessibleControls();
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void PictureView::setFolder(const QString& folder)
{
    folder_ = folder;
    updateGeometry();
    update();
}

void PictureView::setPicture(const QString& name)
{
    setPictures({name});
}

void PictureView::setPictures(const QStringList& names)
{
    names_ = names;
    names_.removeAll(QString());
    updateGeometry();
    update();
}

QSize PictureView::sizeHint() const
{
    const QPixmap lowest = PictureNamed(names_.isEmpty() ? QString() : QDir(folder_).filePath(names_.front()), 1);
    return lowest.isNull() ? kPictureSize : lowest.size().expandedTo(kPictureSize);
}

void PictureView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    if (SendControlEvent(*this, DrawEvent{.painter = &painter, .bounds = rect()}) != EventResult::NotHandled)
        return;
    painter.setOpacity(isEnabled() ? 1 : kDisabledPictureOpacity);
    for (const QString& name : names_) {
        const QPixmap picture = PictureNamed(QDir(folder_).filePath(name), devicePixelRatioF());
        const QSizeF size = picture.deviceIndependentSize();
        // On whole points, so that lines stay crisp.
        painter.drawPixmap(qRound((width() - size.width()) / 2), qRound((height() - size.height()) / 2), picture);
    }
}

} // namespace kesta
