#pragma once

#include <QLabel>

namespace kesta {

// A plain text of some facts, a line and a dash each, that wrap beside their dashes; it keeps room for its usual number
// of lines, so that nothing jumps. Texts hold names from settings files: what nobody would read to its end ends with an
// ellipsis, though text() has it all.
class SummaryTextView : public QLabel {
    Q_OBJECT
    Q_PROPERTY(int lines READ lines WRITE setLines)

public:
    explicit SummaryTextView(QWidget* parent = nullptr);

    int lines() const { return lines_; }
    void setLines(int lines);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QSize withRoom(QSize size) const;
    bool isEndless() const;
    QString drawnText() const;
    int lines_ = 1;
};

} // namespace kesta
