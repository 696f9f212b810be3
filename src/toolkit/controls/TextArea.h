#pragma once

#include <QPlainTextEdit>

namespace kesta {

// A text field of several lines; interface files get one for each QPlainTextEdit. It sends text typed and text edited
// events for a user's changes. Tab leaves it.
class TextArea : public QPlainTextEdit {
    Q_OBJECT

public:
    explicit TextArea(QWidget* parent = nullptr);

    void pasteText(const QString& text); // as the user would

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void inputMethodEvent(QInputMethodEvent* event) override;
    void insertFromMimeData(const QMimeData* source) override;

private:
    bool mayEnter(const QString& typed);
    void sendIfEdited(const QString& before);
};

} // namespace kesta
