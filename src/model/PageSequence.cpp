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

PageSequence::Place PageSequence::placeOf(std::size_t index) const
{
    Place place{0, index};
    while (place.block < blocks_.size() && place.offset >= blocks_[place.block].size())
        place.offset -= blocks_[place.block++].size();
    return place;
}

PageSequence::Place PageSequence::normalized(Place place) const
{
    return place.offset == blocks_[place.block].size() ? Place{place.block + 1, 0} : place;
}

SpecialPage* PageSequence::at(Place place) const
{
    return place.block < blocks_.size() ? blocks_[place.block][place.offset].get() : nullptr;
}

PageSequence::Place PageSequence::next(Place place) const
{
    return normalized({place.block, place.offset + 1});
}

PageSequence::Place PageSequence::insert(Place place, Page page)
{
    if (blocks_.empty())
        blocks_.emplace_back();
    if (place.block == blocks_.size())
        place = {place.block - 1, blocks_.back().size()};
    Block& block = blocks_[place.block];
    block.insert(Position(block, place.offset), std::move(page));
    return block.size() > kMostPagesInBlock ? split(place) : place;
}

PageSequence::Place PageSequence::split(Place place)
{
    Block& full = blocks_[place.block];
    const std::size_t half = full.size() / 2;
    Block rest(std::make_move_iterator(Position(full, half)), std::make_move_iterator(full.end()));
    full.resize(half);
    blocks_.insert(Position(blocks_, place.block + 1), std::move(rest));
    return place.offset < half ? place : Place{place.block + 1, place.offset - half};
}

PageSequence::Place PageSequence::erase(Place place)
{
    Block& block = blocks_[place.block];
    block.erase(Position(block, place.offset));
    if (!block.empty())
        return normalized(place);
    blocks_.erase(Position(blocks_, place.block));
    return {place.block, 0};
}

PageSequence::Page& PageSequence::pageAt(std::size_t index)
{
    const Place place = placeOf(index);
    return blocks_[place.block][place.offset];
}

PageSequence::Page PageSequence::take(std::size_t index)
{
    Page page = std::move(pageAt(index));
    erase(placeOf(index));
    return page;
}

void PageSequence::swap(std::size_t first, std::size_t second)
{
    pageAt(first).swap(pageAt(second));
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
