#pragma once

#include "model/SpecialPage.h"

#include <memory>
#include <unordered_set>
#include <vector>

namespace kesta {

// Pages to add: copied, not kept.
using SpecialPages = std::vector<const SpecialPage*>;
// Pages chosen among those of a list, which itself does not matter.
using ChosenPages = std::unordered_set<const SpecialPage*>;

// A list owns its pages. What decides a page's place in it (start and end page) is changed by update only.
class SpecialPageList {
public:
    virtual ~SpecialPageList() = default;

    std::size_t count() const { return pages_.size(); }
    virtual SpecialPage* pageAtIndex(CFIndex index) const;      // null out of range
    virtual CFIndex indexOfPage(const SpecialPage* page) const; // of this very page; -1 when absent

    // Copies each page to its place. A page of a class that the list does not hold is kMissingArgument, and nothing is
    // added.
    virtual OSStatus add(const SpecialPages& pages) = 0;
    virtual std::unique_ptr<SpecialPageList> clone() const = 0;

    OSStatus remove(const SpecialPage* page); // -1 when absent
    void remove(const ChosenPages& pages);
    SpecialPages pages() const;
    void clear() { pages_.clear(); }

    // Puts new pages in the place of one; does nothing when that one is absent, and when the new ones can't be added.
    OSStatus update(const SpecialPage* page, const SpecialPages& newPages);

    std::optional<Array> asTicket() const; // nothing for an empty list

protected:
    using Page = std::unique_ptr<SpecialPage>;

    SpecialPageList() = default;
    SpecialPageList(const SpecialPageList& other); // clones the pages
    SpecialPageList(SpecialPageList&&) noexcept = default;
    SpecialPageList& operator=(const SpecialPageList& other);
    SpecialPageList& operator=(SpecialPageList&&) noexcept = default;

    std::vector<Page> pages_;
};

// Inserts by start page, those of the same page in the order of adding, but for those that were moved by hand.
class InsertList : public SpecialPageList {
public:
    OSStatus add(const SpecialPages& inserts) override;
    std::unique_ptr<SpecialPageList> clone() const override;

    // Moving up or down by one; past any insert but one that stands before page 1.
    bool canPromote(const SpecialPage* insert) const;
    void promote(const SpecialPage* insert);
    bool canDemote(const SpecialPage* insert) const;
    void demote(const SpecialPage* insert);
    void move(const SpecialPage* insert, SInt32 steps); // up (below 0) or down, as far as single steps would get it

    // The same for several, in time linear in the list: those higher up first, those further down first.
    void promote(const ChosenPages& inserts);
    void demote(const ChosenPages& inserts);
};

// Exception pages by start page, of which no two have a page in common: a new one takes its pages from those that had
// them. One that ends before it starts has its start page only.
class ExceptionPageList : public SpecialPageList {
public:
    OSStatus add(const SpecialPages& exceptions) override;
    std::unique_ptr<SpecialPageList> clone() const override;
};

} // namespace kesta
