#include "host/FakePlugIn.h"

#include "toolkit/controls/Controls.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace kesta::host::test {
namespace {

FakePlugIn* fake = nullptr;
int context = 0;

PanelInterface paneTable{
    .Retain = nullptr,
    .Release =
        [](KestaDialogExtension** self) {
            --fake->panes;
            *self = nullptr;
        },
    .GetAPIVersion = nullptr,
    .Prologue =
        [](KestaPrologue* answer) {
            fake->calls << u"Prologue"_s;
            answer->context = &context;
            answer->title = "Fake";
            return fake->prologue;
        },
    .Initialize =
        [](KestaContextRef, const int32_t*, void*, QWidget* pane, PrintSession*) {
            fake->calls << u"Initialize"_s;
            fake->pane = pane;
            fake->handler = InstallEventHandler(*pane->window(), [](const CommandEvent& command) {
                return command.command == kCommandOK && fake->swallowsOK ? EventResult::Swallowed
                                                                         : EventResult::NotHandled;
            });
            return fake->initialize;
        },
    .Sync =
        [](KestaContextRef, PrintSession*, bool toControls) {
            fake->calls << (toControls ? u"Sync in"_s : u"Sync out"_s);
            if (!toControls && fake->atSyncOut)
                fake->atSyncOut();
            return KestaStatus{0};
        },
    .GetSummaryText =
        [](KestaContextRef, const char* const** titles, const char* const** summaries) {
            static const char* const kTitles[] = {"Paper", "Finishing", nullptr};
            static const char* const kSummaries[] = {"- Blue\n- Hole punched", "", nullptr};
            *titles = kTitles;
            *summaries = kSummaries;
            return KestaStatus{0};
        },
    .Open =
        [](KestaContextRef) {
            fake->calls << u"Open"_s;
            return fake->open;
        },
    .Close =
        [](KestaContextRef) {
            fake->calls << u"Close"_s;
            return KestaStatus{0};
        },
    .Terminate =
        [](KestaContextRef, KestaStatus status) {
            fake->calls << u"Terminate %1"_s.arg(status);
            fake->handler = {};
            return KestaStatus{0};
        },
};
KestaDialogExtension extension{&paneTable};

constexpr KestaIUnknownTable kPlugInTable{
    .reserved = nullptr,
    .QueryInterface =
        [](KestaPlugIn*, KestaUUID id, void** out) {
            if (!std::ranges::equal(id.bytes, kKestaDialogExtensionInterfaceID.bytes))
                return kKestaNoInterface;
            ++fake->panes;
            *out = &extension;
            return KestaResult{0};
        },
    .AddRef = nullptr,
    .Release =
        [](KestaPlugIn*) {
            --fake->plugIns;
            return uint32_t{0};
        },
};
KestaPlugIn plugInObject{&kPlugInTable};

const PlugIn kFakePlugIn{
    .factory = [](const void*, KestaUUID) -> KestaPlugIn* {
        ++fake->plugIns;
        return &plugInObject;
    },
    .usePanels =
        [](const char* const* names) {
            fake->usesOwnPanels = names == nullptr;
            for (; names && *names; ++names)
                fake->panels.emplace_back(*names);
            return KestaStatus{0};
        },
    .findPanels =
        [](const char** problem) {
            *problem = "GetNonePanelInterface was not found.";
            return fake->missing;
        },
};

} // namespace

FakePlugIn::FakePlugIn()
{
    fake = this;
}

FakePlugIn::~FakePlugIn()
{
    fake = nullptr;
}

const PlugIn& FakePlugIn::door()
{
    return kFakePlugIn;
}

} // namespace kesta::host::test
