#include "model/SpecialPageList.h"

#include <algorithm>
#include <iterator>
#include <limits>
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

constexpr auto kStart = [](const auto& page) { return page->startPage(); };

// Typed pages and those of a ticket mostly come in order.
void SortByStart(auto& pages)
{
    if (!std::ranges::is_sorted(pages, {}, kStart))
        std::ranges::stable_sort(pages, {}, kStart);
}

// Whether the exception pages that are added have none in common, neither with each other nor with those in order.
bool AreApart(const std::vector<Page>& pages, const std::vector<Page>& added)
{
    std::vector<const SpecialPage*> sorted;
    sorted.reserve(added.size());
    for (const Page& page : added)
        sorted.push_back(page.get());
    SortByStart(sorted);
    SInt32 taken = std::numeric_limits<SInt32>::min();
    for (const SpecialPage* page : sorted) {
        const auto behind = std::ranges::upper_bound(pages, LastPage(*page), {}, kStart);
        if (behind != pages.begin())
            taken = std::max(taken, LastPage(**std::prev(behind)));
        if (taken >= page->startPage())
            return false;
        taken = LastPage(*page);
    }
    return true;
}

// Each before the first of those in order that starts behind it.
std::vector<Page> Merge(std::vector<Page> pages, std::vector<Page> added)
{
    SortByStart(added);
    std::vector<Page> merged;
    merged.reserve(pages.size() + added.size());
    auto next = added.begin();
    for (Page& page : pages) {
        for (; next != added.end() && kStart(*next) < kStart(page); ++next)
            merged.push_back(std::move(*next));
        merged.push_back(std::move(page));
    }
    std::move(next, added.end(), std::back_inserter(merged));
    return merged;
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
    pages_ = Merge(std::move(pages_), Clones(inserts));
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
    const auto place = AreApart(pages_, added) ? Merge : PlaceAll;
    pages_ = place(std::move(pages_), std::move(added));
    return noErr;
}

std::unique_ptr<SpecialPageList> ExceptionPageList::clone() const
{
    return std::make_unique<ExceptionPageList>(*this);
}

} // namespace kesta
