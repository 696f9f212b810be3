#pragma once

#include "model/SpecialPage.h"

#include <algorithm>
#include <vector>

namespace kesta {

// Owned pages in an order. They lie in blocks, so that putting one into the middle of many moves only its neighbours.
class PageSequence {
public:
    using Page = std::unique_ptr<SpecialPage>;

    PageSequence() = default;
    PageSequence(const PageSequence& other); // clones
    PageSequence(PageSequence&&) noexcept = default;
    PageSequence& operator=(PageSequence other) noexcept;
    ~PageSequence() = default;

    // Where a page is, or the end. Any change but the one that answers a place makes it invalid.
    struct Place {
        std::size_t block;
        std::size_t offset;
    };

    std::size_t count() const;
    std::optional<std::size_t> indexOf(const SpecialPage* page) const; // of this very page
    Place placeOf(std::size_t index) const;                            // the end for an index beyond it

    SpecialPage* at(Place place) const;   // null at the end
    Place next(Place place) const;        // place: not the end, as for erase
    Place insert(Place place, Page page); // before place; answers where the page is
    Place erase(Place place);             // answers what followed
    Page take(std::size_t index);         // index: below count(), as for swap
    void swap(std::size_t first, std::size_t second);

    std::vector<Page> takeAll();
    void append(Page page);

    // The first page for which the condition does not hold; it holds for none behind that.
    template <class Condition> Place firstBehind(const Condition& holds) const;

private:
    using Block = std::vector<Page>; // none is empty

    Page& pageAt(std::size_t index);
    Place normalized(Place place) const; // from the end of a block to the next block
    Place split(Place place);

    std::vector<Block> blocks_;
};

template <class Condition> PageSequence::Place PageSequence::firstBehind(const Condition& holds) const
{
    const auto block =
        std::partition_point(blocks_.begin(), blocks_.end(), [&](const Block& pages) { return holds(*pages.back()); });
    const auto index = static_cast<std::size_t>(block - blocks_.begin());
    if (block == blocks_.end())
        return {index, 0};
    const auto page =
        std::partition_point(block->begin(), block->end(), [&](const Page& behind) { return holds(*behind); });
    return {index, static_cast<std::size_t>(page - block->begin())};
}

} // namespace kesta
