#include "toolkit/controls/SummaryTextView.h"

#include <QPainter>
#include <QStyle>

#include <algorithm>

namespace kesta {

namespace {

constexpr auto kDash = QLatin1StringView("- "); // before each fact
constexpr qsizetype kMostDrawn = 20'000;        // UTF-16 units
constexpr int kLongestWord = 40;                // in letters: what is longer is no word and must not widen the window

struct Fact {
    QString text;
    bool hasDash = false;
    QRect rect; // of the text, left to right
};

// What a wrapped line goes on with stands below its beginning, not below the dash.
std::vector<Fact> LaidOut(const QString& text, const QFontMetrics& metrics, int width)
{
    std::vector<Fact> facts;
    int top = 0;
    for (const QString& line : text.split(u'\n')) {
        const bool hasDash = line.startsWith(kDash);
        const QString rest = hasDash ? line.sliced(kDash.size()) : line;
        const int indent = hasDash ? metrics.horizontalAdvance(kDash) : 0;
        const QRect room(indent, top, std::max(1, width - indent), QWIDGETSIZE_MAX);
        const int height = metrics.boundingRect(room, Qt::TextWordWrap, rest).height();
        facts.push_back(
            {rest, hasDash, QRect(room.topLeft(), QSize(room.width(), std::max(height, metrics.height())))});
        top += facts.back().rect.height() + metrics.leading();
    }
    return facts;
}

} // namespace

SummaryTextView::SummaryTextView(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText); // texts hold names that users typed
    setWordWrap(true);
    setAlignment(Qt::AlignTop | Qt::AlignLeading);
}

void SummaryTextView::setLines(int lines)
{
    lines_ = std::max(lines, 1);
    updateGeometry();
}

QSize SummaryTextView::withRoom(QSize size) const
{
    const int leading = (lines_ - 1) * fontMetrics().lineSpacing();
    return size.expandedTo({0, leading + fontMetrics().height()});
}

bool SummaryTextView::isEndless() const
{
    return text().size() > kMostDrawn;
}

QString SummaryTextView::drawnText() const
{
    if (!isEndless())
        return text();
    const bool splitsPair = text()[kMostDrawn - 1].isHighSurrogate();
    return text().first(kMostDrawn - (splitsPair ? 1 : 0)) + u'\u2026';
}

QSize SummaryTextView::sizeHint() const
{
    return withRoom(isEndless() ? minimumSizeHint() : QLabel::sizeHint());
}

// What layouts go by, as the lines wrap.
int SummaryTextView::heightForWidth(int width) const
{
    const QRect last = LaidOut(drawnText(), fontMetrics(), width).back().rect;
    return withRoom({width, last.bottom() + 1}).height();
}

void SummaryTextView::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    const auto draw = [&](const QRect& part, const QString& shown) {
        style()->drawItemText(&painter, QStyle::visualRect(layoutDirection(), rect(), part),
                              Qt::AlignLeft | Qt::AlignTop | Qt::TextWordWrap, palette(), isEnabled(), shown,
                              foregroundRole());
    };
    for (const Fact& fact : LaidOut(drawnText(), fontMetrics(), width())) {
        draw(fact.rect, fact.text);
        if (fact.hasDash)
            draw(QRect(0, fact.rect.top(), fact.rect.left(), fact.rect.height()), kDash.trimmed());
    }
}

QSize SummaryTextView::minimumSizeHint() const
{
    const int widest = fontMetrics().averageCharWidth() * kLongestWord;
    const QSize size = isEndless() ? QSize(widest, 0) : QLabel::minimumSizeHint();
    return withRoom({std::min(size.width(), widest), size.height()});
}

} // namespace kesta
