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

    std::size_t count() const;
    SpecialPage* at(std::size_t index) const;                          // null beyond the end
    std::optional<std::size_t> indexOf(const SpecialPage* page) const; // of this very page

    void insert(std::size_t index, Page page); // index: at most count()
    Page take(std::size_t index);              // index: below count(), as for swap
    void swap(std::size_t first, std::size_t second);

    std::vector<Page> takeAll();
    void append(Page page);

    // The number of pages from the first on for which the condition holds; none that holds may follow one that does
    // not.
    template <class Condition> std::size_t countWhile(const Condition& holds) const;

private:
    using Block = std::vector<Page>; // none is empty

    struct Place {
        std::size_t block;
        std::size_t offset;
    };
    Place find(std::size_t index) const;
    void split(std::size_t block);

    std::vector<Block> blocks_;
};

template <class Condition> std::size_t PageSequence::countWhile(const Condition& holds) const
{
    const auto holdsForPage = [&](const Page& page) { return holds(*page); };
    const auto holdsForBlock = [&](const Block& block) { return holds(*block.back()); };
    const auto block = std::partition_point(blocks_.begin(), blocks_.end(), holdsForBlock);
    std::size_t count = 0;
    for (auto before = blocks_.begin(); before != block; ++before)
        count += before->size();
    if (block == blocks_.end())
        return count;
    const auto page = std::partition_point(block->begin(), block->end(), holdsForPage);
    return count + static_cast<std::size_t>(page - block->begin());
}

} // namespace kesta
