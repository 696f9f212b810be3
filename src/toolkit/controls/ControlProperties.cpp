#include "toolkit/controls/ControlProperties.h"

#include "platform/plugins/Bundle.h"

#include <QByteArray>
#include <QWidget>

namespace kesta {
namespace {

constexpr FourCharCode kBundleTag = "Bndl"_code;

QByteArray PropertyName(FourCharCode creator, FourCharCode tag)
{
    return "kestaProperty" + QByteArray::number(creator, 16) + '.' + QByteArray::number(tag, 16);
}

} // namespace

void SetControlProperty(QWidget& control, FourCharCode creator, FourCharCode tag, const QVariant& value)
{
    control.setProperty(PropertyName(creator, tag).constData(), value);
}

QVariant GetControlProperty(const QWidget& control, FourCharCode creator, FourCharCode tag)
{
    return control.property(PropertyName(creator, tag).constData());
}

void SetControlBundle(QWidget& control, FourCharCode creator, const Bundle* bundle)
{
    SetControlProperty(control, creator, kBundleTag, bundle ? QVariant::fromValue(bundle) : QVariant());
}

const Bundle* GetControlBundle(const QWidget& control, FourCharCode creator)
{
    return GetControlProperty(control, creator, kBundleTag).value<const Bundle*>();
}

} // namespace kesta
