#pragma once

#include "plugin/PaneLifecycle.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/MenuControl.h"

#include <deque>
#include <map>
#include <optional>
#include <set>

namespace kesta::test {

// What a choice sets, and what it shows, by name.
struct ChoiceEffect {
    std::map<QString, QString> job = {}; // options of the print job
    std::map<QString, QString> ticket =
        {};                                // entries of the print settings; those of dictionaries as "Dictionary.Entry"
    std::map<QString, QString> shown = {}; // pictures and summaries, by number
};

struct WalkedChoice {
    QString place = {};   // the panel, and what was chosen before it was there to choose
    QString control = {}; // name and number
    QString item = {};    // its text; of a button: nothing
    QString value = {};   // the ticket value that the item stands for
    bool isPossible = false;
    std::optional<std::size_t> after = {}; // the choice among those walked that made it possible; nothing: none
    QString opens = {};                    // the window, if it opened one
    ChoiceEffect effect = {};
};

// Goes through all that a person can choose in the panel that an open pane shows: every item of its pop-ups, menus and
// lists, every button, and the same in each window that one of them opens and OK closes. What becomes possible by a
// choice is chosen after it. Each choice starts from the tickets as they were.
class ChoiceWalker {
public:
    enum class Depth { Panel, Windows }; // of the panel only: a window that opens is cancelled

    ChoiceWalker(const PanelInterface& slots, KestaContextRef context, FakeDialog& dialog, Depth depth);

    // The function is called after each, with the tickets and controls as it left them.
    std::vector<WalkedChoice> walk(const QString& panel, const std::function<void(const WalkedChoice&)>& then = {});

    // What the panel writes and shows when nothing is chosen.
    ChoiceEffect start();

private:
    // One thing to do: an item of a menu or list by its path, or a button.
    struct Act {
        ControlID control = {};
        MenuPath path = {};
        WalkedChoice choice = {};
    };
    using Trail = std::vector<Act>;

    void reset();
    WalkedChoice run(const Trail& trail);
    bool perform(const QWidget& window, const Act& act);
    void answer(QWidget& window);
    void observe(const QWidget& window, const QString& name);
    std::vector<Act> actsOf(const QWidget& control) const;
    ChoiceEffect effect(std::map<QString, QString> shown);

    const PanelInterface& slots_;
    KestaContextRef context_;
    FakeDialog& dialog_;
    const Depth depth_;
    Dictionary values_, ppdChoices_; // what each choice starts from
    std::set<QString> seen_;         // controls, by window
    std::deque<Trail> toRun_;
    std::size_t run_ = 0; // trails that are over

    const Trail* trail_ = nullptr; // that runs
    std::size_t next_ = 0;         // of its acts
    bool isObserved_ = false, isPossible_ = true;
    int answers_ = 0;
    QString opened_;
    std::map<QString, QString> shown_;
};

} // namespace kesta::test
