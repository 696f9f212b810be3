// Thousands of steps in any order, beside a model that knows nothing but the rules.

#include "panels/special_pages/SpecialPagesCommands.h"
#include "panels/special_pages/SpecialPagesSummary.h"
#include "panels/special_pages/editors/PageTextRules.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <random>

namespace kesta::special_pages {
namespace {

struct ModelPage {
    SInt32 start, end, value; // an insert ends where it starts; value: sheets or plex

    bool operator==(const ModelPage&) const = default;
};

struct Model {
    bool front = false, back = false;
    std::vector<ModelPage> inserts = {}, exceptions = {};

    bool operator==(const Model&) const = default;
};

struct ModelRow {
    enum Kind { Front, Insert, Exception, Back } kind;
    std::size_t index;
};

std::vector<ModelRow> RowsOf(const Model& model)
{
    std::vector<ModelRow> rows;
    if (model.front)
        rows.push_back({ModelRow::Front, 0});
    std::size_t insert = 0, exception = 0;
    while (insert < model.inserts.size() || exception < model.exceptions.size()) {
        const bool takesException =
            insert == model.inserts.size() ||
            (exception < model.exceptions.size() && model.exceptions[exception].start <= model.inserts[insert].start);
        rows.push_back(takesException ? ModelRow{ModelRow::Exception, exception++}
                                      : ModelRow{ModelRow::Insert, insert++});
    }
    if (model.back)
        rows.push_back({ModelRow::Back, 0});
    return rows;
}

void Place(std::vector<ModelPage>& pages, const ModelPage& page)
{
    const auto behind = std::ranges::find_if(pages, [&](const ModelPage& one) { return one.start > page.start; });
    pages.insert(behind, page);
}

class Walk {
public:
    explicit Walk(unsigned seed) : random_(seed) {}

    void step()
    {
        chooseRows();
        switch (below(9)) {
        case 0:
            return addInserts(nullptr);
        case 1:
            return addExceptions(nullptr);
        case 2:
            return edit();
        case 3:
            return changeCovers();
        case 4:
            return remove();
        case 5:
            return below(20) == 0 ? removeAll() : undo();
        case 6:
            return moveUp();
        case 7:
            return moveDown();
        default:
            return throughTheTicket();
        }
    }

    void compare()
    {
        Model shown{.front = set_.frontCover != nullptr, .back = set_.backCover != nullptr};
        for (const SpecialPage* page : set_.inserts.pages())
            shown.inserts.push_back(
                {page->startPage(), page->startPage(), static_cast<const Insert&>(*page).quantity()});
        for (const SpecialPage* page : set_.exceptions.pages()) {
            const auto& exception = static_cast<const ExceptionPage&>(*page);
            shown.exceptions.push_back({exception.startPage(), exception.endPage(), exception.plex()});
        }
        ASSERT_EQ(shown, model_);
        const SpecialPages rows = special_pages::RowsOf(set_);
        ASSERT_EQ(rows.size(), RowsOf(model_).size());
        chooseRows();
        ASSERT_EQ(StatesOf(set_, selected_, undo_.canUndo()), expectedStates());
    }

private:
    SInt32 below(SInt32 limit) { return std::uniform_int_distribution<SInt32>(0, limit - 1)(random_); }

    // The same rows here and there.
    void chooseRows()
    {
        rows_ = RowsOf(model_);
        const SpecialPages rows = special_pages::RowsOf(set_);
        ASSERT_EQ(rows.size(), rows_.size());
        selected_.clear();
        chosen_.clear();
        for (std::size_t row = 0; row < rows.size(); ++row) {
            if (below(3) == 0) {
                selected_.push_back(rows[row]);
                chosen_.push_back(rows_[row]);
            }
        }
    }

    bool isChosen(ModelRow::Kind kind, std::size_t index) const
    {
        return std::ranges::any_of(chosen_,
                                   [&](const ModelRow& row) { return row.kind == kind && row.index == index; });
    }

    CommandStates expectedStates() const
    {
        CommandStates states{.edit = chosen_.size() == 1,
                             .remove = !chosen_.empty(),
                             .removeAll = !rows_.empty(),
                             .undo = saved_.has_value()};
        if (!chosen_.empty() && chosen_.back().kind == ModelRow::Insert) {
            const std::size_t index = chosen_.back().index;
            states.moveUp = index > 0 && model_.inserts[index - 1].start != 0;
            states.moveDown = index + 1 < model_.inserts.size() && model_.inserts[index + 1].start != 0;
        }
        return states;
    }

    EditorCalls calls()
    {
        return {.saveUndoState = [this] { save(); }};
    }
    void save()
    {
        undo_.save(set_);
        saved_ = model_;
    }

    void addInserts(const SpecialPage* edited, std::size_t index = 0)
    {
        const SInt32 first = below(12), last = first + below(3), sheets = 1 + below(3);
        Insert like;
        like.setQuantity(sheets);
        std::vector<Insert> made;
        ASSERT_EQ(MakeInserts(like, kAfterPage, QStringLiteral("%1-%2").arg(first).arg(last), made), noErr);
        ASSERT_EQ(PlacePages(set_.inserts, edited, PointersTo(made), calls()), noErr);
        if (edited)
            model_.inserts.erase(model_.inserts.begin() + static_cast<std::ptrdiff_t>(index));
        for (SInt32 page = first; page <= last; ++page)
            Place(model_.inserts, {page, page, sheets});
    }

    void addExceptions(const SpecialPage* edited, std::size_t index = 0)
    {
        const SInt32 first = below(30), last = first + below(4), plex = 1 + below(3);
        ExceptionPage like;
        like.setPlex(plex);
        std::vector<ExceptionPage> made;
        OSStatus status =
            MakeExceptions(like, QStringLiteral("%1-%2").arg(first).arg(last), set_.exceptions, edited, made);
        if (status == noErr)
            status = PlacePages(set_.exceptions, edited, PointersTo(made), calls());
        Model changed = model_;
        if (edited)
            changed.exceptions.erase(changed.exceptions.begin() + static_cast<std::ptrdiff_t>(index));
        const bool isTaken = std::ranges::any_of(
            changed.exceptions, [&](const ModelPage& one) { return one.start <= last && first <= one.end; });
        ASSERT_EQ(status, first < 1 ? kInvalidPageNumbers : isTaken ? kPageRangeConflict : noErr);
        if (status != noErr)
            return;
        model_ = changed;
        Place(model_.exceptions, {first, last, plex});
    }

    void edit()
    {
        if (selected_.empty())
            return;
        const ModelRow row = chosen_.front();
        if (row.kind == ModelRow::Insert)
            addInserts(selected_.front(), row.index);
        else if (row.kind == ModelRow::Exception)
            addExceptions(selected_.front(), row.index);
    }

    void changeCovers()
    {
        save();
        Covers covers = kesta::CloneOf(set_.frontCover, set_.backCover);
        const SInt32 option = 1 + below(5);
        ApplyCoverOption(covers, option, 0, 0);
        KeepCovers(std::move(covers), set_.frontCover, set_.backCover);
        model_.front = option == kFrontCoverOnly || option >= kSameCovers;
        model_.back = option == kBackCoverOnly || option >= kSameCovers;
    }

    void remove()
    {
        save();
        Remove(set_, selected_);
        removeChosen(model_.inserts, ModelRow::Insert);
        removeChosen(model_.exceptions, ModelRow::Exception);
        model_.front = model_.front && !isChosen(ModelRow::Front, 0);
        model_.back = model_.back && !isChosen(ModelRow::Back, 0);
    }
    void removeChosen(std::vector<ModelPage>& pages, ModelRow::Kind kind)
    {
        for (std::size_t i = pages.size(); i-- > 0;)
            if (isChosen(kind, i))
                pages.erase(pages.begin() + static_cast<std::ptrdiff_t>(i));
    }
    void removeAll()
    {
        save();
        RemoveAll(set_);
        model_ = {};
    }
    void undo()
    {
        undo_.perform(set_);
        if (saved_)
            model_ = *saved_;
        saved_.reset();
    }

    void moveUp()
    {
        save();
        MoveUp(set_, selected_);
        for (std::size_t i = 1; i < model_.inserts.size(); ++i)
            pass(i, i - 1); // those below have not moved yet
    }
    void moveDown()
    {
        save();
        MoveDown(set_, selected_);
        for (std::size_t i = model_.inserts.size(); i-- > 1;)
            pass(i - 1, i);
    }
    void pass(std::size_t from, std::size_t to)
    {
        if (isChosen(ModelRow::Insert, from) && model_.inserts[to].start != 0)
            std::swap(model_.inserts[from], model_.inserts[to]);
    }

    // What is written is what is there, so the very same pages stay.
    void throughTheTicket()
    {
        Ticket ticket;
        const SpecialPages before = special_pages::RowsOf(set_);
        ASSERT_EQ(WriteTicket(set_, ticket), noErr);
        ASSERT_FALSE(ReadTicket(set_, ticket));
        ASSERT_EQ(special_pages::RowsOf(set_), before);
        SpecialPageSet other;
        ReadTicket(other, ticket);
        ASSERT_EQ(special_pages::RowsOf(other).size(), before.size());
        ASSERT_EQ(other.exceptions.asTicket(), set_.exceptions.asTicket());
    }

    std::mt19937 random_;
    SpecialPageSet set_;
    UndoState undo_;
    Model model_;
    std::optional<Model> saved_;
    SpecialPages selected_;
    std::vector<ModelRow> rows_, chosen_;
};

TEST(SpecialPagesWalk, AgreesWithTheRulesAfterEachStep)
{
    for (unsigned seed = 1; seed <= 20; ++seed) {
        Walk walk(seed);
        for (int step = 0; step < 250; ++step) {
            SCOPED_TRACE(testing::Message() << "seed " << seed << ", step " << step);
            walk.step();
            walk.compare();
            if (testing::Test::HasFatalFailure())
                return;
        }
    }
}

} // namespace
} // namespace kesta::special_pages
