#include "model/SpecialPageList.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <utility>

namespace kesta {
namespace {

using Page = std::unique_ptr<SpecialPage>;

template <class Kind> bool AreAll(const SpecialPages& pages)
{
    return std::ranges::all_of(pages, [](const SpecialPage* page) { return dynamic_cast<const Kind*>(page); });
}

// Of owned pages or of such that are not.
std::vector<Page> Clones(const auto& pages)
{
    std::vector<Page> clones;
    clones.reserve(pages.size());
    for (const auto& page : pages)
        clones.push_back(page->clone());
    return clones;
}

// Of an exception page.
SInt32 LastPage(const SpecialPage& exception)
{
    return std::max(exception.startPage(), static_cast<const ExceptionPage&>(exception).endPage());
}

// Exception pages of which no two have a page in common, by start page.
using Exceptions = std::multimap<SInt32, Page>;

// The first that has the page or lies behind it.
Exceptions::iterator FirstFrom(SInt32 page, Exceptions& exceptions)
{
    const auto behind = exceptions.lower_bound(page);
    if (behind == exceptions.begin())
        return behind;
    const auto before = std::prev(behind);
    return LastPage(*before->second) < page ? behind : before;
}

void Place(Page exception, Exceptions& exceptions)
{
    const SInt32 start = exception->startPage(), end = LastPage(*exception);
    auto place = FirstFrom(start, exceptions);
    while (place != exceptions.end() && place->first <= end) {
        SpecialPage& there = *place->second;
        const bool goesOnBehind = end < LastPage(there);
        Page rest;
        if (there.startPage() < start) {
            if (goesOnBehind)
                rest = there.clone();
            static_cast<ExceptionPage&>(there).setEndPage(start - 1);
            ++place;
        } else {
            if (goesOnBehind)
                rest = std::move(place->second);
            place = exceptions.erase(place);
        }
        if (rest) {
            rest->setStartPage(end + 1);
            place = exceptions.emplace_hint(place, end + 1, std::move(rest));
        }
    }
    exceptions.emplace_hint(place, start, std::move(exception));
}

// One after the other, each takes its pages from those before it.
std::vector<Page> PlaceAll(std::vector<Page> pages, std::vector<Page> added)
{
    Exceptions placed;
    for (Page& page : pages)
        placed.emplace_hint(placed.end(), page->startPage(), std::move(page));
    for (Page& exception : added)
        Place(std::move(exception), placed);
    pages.clear();
    for (auto& [start, page] : placed)
        pages.push_back(std::move(page));
    return pages;
}

// All in order, if no two have a page in common: what PlaceAll comes to, in little more time than looking at each.
bool Merge(std::vector<Page>& pages, std::vector<Page>& added)
{
    struct Span {
        SInt32 start, end;
        Page* page;
    };
    std::vector<Span> spans;
    spans.reserve(pages.size() + added.size());
    for (std::vector<Page>* some : {&pages, &added}) {
        for (Page& page : *some)
            spans.push_back({page->startPage(), LastPage(*page), &page});
    }
    std::ranges::sort(spans, {}, &Span::start);
    const auto shared =
        std::ranges::adjacent_find(spans, [](const Span& one, const Span& next) { return next.start <= one.end; });
    if (shared != spans.end())
        return false;
    std::vector<Page> merged;
    merged.reserve(spans.size());
    for (const Span& span : spans)
        merged.push_back(std::move(*span.page));
    pages = std::move(merged);
    return true;
}

} // namespace

SpecialPageList::SpecialPageList(const SpecialPageList& other) : pages_(Clones(other.pages_)) {}

SpecialPageList& SpecialPageList::operator=(const SpecialPageList& other)
{
    pages_ = Clones(other.pages_);
    return *this;
}

SpecialPage* SpecialPageList::pageAtIndex(CFIndex index) const
{
    return index < 0 || index >= static_cast<CFIndex>(count()) ? nullptr
                                                               : pages_[static_cast<std::size_t>(index)].get();
}

CFIndex SpecialPageList::indexOfPage(const SpecialPage* page) const
{
    const auto found = std::ranges::find(pages_, page, &Page::get);
    return found == pages_.end() ? -1 : static_cast<CFIndex>(found - pages_.begin());
}

OSStatus SpecialPageList::remove(const SpecialPage* page)
{
    return std::erase_if(pages_, [page](const Page& one) { return one.get() == page; }) > 0 ? noErr : -1;
}

void SpecialPageList::remove(const ChosenPages& pages)
{
    std::erase_if(pages_, [&](const Page& one) { return pages.contains(one.get()); });
}

SpecialPages SpecialPageList::pages() const
{
    SpecialPages pages;
    pages.reserve(count());
    for (const Page& page : pages_)
        pages.push_back(page.get());
    return pages;
}

OSStatus SpecialPageList::update(const SpecialPage* page, const SpecialPages& newPages)
{
    const auto found = std::ranges::find(pages_, page, &Page::get);
    if (found == pages_.end())
        return noErr;
    const auto index = found - pages_.begin();
    Page old = std::move(*found);
    pages_.erase(found);
    const OSStatus status = add(newPages);
    if (status != noErr)
        pages_.insert(pages_.begin() + index, std::move(old));
    return status;
}

std::optional<Array> SpecialPageList::asTicket() const
{
    if (count() == 0)
        return std::nullopt;
    Array ticket;
    ticket.reserve(count());
    for (const Page& page : pages_)
        ticket.emplace_back(page->asTicket());
    return ticket;
}

// Placing them one after the other, each before the first that starts behind it, comes to the same as merging them in
// once when they are sorted.
OSStatus InsertList::add(const SpecialPages& inserts)
{
    if (!AreAll<Insert>(inserts))
        return kMissingArgument;
    std::vector<Page> added = Clones(inserts);
    std::ranges::stable_sort(added, {}, [](const Page& page) { return page->startPage(); });

    std::vector<Page> before = std::exchange(pages_, {});
    pages_.reserve(before.size() + added.size());
    auto next = added.begin();
    for (Page& page : before) {
        for (; next != added.end() && (*next)->startPage() < page->startPage(); ++next)
            pages_.push_back(std::move(*next));
        pages_.push_back(std::move(page));
    }
    std::move(next, added.end(), std::back_inserter(pages_));
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
    move(insert, -1);
}

bool InsertList::canDemote(const SpecialPage* insert) const
{
    const CFIndex index = indexOfPage(insert);
    const SpecialPage* after = index < 0 ? nullptr : pageAtIndex(index + 1);
    return after && after->startPage() != 0;
}

void InsertList::demote(const SpecialPage* insert)
{
    move(insert, 1);
}

void InsertList::move(const SpecialPage* insert, SInt32 steps)
{
    const auto last = static_cast<CFIndex>(count()) - 1;
    CFIndex place = indexOfPage(insert);
    if (place < 0)
        return;
    for (const CFIndex target = std::clamp<CFIndex>(place + steps, 0, last); place != target;) {
        const CFIndex next = place + (target < place ? -1 : 1);
        if (pageAtIndex(next)->startPage() == 0)
            return;
        pages_[static_cast<std::size_t>(place)].swap(pages_[static_cast<std::size_t>(next)]);
        place = next;
    }
}

void InsertList::promote(const ChosenPages& inserts)
{
    for (std::size_t i = 1; i < pages_.size(); ++i) {
        if (inserts.contains(pages_[i].get()) && pages_[i - 1]->startPage() != 0)
            pages_[i].swap(pages_[i - 1]);
    }
}

void InsertList::demote(const ChosenPages& inserts)
{
    for (std::size_t i = pages_.size(); i-- > 1;) {
        if (inserts.contains(pages_[i - 1].get()) && pages_[i]->startPage() != 0)
            pages_[i].swap(pages_[i - 1]);
    }
}

OSStatus ExceptionPageList::add(const SpecialPages& exceptions)
{
    if (!AreAll<ExceptionPage>(exceptions))
        return kMissingArgument;
    std::vector<Page> added = Clones(exceptions); // of all first: some may be in this list and leave it
    if (!Merge(pages_, added))
        pages_ = PlaceAll(std::move(pages_), std::move(added));
    return noErr;
}

std::unique_ptr<SpecialPageList> ExceptionPageList::clone() const
{
    return std::make_unique<ExceptionPageList>(*this);
}

} // namespace kesta
