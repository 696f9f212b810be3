#pragma once

#include "host/script/ScriptFinder.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuControl.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/TabControl.h"

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace kesta::host {

// Which widgets an action of a script is for.

template <class... Widgets> bool IsOneOf(const QWidget& widget)
{
    return (qobject_cast<const Widgets*>(&widget) || ...);
}

inline bool IsChoosable(const QWidget& widget)
{
    return IsOneOf<MenuControl, HistoryComboBox, TabControl, ListView>(widget) || !GroupOf(widget).empty();
}

inline bool IsTypable(const QWidget& widget)
{
    return IsOneOf<QLineEdit, QAbstractSpinBox, QComboBox, QPlainTextEdit, SliderField>(widget);
}

inline bool IsCheckable(const QWidget& widget)
{
    const auto* button = qobject_cast<const QAbstractButton*>(&widget);
    return button && button->isCheckable();
}

inline bool IsButton(const QWidget& widget)
{
    return IsOneOf<QAbstractButton>(widget);
}

inline bool IsList(const QWidget& widget)
{
    return IsOneOf<ListView>(widget);
}

} // namespace kesta::host
