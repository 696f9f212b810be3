#include "model/PageSequence.h"

#include <algorithm>
#include <iterator>

namespace kesta {
namespace {

constexpr std::size_t kMostPagesInBlock = 256;

auto Position(auto& container, std::size_t index)
{
    return container.begin() + static_cast<std::ptrdiff_t>(index);
}

} // namespace

PageSequence::PageSequence(const PageSequence& other)
{
    for (const Block& block : other.blocks_)
        for (const Page& page : block)
            append(page->clone());
}

PageSequence& PageSequence::operator=(PageSequence other) noexcept
{
    blocks_.swap(other.blocks_);
    return *this;
}

std::size_t PageSequence::count() const
{
    std::size_t count = 0;
    for (const Block& block : blocks_)
        count += block.size();
    return count;
}

// The end is the place behind the last page, or the first one of a block that is not there yet.
PageSequence::Place PageSequence::find(std::size_t index) const
{
    Place place{0, index};
    while (place.block + 1 < blocks_.size() && place.offset >= blocks_[place.block].size())
        place.offset -= blocks_[place.block++].size();
    return place;
}

SpecialPage* PageSequence::at(std::size_t index) const
{
    const auto [block, offset] = find(index);
    return block < blocks_.size() && offset < blocks_[block].size() ? blocks_[block][offset].get() : nullptr;
}

std::optional<std::size_t> PageSequence::indexOf(const SpecialPage* page) const
{
    std::size_t index = 0;
    for (const Block& block : blocks_) {
        const auto found = std::ranges::find(block, page, &Page::get);
        index += static_cast<std::size_t>(found - block.begin());
        if (found != block.end())
            return index;
    }
    return std::nullopt;
}

void PageSequence::insert(std::size_t index, Page page)
{
    if (blocks_.empty())
        blocks_.emplace_back();
    const auto [block, offset] = find(index);
    blocks_[block].insert(Position(blocks_[block], offset), std::move(page));
    if (blocks_[block].size() > kMostPagesInBlock)
        split(block);
}

void PageSequence::split(std::size_t block)
{
    Block& full = blocks_[block];
    const auto middle = Position(full, full.size() / 2);
    Block rest(std::make_move_iterator(middle), std::make_move_iterator(full.end()));
    full.erase(middle, full.end());
    blocks_.insert(Position(blocks_, block + 1), std::move(rest));
}

PageSequence::Page PageSequence::take(std::size_t index)
{
    const auto [block, offset] = find(index);
    Page page = std::move(blocks_[block][offset]);
    blocks_[block].erase(Position(blocks_[block], offset));
    if (blocks_[block].empty())
        blocks_.erase(Position(blocks_, block));
    return page;
}

void PageSequence::swap(std::size_t first, std::size_t second)
{
    const Place a = find(first), b = find(second);
    blocks_[a.block][a.offset].swap(blocks_[b.block][b.offset]);
}

std::vector<PageSequence::Page> PageSequence::takeAll()
{
    std::vector<Page> pages;
    pages.reserve(count());
    for (Block& block : blocks_)
        std::ranges::move(block, std::back_inserter(pages));
    blocks_.clear();
    return pages;
}

void PageSequence::append(Page page)
{
    if (blocks_.empty() || blocks_.back().size() == kMostPagesInBlock)
        blocks_.emplace_back();
    blocks_.back().push_back(std::move(page));
}

} // namespace kesta
