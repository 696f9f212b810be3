#pragma once

#include "pde/interface/PanelInterface.h"
#include "pde/interface/PlugInBundle.h"
#include "pde/interface/SyncDirection.h"
#include "platform/printsystem/PrintSession.h"

#include <QByteArray>
#include <QWidget>

#include <cstdio>
#include <exception>
#include <memory>
#include <type_traits>

namespace kesta {

inline constexpr char kPanelKind[] = "com.kesta.print.pde.kestafeatureskind";

struct PanelDescription {
    QString title;
    FourCharCode creator = 0;
    int maximumWidth = 0; // pixels; 0 for no limit
    int maximumHeight = 0;
};

// A panel as its author writes it: functions over its own context, which is made before Prologue with the defaults of
// its declaration and destroyed after Terminate. What is missing is answered before these are called.
template <class Context> struct PanelOperations {
    using ContextType = Context;

    PanelDescription (*Prologue)(Context&);
    OSStatus (*Initialize)(Context&, QWidget& pane, PrintSession&);
    OSStatus (*Sync)(Context&, PrintSession&, SyncDirection);
    OSStatus (*Open)(Context&);
    OSStatus (*Close)(Context&) = [](Context&) -> OSStatus { return noErr; };
    void (*Terminate)(Context&, OSStatus) = [](Context&, OSStatus) {};
    OSStatus syncWithoutContext = kSyncWithoutContext; // what Sync answers without context or session
};

// Lets no exception across a plug-in's boundary.
template <class Call> OSStatus Guarded(Call call) noexcept
{
    try {
        return call();
    } catch (const std::exception& error) {
        std::fprintf(stderr, "panel: %s\n", error.what());
    } catch (...) {
        std::fputs("panel: unknown exception\n", stderr);
    }
    return kInvalidContext;
}

// The same panel as the slots of the plug-in interface.
template <const auto& kOperations> struct PanelSlots {
    using Context = typename std::remove_cvref_t<decltype(kOperations)>::ContextType;

    struct Instance {
        Context context{};
        QByteArray title;
    };
    static Context& ContextOf(KestaContextRef context) { return static_cast<Instance*>(context)->context; }

    static OSStatus Prologue(KestaPrologue* answer)
    {
        return Guarded([&]() -> OSStatus {
            auto instance = std::make_unique<Instance>();
            const PanelDescription described = kOperations.Prologue(instance->context);
            instance->title = described.title.toUtf8();
            *answer = {.context = instance.get(),
                       .creator = described.creator,
                       .kind = kPanelKind,
                       .title = instance->title.constData(),
                       .maximumWidth = static_cast<uint32_t>(described.maximumWidth),
                       .maximumHeight = static_cast<uint32_t>(described.maximumHeight)};
            static_cast<void>(instance.release()); // the caller's until Terminate
            return noErr;
        });
    }
    static OSStatus Initialize(KestaContextRef context, const int32_t*, void*, QWidget* pane, PrintSession* session)
    {
        if (!context || !session || !pane)
            return kInvalidContext;
        return Guarded([&] { return kOperations.Initialize(ContextOf(context), *pane, *session); });
    }
    static OSStatus Sync(KestaContextRef context, PrintSession* session, bool toControls)
    {
        if (!context || !session)
            return kOperations.syncWithoutContext;
        return Guarded([&] { return kOperations.Sync(ContextOf(context), *session, SyncDirection{toControls}); });
    }
    static OSStatus GetSummaryText(KestaContextRef context, const char* const** titles, const char* const** summaries)
    {
        *titles = *summaries = nullptr;
        return context ? noErr : kInvalidContext;
    }
    static OSStatus Open(KestaContextRef context)
    {
        if (!context)
            return kInvalidContext;
        return Guarded([&] { return kOperations.Open(ContextOf(context)); });
    }
    static OSStatus Close(KestaContextRef context)
    {
        if (!context)
            return kInvalidContext;
        return Guarded([&] { return kOperations.Close(ContextOf(context)); });
    }
    static OSStatus Terminate(KestaContextRef context, OSStatus status)
    {
        if (!context)
            return kInvalidContext;
        const std::unique_ptr<Instance> instance(static_cast<Instance*>(context));
        return Guarded([&]() -> OSStatus {
            kOperations.Terminate(instance->context, status);
            return noErr;
        });
    }

    static constexpr PanelInterface kTable{
        .Retain = nullptr,
        .Release = nullptr,
        .GetAPIVersion = nullptr,
        .Prologue = Prologue,
        .Initialize = Initialize,
        .Sync = Sync,
        .GetSummaryText = GetSummaryText,
        .Open = Open,
        .Close = Close,
        .Terminate = Terminate,
    };
    static constexpr PanelInterfaceHolder kHolder{&kTable};
};

// What a panel's exported function does.
template <const auto& kOperations> KestaStatus GivePanel(const PanelInterfaceHolder** holder)
{
    *holder = &PanelSlots<kOperations>::kHolder;
    return noErr;
}

} // namespace kesta
