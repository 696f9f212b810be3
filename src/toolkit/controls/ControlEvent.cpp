#include "toolkit/controls/ControlEvent.h"

#include <QVariant>

#include <algorithm>
#include <utility>
#include <vector>

namespace kesta {

struct EventHandler::Entry {
    EventFunction function;
    bool installed = true;
};

namespace {

constexpr char kHandlersProperty[] = "kestaHandlers";
constexpr char kNumberProperty[] = "controlNumber";
constexpr char kSignatureProperty[] = "controlSignature";

using Entries = std::vector<std::shared_ptr<EventHandler::Entry>>; // in order of installation

Entries EntriesOf(const QWidget& widget)
{
    return widget.property(kHandlersProperty).value<Entries>();
}

void SetEntries(QWidget& widget, const Entries& entries)
{
    widget.setProperty(kHandlersProperty, QVariant::fromValue(entries));
}

std::vector<QPointer<QWidget>> FromInnermost(QWidget& control)
{
    std::vector<QPointer<QWidget>> chain{&control};
    while (!chain.back()->isWindow() && chain.back()->parentWidget())
        chain.emplace_back(chain.back()->parentWidget());
    return chain;
}

} // namespace

bool TextTypedEvent::isEditingOnly() const
{
    return std::ranges::all_of(typed, [](QChar c) { return c.category() == QChar::Other_Control; });
}

EventHandler InstallEventFunction(QWidget& target, EventFunction function)
{
    EventHandler handler;
    handler.target_ = &target;
    handler.entry_ = std::make_shared<EventHandler::Entry>(EventHandler::Entry{std::move(function)});
    Entries entries = EntriesOf(target);
    entries.push_back(handler.entry_);
    SetEntries(target, entries);
    return handler;
}

void EventHandler::uninstall()
{
    if (!entry_)
        return;
    entry_->installed = false;
    if (target_) {
        Entries entries = EntriesOf(*target_);
        std::erase(entries, entry_);
        SetEntries(*target_, entries);
    }
    entry_.reset();
}

EventHandler& EventHandler::operator=(EventHandler&& other) noexcept
{
    if (this != &other) {
        uninstall();
        target_ = std::exchange(other.target_, nullptr);
        entry_ = std::exchange(other.entry_, nullptr);
    }
    return *this;
}

EventResult SendControlEvent(QWidget& control, ControlEvent event)
{
    std::visit([&](auto& one) { one.control = GetControlID(control); }, event);
    for (const QPointer<QWidget>& target : FromInnermost(control)) {
        if (!target)
            continue;
        const Entries entries = EntriesOf(*target); // a copy: handlers may install and uninstall
        for (auto entry = entries.rbegin(); entry != entries.rend(); ++entry) {
            if (!(*entry)->installed)
                continue;
            if (const EventResult result = (*entry)->function(event); result != EventResult::NotHandled)
                return result;
        }
    }
    return EventResult::NotHandled;
}

void SetControlID(QWidget& widget, ControlID id)
{
    widget.setProperty(kNumberProperty, id.number);
    widget.setProperty(kSignatureProperty, id.signature);
}

bool IsControl(const QWidget& widget)
{
    return widget.dynamicPropertyNames().contains(kNumberProperty);
}

ControlID GetControlID(const QWidget& widget)
{
    return {widget.property(kSignatureProperty).toUInt(), widget.property(kNumberProperty).toInt()};
}

} // namespace kesta
