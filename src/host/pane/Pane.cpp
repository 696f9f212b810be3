#include "host/pane/Pane.h"

#include <QVBoxLayout>

#include <utility>

namespace kesta::host {

Pane::Pane(const PlugIn& plugIn, QWidget& host, PrintSession& session)
    : session_(session), plugIn_(plugIn.factory(nullptr, kKestaDialogExtensionTypeID))
{
    void* extension = nullptr;
    if (plugIn_ && plugIn_->table->QueryInterface(plugIn_, kKestaDialogExtensionInterfaceID, &extension) == 0)
        extension_ = static_cast<KestaDialogExtension*>(extension);
    if (extension_)
        status_ = openIn(host);
}

OSStatus Pane::openIn(QWidget& host)
{
    KestaPrologue prologue{};
    if (const OSStatus status = extension_->table->Prologue(&prologue); status != noErr)
        return status;
    prepared_ = true;
    context_ = prologue.context;
    title_ = QString::fromUtf8(prologue.title);

    widget_ = new QWidget(&host);
    auto* inner = new QVBoxLayout(widget_);
    inner->setContentsMargins(0, 0, 0, 0);
    if (!host.layout())
        (new QVBoxLayout(&host))->setContentsMargins(0, 0, 0, 0);
    host.layout()->addWidget(widget_);
    widget_->show();
    const OSStatus status = extension_->table->Initialize(context_, nullptr, nullptr, widget_, &session_);
    return status == noErr ? extension_->table->Open(context_) : status;
}

Pane::~Pane()
{
    if (prepared_ && status_ == noErr)
        extension_->table->Close(context_);
    if (prepared_)
        extension_->table->Terminate(context_, status_);
    delete widget_;
    if (extension_)
        extension_->table->Release(&extension_);
    if (plugIn_)
        plugIn_->table->Release(plugIn_);
}

void Pane::sync(bool toControls)
{
    if (status_ == noErr)
        extension_->table->Sync(context_, &session_, toControls);
}

void Pane::syncToTickets()
{
    sync(false);
}

void Pane::syncToControls()
{
    sync(true);
}

std::vector<PaneSummary> Pane::summaries()
{
    const char* const* titles = nullptr;
    const char* const* texts = nullptr;
    if (status_ != noErr || extension_->table->GetSummaryText(context_, &titles, &texts) != noErr || !titles || !texts)
        return {};
    std::vector<PaneSummary> summaries;
    for (; *titles && *texts; ++titles, ++texts)
        summaries.push_back({QString::fromUtf8(*titles), QString::fromUtf8(*texts)});
    return summaries;
}

} // namespace kesta::host
