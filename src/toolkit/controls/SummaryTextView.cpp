#include "toolkit/controls/SummaryTextView.h"

#include <algorithm>

namespace kesta {

SummaryTextView::SummaryTextView(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText); // texts hold names that users typed
    setTextInteractionFlags(Qt::TextSelectableByMouse);
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

QSize SummaryTextView::sizeHint() const
{
    return withRoom(QLabel::sizeHint());
}

// What layouts go by, as the lines wrap.
int SummaryTextView::heightForWidth(int width) const
{
    return withRoom({width, QLabel::heightForWidth(width)}).height();
}

QSize SummaryTextView::minimumSizeHint() const
{
    constexpr int kLongestWord = 40; // what is longer is no word and must not widen the window
    const QSize size = QLabel::minimumSizeHint();
    return withRoom({std::min(size.width(), fontMetrics().averageCharWidth() * kLongestWord), size.height()});
}

} // namespace kesta
