#include "panels/booklet_watermark/fonts/GlyphEncoding.h"

#include "panels/booklet_watermark/fonts/GlyphNames.h"

#include <cstdint>

namespace kesta::booklet_watermark {
namespace {

// Numbers the few hundred names that an encoding can hold, from 1 in the order of adding. No name is empty.
class NameIndex {
public:
    explicit NameIndex(const Encoding& encoding)
    {
        names_.reserve(encoding.size());
        const std::string_view usual = encoding.front(); // what most codes have
        add(usual);
        for (const std::string_view name : encoding)
            if (name.data() != usual.data())
                add(name);
    }

    // True when the name was not there.
    bool add(std::string_view name)
    {
        std::uint16_t& slot = slots_[slotOf(name)];
        if (slot != kNone)
            return false;
        slot = static_cast<std::uint16_t>(names_.size());
        names_.push_back(name);
        lengths_[static_cast<unsigned char>(name.front())] |= LengthBit(name);
        return true;
    }

    // 0 for a name that is not there.
    std::size_t find(std::string_view name) const
    {
        const bool isPossible = lengths_[static_cast<unsigned char>(name.front())] & LengthBit(name);
        return isPossible ? slots_[slotOf(name)] : kNone;
    }

    std::size_t count() const { return names_.size() - 1; }

private:
    static constexpr std::uint16_t kNone = 0;

    static std::uint32_t LengthBit(std::string_view name) { return 1u << (name.size() % 32); }

    // What tells the names of glyphs apart without walking along them: "eacute" and "egrave", "uni0411" and "uni0412".
    static std::size_t Hash(std::string_view name)
    {
        const auto at = [name](std::size_t i) { return static_cast<std::size_t>(static_cast<unsigned char>(name[i])); };
        const std::size_t last = name.size() - 1;
        return ((at(0) * 31 + at(last / 2)) * 31 + at(last - (last > 0))) * 31 + at(last) + name.size();
    }

    // The slot of the name, or the one that is free for it.
    std::size_t slotOf(std::string_view name) const
    {
        std::size_t slot = Hash(name) % slots_.size();
        while (slots_[slot] != kNone && names_[slots_[slot]] != name)
            slot = (slot + 1) % slots_.size();
        return slot;
    }

    std::vector<std::string_view> names_ = {{}};  // the first one stands for none
    std::array<std::uint16_t, 1024> slots_ = {};  // of names; an encoding adds at most 512
    std::array<std::uint32_t, 256> lengths_ = {}; // by first character: one bit a length, which spares most comparisons
};

Encoding StandardOf(const std::vector<std::string_view>& names)
{
    static const NameIndex standard(_StandardEncodings);
    std::array<bool, _StandardEncodings.size() + 1> isThere{};
    std::size_t missing = standard.count();
    for (auto name = names.begin(); name != names.end() && missing > 0; ++name) {
        const std::size_t index = name->empty() ? 0 : standard.find(*name);
        missing -= index != 0 && !isThere[index];
        isThere[index] = true;
    }

    const std::string_view first = names.empty() || names.front().empty() ? kNotdef : names.front();
    Encoding encoding = _StandardEncodings;
    for (std::string_view& name : encoding)
        if (!isThere[standard.find(name)])
            name = first;
    return encoding;
}

} // namespace

Encoding MakeEncoding(const std::vector<std::string_view>& names)
{
    Encoding encoding = StandardOf(names);
    NameIndex encoded(encoding);
    std::size_t free = 32;
    for (const std::string_view name : names) {
        while (free < encoding.size() && encoding[free] != kNotdef)
            ++free;
        if (free == encoding.size())
            break;
        if (!name.empty() && encoded.add(name))
            encoding[free] = name;
    }
    return encoding;
}

} // namespace kesta::booklet_watermark
