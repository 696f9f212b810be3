#pragma once

#include "platform/values/Types.h"

#include <QComboBox>

#include <optional>
#include <vector>

namespace kesta {

// A text field with a list: fixed entries, which stand for values, then texts typed earlier, newest first. It holds
// either a fixed entry or a text, and a text that reads like an entry is still a text. Choosing from the list sends the
// item chosen, then a hit with the position; typing sends the events of text fields.
class HistoryComboBox : public QComboBox {
    Q_OBJECT

public:
    struct FixedEntry {
        QString title;
        SInt32 value = 0;
    };

    explicit HistoryComboBox(QWidget* parent = nullptr);

    void setFixedEntries(std::vector<FixedEntry> entries);
    void setHistory(std::vector<QString> history);

    std::optional<SInt32> fixedValue() const; // nothing while it holds a text
    QString typedText() const;                // null while it holds a fixed entry
    bool setFixedValue(SInt32 value);         // false, and nothing changed, when no entry has it
    void setTypedText(const QString& text);

    bool chooseItem(int position); // as the user would; fixed entries first, then the history, from 1
    int itemCount() const;         // fixed entries and history

protected:
    void wheelEvent(QWheelEvent* event) override; // only with the focus: panels scroll

private:
    void refill();
    void takeRow(int row);

    std::vector<FixedEntry> fixed_;
    std::vector<QString> history_;
    int chosenFixed_ = -1; // index in fixed_; -1 while the text is a typed one
};

} // namespace kesta
