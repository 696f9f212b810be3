#include "toolkit/controls/TabControl.h"

#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/Mnemonics.h"

namespace kesta {

TabControl::TabControl(QWidget* parent) : QTabBar(parent)
{
    setExpanding(false);
    setDrawBase(true);
    connect(this, &QTabBar::currentChanged, this, [this] {
        if (settingByCode_ == 0)
            SendControlEvent(*this, HitEvent{.value = value()});
    });
}

QStringList TabControl::titles() const
{
    QStringList titles;
    for (int index = 0; index < count(); ++index)
        titles << WithoutMnemonic(tabText(index));
    return titles;
}

void TabControl::setTitles(const QStringList& titles)
{
    ++settingByCode_;
    const int before = value();
    while (count() > 0)
        removeTab(count() - 1);
    for (const QString& title : titles)
        addTab(title);
    setValue(std::max(before, 1));
    --settingByCode_;
}

void TabControl::setValue(int position)
{
    ++settingByCode_;
    setCurrentIndex(std::clamp(position, std::min(1, count()), count()) - 1);
    --settingByCode_;
}

bool TabControl::chooseTab(int position)
{
    if (!isEnabled() || position < 1 || position > count() || !isTabEnabled(position - 1))
        return false;
    setCurrentIndex(position - 1);
    return true;
}

} // namespace kesta
