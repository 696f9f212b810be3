#pragma once

#include <QLabel>

namespace kesta {

// A plain text of some lines that can be selected; it keeps room for its usual number of lines, so that nothing jumps.
class SummaryTextView : public QLabel {
    Q_OBJECT
    Q_PROPERTY(int lines READ lines WRITE setLines)

public:
    explicit SummaryTextView(QWidget* parent = nullptr);

    int lines() const { return lines_; }
    void setLines(int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QSize withRoom(QSize size) const;
    int lines_ = 1;
};

// What the controls below the root say of the job, in their order: each summary text, and the chosen title of each
// pop-up whose interface file names the value that goes without saying (`unsaidValue`), unless it is that one.
QStringList ShownSummaries(const QWidget& root);

} // namespace kesta
