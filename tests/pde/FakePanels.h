#pragma once

#include "pde/interface/PanelInterface.h"
#include "platform/plugins/Bundle.h"

#include <string>

namespace kesta::test {

// Panels that note what is asked of them: "1P" Prologue, "1I" Initialize, "1<" panel 1 writes to the tickets, "1>" it
// reads them, "1S" its summary, "1O" Open, "1C" Close, "1T" Terminate.
inline std::string panelCalls;
inline int failuresBeforeLoading = 0; // how often a panel's function is to fail first

template <class Action> std::string CallsOf(Action action)
{
    panelCalls.clear();
    action();
    return panelCalls;
}

template <char kName> struct FakePanel {
    static KestaStatus Note(char what)
    {
        panelCalls += {kName, what};
        return 0;
    }
    static KestaStatus Prologue(KestaPrologue* answer)
    {
        static char context = kName;
        static const char title[] = {'P', 'a', 'n', 'e', 'l', ' ', kName, 0};
        *answer = {
            .context = &context, .creator = 0, .kind = "kind", .title = title, .maximumWidth = 0, .maximumHeight = 0};
        return Note('P');
    }
    static KestaStatus GetSummaryText(KestaContextRef, const char* const** titles, const char* const** summaries)
    {
        static const char name[] = {kName, 0};
        static const char* const list[] = {name, nullptr};
        *titles = *summaries = kName == '3' ? nullptr : list;
        return Note('S');
    }
    static constexpr PanelInterface kTable{
        .Retain = nullptr,
        .Release = nullptr,
        .GetAPIVersion = nullptr,
        .Prologue = Prologue,
        .Initialize = [](KestaContextRef, const int32_t*, void*, KestaControlRef,
                         KestaSessionRef) { return Note('I'); },
        .Sync = [](KestaContextRef, KestaSessionRef, bool toControls) { return Note(toControls ? '>' : '<'); },
        .GetSummaryText = GetSummaryText,
        .Open = [](KestaContextRef) { return Note('O'); },
        .Close = [](KestaContextRef) { return Note('C'); },
        .Terminate = [](KestaContextRef, KestaStatus) { return Note('T'); },
    };
    static constexpr PanelInterfaceHolder kHolder{&kTable};

    static KestaStatus Get(const PanelInterfaceHolder** holder)
    {
        if (failuresBeforeLoading-- > 0)
            return -1;
        *holder = &kHolder;
        return 0;
    }
    static void AddTo(Bundle& bundle)
    {
        const char name[] = {'G', 'e', 't', kName, 0};
        bundle.functions.insert_or_assign(QLatin1StringView(name), reinterpret_cast<BundleFunction>(Get));
    }
};

} // namespace kesta::test
