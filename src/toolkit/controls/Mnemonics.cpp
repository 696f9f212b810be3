#include "toolkit/controls/Mnemonics.h"

#include "toolkit/controls/PopupButton.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabBar>
#include <QTimer>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <utility>
#include <vector>

namespace kesta {
namespace {

constexpr char kAssignedProperty[] = "kestaAssignedMnemonic"; // the text as this file marked it
constexpr char kPendingProperty[] = "kestaMnemonicsPending";

struct MarkedText {
    QWidget* widget;
    QByteArray property; // under which the assigned text is remembered
    QString text;
    std::function<void(const QString&)> set;
};

void Collect(QWidget& widget, std::vector<MarkedText>& texts)
{
    if (auto* label = qobject_cast<QLabel*>(&widget); label && label->buddy()) {
        texts.push_back({label, kAssignedProperty, label->text(), [label](const QString& t) { label->setText(t); }});
    } else if (auto* tabs = qobject_cast<QTabBar*>(&widget)) {
        for (int tab = 0; tab < tabs->count(); ++tab)
            texts.push_back({tabs, kAssignedProperty + QByteArray::number(tab), tabs->tabText(tab),
                             [tabs, tab](const QString& t) { tabs->setTabText(tab, t); }});
    } else if (auto* button = qobject_cast<QAbstractButton*>(&widget); button && !qobject_cast<PopupButton*>(button)) {
        texts.push_back(
            {button, kAssignedProperty, button->text(), [button](const QString& t) { button->setText(t); }});
    }
}

std::vector<MarkedText> VisibleTexts(QWidget& window)
{
    std::vector<MarkedText> texts;
    for (QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() == &window && widget->isVisibleTo(&window))
            Collect(*widget, texts);
    }
    std::erase_if(texts, [](const MarkedText& one) { return one.text.isEmpty(); });
    return texts;
}

qsizetype MarkPosition(const QString& text)
{
    for (qsizetype i = 0; i + 1 < text.size(); ++i) {
        if (text[i] != QLatin1Char('&'))
            continue;
        if (text[i + 1].isLetterOrNumber())
            return i;
        ++i;
    }
    return -1;
}

// Letters that one key of the language's keyboard types; others are the translator's business.
bool CanBeTyped(QChar c)
{
    const QChar::Script script = c.script();
    return c.isLetterOrNumber() && script != QChar::Script_Han && script != QChar::Script_Hiragana &&
           script != QChar::Script_Katakana && script != QChar::Script_Hangul;
}

// Where a text can be marked, the best places first: the beginnings of words, then the rest.
std::vector<qsizetype> Places(const QString& plain)
{
    std::vector<qsizetype> places;
    for (qsizetype i = 0; i < plain.size(); ++i) {
        if (CanBeTyped(plain[i]))
            places.push_back(i);
    }
    std::stable_partition(places.begin(), places.end(),
                          [&plain](qsizetype i) { return i == 0 || plain[i - 1].isSpace(); });
    return places;
}

// Gives every text a letter of its own as long as there is any way to do so; a text gives its letter away only when it
// finds another.
class Letters {
public:
    explicit Letters(std::set<QChar> taken) : tried_(std::move(taken)) {}

    void add(const QString& plain)
    {
        texts_.push_back({plain, Places(plain), -1});
        std::set<QChar> tried = tried_;
        place(texts_.size() - 1, tried);
    }
    qsizetype placeOf(std::size_t text) const { return texts_[text].chosen; }

private:
    struct Text {
        QString plain;
        std::vector<qsizetype> places;
        qsizetype chosen;
    };

    bool place(std::size_t text, std::set<QChar>& tried)
    {
        for (const qsizetype at : texts_[text].places) {
            const QChar letter = texts_[text].plain[at].toLower();
            if (!owners_.contains(letter) && tried.insert(letter).second)
                return own(text, at, letter);
        }
        for (const qsizetype at : texts_[text].places) {
            const QChar letter = texts_[text].plain[at].toLower();
            if (tried.insert(letter).second && place(owners_[letter], tried))
                return own(text, at, letter);
        }
        return false;
    }
    bool own(std::size_t text, qsizetype at, QChar letter)
    {
        owners_[letter] = text;
        texts_[text].chosen = at;
        return true;
    }

    std::set<QChar> tried_; // letters that are not to be had
    std::map<QChar, std::size_t> owners_;
    std::vector<Text> texts_;
};

void Mark(const MarkedText& one, qsizetype place)
{
    QString marked = WithoutMnemonic(one.text);
    QString rest = place < 0 ? QString() : marked.sliced(place);
    marked.truncate(place < 0 ? marked.size() : place);
    marked.replace(QLatin1Char('&'), QLatin1String("&&"));
    rest.replace(QLatin1Char('&'), QLatin1String("&&"));
    if (!rest.isEmpty())
        marked += QLatin1Char('&') + rest;
    one.widget->setProperty(one.property.constData(), marked);
    if (marked != one.text)
        one.set(marked);
}

} // namespace

void AssignMnemonics(QWidget& window)
{
    std::vector<MarkedText> texts = VisibleTexts(window);
    std::set<QChar> taken;
    std::erase_if(texts, [&taken](const MarkedText& one) {
        const qsizetype mark = MarkPosition(one.text);
        const bool chosenByTranslator = mark >= 0 && one.widget->property(one.property.constData()) != one.text;
        if (chosenByTranslator)
            taken.insert(one.text[mark + 1].toLower());
        return chosenByTranslator;
    });
    Letters letters(taken);
    for (const MarkedText& one : texts)
        letters.add(WithoutMnemonic(one.text));
    for (std::size_t i = 0; i < texts.size(); ++i)
        Mark(texts[i], letters.placeOf(i));
}

void AssignMnemonicsSoon(QWidget& widget)
{
    QWidget* window = widget.window();
    if (window->property(kPendingProperty).toBool())
        return;
    window->setProperty(kPendingProperty, true);
    QTimer::singleShot(0, window, [window] {
        window->setProperty(kPendingProperty, false);
        AssignMnemonics(*window);
    });
}

QString WithoutMnemonic(const QString& text)
{
    QString plain;
    plain.reserve(text.size());
    for (qsizetype i = 0; i < text.size(); ++i) {
        const QChar next = i + 1 < text.size() ? text[i + 1] : QLatin1Char(' ');
        if (text[i] == QLatin1Char('&') && !next.isSpace())
            ++i;
        plain += text[i];
    }
    return plain;
}

} // namespace kesta
