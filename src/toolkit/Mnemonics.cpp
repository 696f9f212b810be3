#include "toolkit/Mnemonics.h"

#include "toolkit/PopupButton.h"

#include <QAbstractButton>
#include <QLabel>
#include <QTabBar>
#include <QTimer>

#include <functional>
#include <set>
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

// The best free letter: the beginning of a word, the first one before all, else any; -1 without one.
qsizetype FreeLetter(const QString& text, const std::set<QChar>& taken)
{
    qsizetype found = -1;
    for (qsizetype i = 0; i < text.size(); ++i) {
        if (!CanBeTyped(text[i]) || taken.contains(text[i].toLower()))
            continue;
        if (i == 0 || text[i - 1].isSpace())
            return i;
        if (found < 0)
            found = i;
    }
    return found;
}

void Assign(const MarkedText& one, std::set<QChar>& taken)
{
    const QString plain = WithoutMnemonic(one.text);
    const qsizetype letter = FreeLetter(plain, taken);
    QString marked = plain.left(letter < 0 ? plain.size() : letter);
    marked.replace(QLatin1Char('&'), QLatin1String("&&"));
    if (letter >= 0) {
        taken.insert(plain[letter].toLower());
        marked += QLatin1Char('&') + plain.sliced(letter).replace(QLatin1Char('&'), QLatin1String("&&"));
    }
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
    for (const MarkedText& one : texts)
        Assign(one, taken);
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
