#include "model/FirstSpecialPages.h"

#include "pde/interface/TicketKeys.h"

namespace kesta {
namespace {

struct KindOfPages {
    SpecialPagesKind kind;
    const char* key;
};
constexpr KindOfPages kKinds[] = {
    {SpecialPagesKind::Exceptions, key::SpecialPagesExceptionList},
    {SpecialPagesKind::Inserts, key::SpecialPagesInsertList},
    {SpecialPagesKind::FrontCover, key::SpecialPagesFrontCover},
    {SpecialPagesKind::BackCover, key::SpecialPagesBackCover},
};

} // namespace

std::optional<FirstSpecialPages> FirstSpecialPagesOf(const Ticket& settings)
{
    for (const auto& [kind, key] : kKinds) {
        if (const Array* list = settings.values().array(key))
            return FirstSpecialPages{kind, !list->empty()};
        if (const Dictionary* cover = settings.values().dictionary(key))
            return FirstSpecialPages{kind, cover->count() != 0};
    }
    return std::nullopt;
}

} // namespace kesta
