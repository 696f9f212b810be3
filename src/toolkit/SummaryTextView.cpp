#include "toolkit/SummaryTextView.h"

#include "toolkit/PopupButton.h"

#include <algorithm>

namespace kesta {
namespace {

QString SummaryOf(const QWidget& control)
{
    if (const auto* summary = qobject_cast<const SummaryTextView*>(&control))
        return summary->text();
    const QVariant unsaid = control.property("unsaidValue");
    const auto* popup = unsaid.isValid() ? qobject_cast<const PopupButton*>(&control) : nullptr;
    const MenuItem* item = popup ? popup->selectedItem() : nullptr;
    return item && item->value != unsaid.toInt() ? item->title : QString();
}

} // namespace

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

QSize SummaryTextView::minimumSizeHint() const
{
    constexpr int kLongestWord = 40; // what is longer is no word and must not widen the window
    const QSize size = QLabel::minimumSizeHint();
    return withRoom({std::min(size.width(), fontMetrics().averageCharWidth() * kLongestWord), size.height()});
}

QStringList ShownSummaries(const QWidget& root)
{
    QStringList summaries;
    for (const auto* control : root.findChildren<QWidget*>()) {
        const QString summary = control->isHidden() ? QString() : SummaryOf(*control);
        if (!summary.isEmpty())
            summaries << summary;
    }
    return summaries;
}

} // namespace kesta
