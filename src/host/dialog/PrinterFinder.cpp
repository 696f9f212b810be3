#include "host/dialog/PrinterFinder.h"

#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"

#include <algorithm>
#include <utility>

using namespace Qt::StringLiterals;

namespace kesta::host {

PrinterFinder::PrinterFinder(const Bundle& texts, PrintServer server, Listener listener)
    : texts_(texts), server_(std::move(server)), listener_(std::move(listener))
{
}

void PrinterFinder::say(const QString& titleKey, const QString& text, bool canTryAgain)
{
    listener_.word({.title = LocalizedString(texts_, titleKey), .text = text, .canTryAgain = canTryAgain});
}

void PrinterFinder::start(const QString& wanted, const QString& usual)
{
    busy_ = true;
    hasList_ = false;
    list_ = {};
    say(u"Looking for Printers"_s, {}, false);
    listTask_.emplace(FetchQueuesAside(server_, [this](QueueList list) {
        list_ = std::move(list);
        hasList_ = true;
        listener_.listChanged();
        arrived();
    }));
    find(wanted.isEmpty() ? usual : wanted);
    usual_ = wanted.isEmpty() ? usual : QString();
}

void PrinterFinder::choose(int position)
{
    if (position < 1 || position > static_cast<int>(list_.queues.size()))
        return;
    const Queue& queue = list_.queues[position - 1];
    listener_.word({.title = LocalizedString(texts_, "Reading Printer").arg(PrinterTitle(queue, texts_))});
    find(queue.instance.isEmpty() ? queue.name : u"%1/%2"_s.arg(queue.name, queue.instance));
}

int PrinterFinder::position() const
{
    if (!found_)
        return 0;
    const auto queue = std::ranges::find(list_.queues, found_->queue.name, &Queue::name);
    return queue == list_.queues.end() ? 0 : static_cast<int>(queue - list_.queues.begin()) + 1;
}

void PrinterFinder::find(const QString& name)
{
    busy_ = true;
    asked_ = name;
    found_.reset();
    fetching_.clear();
    ppdTask_.reset();
    findTask_.emplace(FindQueueAside(server_, name, [this](NamedQueue queue) {
        found_ = std::move(queue);
        listener_.listChanged();
        arrived();
    }));
}

// The list and the wanted printer come in any order.
void PrinterFinder::arrived()
{
    if (!found_)
        return;
    if (found_->problem.isEmpty())
        fetchPPD();
    else if (hasList_)
        reportMissing();
}

void PrinterFinder::reportMissing()
{
    if (!usual_.isEmpty() && asked_ == std::exchange(usual_, {})) { // gone since
        find({});
        return;
    }
    if (asked_.isEmpty() && !list_.queues.empty()) { // no default printer: the first one will do
        choose(1);
        return;
    }
    busy_ = false;
    if (!list_.problem.isEmpty())
        say(u"No Server Title"_s, Sentence(list_.problem, texts_), true);
    else if (list_.queues.empty() && asked_.isEmpty())
        say(u"No Printers Title"_s, LocalizedString(texts_, "No Printers Message"), true);
    else
        say(u"Unknown Printer Title"_s, Sentence(found_->problem, texts_), true);
}

void PrinterFinder::fetchPPD()
{
    if (fetching_ == found_->queue.name)
        return;
    fetching_ = found_->queue.name;
    ppdTask_.emplace(FetchQueuePPDAside(server_, fetching_, [this](QueuePPD ppd) {
        busy_ = false;
        listener_.found({.queue = found_->queue, .defaults = found_->defaults, .ppd = std::move(ppd)});
    }));
}

QString PrinterTitle(const Queue& queue, const Bundle& texts)
{
    const QString name = queue.displayName.isEmpty() ? queue.name : queue.displayName;
    if (queue.location.isEmpty() || name.contains(queue.location, Qt::CaseInsensitive))
        return name;
    return LocalizedString(texts, "Printer With Place").arg(name, queue.location);
}

QString PrinterInList(const Queue& queue, const Bundle& texts)
{
    const QString title = PrinterTitle(queue, texts);
    if (!queue.isAccepting)
        return FormatText(LocalizedString(texts, "Printer Not Accepting"), {title});
    return queue.isStopped ? FormatText(LocalizedString(texts, "Printer Paused"), {title}) : title;
}

} // namespace kesta::host
