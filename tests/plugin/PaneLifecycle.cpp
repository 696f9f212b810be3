#include "plugin/PaneLifecycle.h"

#include "platform/plugins/Bundle.h"
#include "platform/plugins/PlugIn.h"
#include "platform/plugins/Sentence.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QCoreApplication>
#include <QVBoxLayout>

#include <algorithm>
#include <cstdio>

namespace kesta::test {

KestaPlugInFactory FindBuiltFactory()
{
    const auto [bundle, error] = LoadBundleAt(QStringLiteral(KESTA_PLUGIN));
    if (!bundle) {
        std::fprintf(stderr, "%s\n", qUtf8Printable(Sentence(error, HostTexts())));
        return nullptr;
    }
    UUID type;
    std::ranges::copy(kKestaDialogExtensionTypeID.bytes, type.bytes.begin());
    if (!FindFactory(type)) {
        if (const std::optional<Message> problem = RegisterFactories(*bundle))
            std::fprintf(stderr, "%s\n", qUtf8Printable(Sentence(*problem, HostTexts())));
    }
    return reinterpret_cast<KestaPlugInFactory>(reinterpret_cast<BundleFunction>(FindFactory(type)));
}

FakeDialog::FakeDialog()
{
    print.setDefault(true);
    SetControlCommand(print, kCommandOK);
    SetControlCommand(cancel, kCommandCancel);
    auto* rows = new QVBoxLayout(&window);
    rows->addWidget(&pane, 1);
    rows->addWidget(&cancel);
    rows->addWidget(&print);
    AddToSession(tickets, session);
    session.printer = PMPrinter{.queue = {}, .name = {}, .ppdPath = QStringLiteral(KESTA_PPD), .deviceURI = {}};
}

OSStatus RunPane(KestaPlugInFactory factory, FakeDialog& dialog, const PaneSteps& steps)
{
    KestaPlugIn* plugIn = factory(nullptr, kKestaDialogExtensionTypeID);
    void* found = nullptr;
    plugIn->table->QueryInterface(plugIn, kKestaDialogExtensionInterfaceID, &found);
    auto* extension = static_cast<KestaDialogExtension*>(found);
    const PanelInterface& slots = *extension->table;

    KestaPrologue prologue{};
    OSStatus status = slots.Prologue(&prologue);
    const auto then = [&status](auto operation) {
        if (status == noErr)
            status = operation();
    };
    then([&] { return slots.Initialize(prologue.context, nullptr, nullptr, &dialog.pane, &dialog.session); });
    then([&] { return slots.Open(prologue.context); });
    then([&] { return steps(slots, prologue.context); });
    then([&] { return slots.Sync(prologue.context, &dialog.session, false); });
    then([&] { return slots.Close(prologue.context); });
    const OSStatus end = prologue.context ? slots.Terminate(prologue.context, status) : noErr;

    slots.Release(&extension);
    plugIn->table->Release(plugIn);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    return status == noErr ? end : status;
}

} // namespace kesta::test
