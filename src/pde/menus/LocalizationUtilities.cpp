#include "pde/menus/LocalizationUtilities.h"

#include "pde/ticket/LocalizedText.h"
#include "toolkit/controls/Menu.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QLayout>

namespace kesta {

void SetLocalizedStaticText(const Bundle& bundle, QAnyStringView key, QWidget* label, const QStringList& arguments)
{
    if (!label || key.isNull())
        return;
    SetControlText(label, LocalizedFormat(bundle, key, arguments));
    label->update();
}

void SetLocalizedControlTitle(const Bundle& bundle, QAnyStringView key, QWidget* control, const QStringList& arguments)
{
    if (control && !key.isNull())
        SetControlText(control, LocalizedFormat(bundle, key, arguments));
}

void SetLocalizedWindowTitle(const Bundle& bundle, QAnyStringView key, QWidget* window, const QStringList& arguments)
{
    if (window && !key.isNull())
        window->setWindowTitle(LocalizedFormat(bundle, key, arguments));
}

void SetLocalizedMenuTitle(const Bundle& bundle, QAnyStringView key, Menu* menu, int position,
                           const QStringList& arguments)
{
    if (menu && !key.isNull() && position >= 1 && position <= menu->count())
        menu->items[position - 1].title = LocalizedFormat(bundle, key, arguments);
}

void SetControlBestRect(QWidget* control)
{
    if (!control)
        return;
    const QWidget* parent = control->parentWidget();
    const bool isLaidOut = parent && parent->layout() && parent->layout()->indexOf(control) >= 0;
    if (isLaidOut)
        control->updateGeometry();
    else
        control->resize(control->sizeHint());
}

} // namespace kesta
