#include "model/SpecialPageList.h"

#include <algorithm>

namespace kesta {
namespace {

template <class Page> bool AreAll(const SpecialPages& pages)
{
    return std::ranges::all_of(pages, [](const SpecialPage* page) { return dynamic_cast<const Page*>(page); });
}

std::vector<PageSequence::Page> Clones(const SpecialPages& pages)
{
    std::vector<PageSequence::Page> clones;
    clones.reserve(pages.size());
    for (const SpecialPage* page : pages)
        clones.push_back(page->clone());
    return clones;
}

// Of an exception page.
SInt32 LastPage(const SpecialPage& exception)
{
    return std::max(exception.startPage(), static_cast<const ExceptionPage&>(exception).endPage());
}

} // namespace

SpecialPage* SpecialPageList::pageAtIndex(CFIndex index) const
{
    return index < 0 ? nullptr : pages_.at(pages_.placeOf(static_cast<std::size_t>(index)));
}

CFIndex SpecialPageList::indexOfPage(const SpecialPage* page) const
{
    const auto index = pages_.indexOf(page);
    return index ? static_cast<CFIndex>(*index) : -1;
}

OSStatus SpecialPageList::remove(const SpecialPage* page)
{
    const auto index = pages_.indexOf(page);
    if (!index)
        return -1;
    pages_.erase(pages_.placeOf(*index));
    return noErr;
}

void SpecialPageList::remove(const ChosenPages& pages)
{
    for (PageSequence::Page& page : pages_.takeAll()) {
        if (!pages.contains(page.get()))
            pages_.append(std::move(page));
    }
}

SpecialPages SpecialPageList::pages() const
{
    SpecialPages pages;
    pages.reserve(count());
    for (PageSequence::Place place = pages_.placeOf(0); const SpecialPage* page = pages_.at(place);
         place = pages_.next(place))
        pages.push_back(page);
    return pages;
}

OSStatus SpecialPageList::update(const SpecialPage* page, const SpecialPages& newPages)
{
    const auto index = pages_.indexOf(page);
    if (!index)
        return noErr;
    PageSequence::Page old = pages_.take(*index);
    const OSStatus status = add(newPages);
    if (status != noErr)
        pages_.insert(pages_.placeOf(*index), std::move(old));
    return status;
}

std::optional<Array> SpecialPageList::asTicket() const
{
    if (count() == 0)
        return std::nullopt;
    Array ticket;
    ticket.reserve(count());
    for (const SpecialPage* page : pages())
        ticket.emplace_back(page->asTicket());
    return ticket;
}

// Placing them one after the other, each before the first that starts behind it, comes to the same as merging them in
// once when they are sorted.
OSStatus InsertList::add(const SpecialPages& inserts)
{
    if (!AreAll<Insert>(inserts))
        return kMissingArgument;
    std::vector<PageSequence::Page> added = Clones(inserts);
    std::ranges::stable_sort(added, {}, [](const PageSequence::Page& page) { return page->startPage(); });

    auto next = added.begin();
    for (PageSequence::Page& page : pages_.takeAll()) {
        for (; next != added.end() && (*next)->startPage() < page->startPage(); ++next)
            pages_.append(std::move(*next));
        pages_.append(std::move(page));
    }
    for (; next != added.end(); ++next)
        pages_.append(std::move(*next));
    return noErr;
}

std::unique_ptr<SpecialPageList> InsertList::clone() const
{
    return std::make_unique<InsertList>(*this);
}

bool InsertList::canPromote(const SpecialPage* insert) const
{
    const SpecialPage* before = pageAtIndex(indexOfPage(insert) - 1);
    return before && before->startPage() != 0;
}

void InsertList::promote(const SpecialPage* insert)
{
    if (!canPromote(insert))
        return;
    const std::size_t index = *pages_.indexOf(insert);
    pages_.swap(index, index - 1);
}

bool InsertList::canDemote(const SpecialPage* insert) const
{
    const CFIndex index = indexOfPage(insert);
    const SpecialPage* after = index < 0 ? nullptr : pageAtIndex(index + 1);
    return after && after->startPage() != 0;
}

void InsertList::demote(const SpecialPage* insert)
{
    if (!canDemote(insert))
        return;
    const std::size_t index = *pages_.indexOf(insert);
    pages_.swap(index, index + 1);
}

void InsertList::promote(const ChosenPages& inserts)
{
    SpecialPages order = pages();
    for (std::size_t i = 1; i < order.size(); ++i) {
        if (!inserts.contains(order[i]) || order[i - 1]->startPage() == 0)
            continue;
        pages_.swap(i, i - 1);
        std::swap(order[i], order[i - 1]);
    }
}

void InsertList::demote(const ChosenPages& inserts)
{
    SpecialPages order = pages();
    for (std::size_t i = order.size(); i-- > 1;) {
        if (!inserts.contains(order[i - 1]) || order[i]->startPage() == 0)
            continue;
        pages_.swap(i, i - 1);
        std::swap(order[i], order[i - 1]);
    }
}

OSStatus ExceptionPageList::add(const SpecialPages& exceptions)
{
    if (!AreAll<ExceptionPage>(exceptions))
        return kMissingArgument;
    for (PageSequence::Page& added : Clones(exceptions)) // of all first: some may be in this list and leave it
        place(std::move(added));
    return noErr;
}

void ExceptionPageList::place(std::unique_ptr<SpecialPage> exception)
{
    const SInt32 start = exception->startPage(), end = LastPage(*exception);
    auto place = pages_.firstBehind([start](const SpecialPage& page) { return LastPage(page) < start; });

    while (SpecialPage* there = pages_.at(place)) {
        const bool goesOnBehind = end < LastPage(*there);
        if (there->startPage() < start) {
            PageSequence::Page rest = goesOnBehind ? there->clone() : nullptr;
            static_cast<ExceptionPage*>(there)->setEndPage(start - 1);
            place = pages_.next(place);
            if (rest) {
                rest->setStartPage(end + 1);
                place = pages_.insert(place, std::move(rest));
            }
        } else if (goesOnBehind) {
            there->setStartPage(std::max(there->startPage(), end + 1));
            break;
        } else {
            place = pages_.erase(place);
        }
    }
    pages_.insert(place, std::move(exception));
}

std::unique_ptr<SpecialPageList> ExceptionPageList::clone() const
{
    return std::make_unique<ExceptionPageList>(*this);
}

} // namespace kesta
