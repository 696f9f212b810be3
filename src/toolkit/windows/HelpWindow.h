#pragma once

#include <QTextBrowser>
#include <QWidget>

namespace kesta {

// Shows pages of a help book. A link to a page that is not there leads to the book's start page, one to a web address
// to the user's browser.
class HelpBrowser : public QTextBrowser {
    Q_OBJECT

public:
    explicit HelpBrowser(QWidget* parent = nullptr);

protected:
    void doSetSource(const QUrl& name, QTextDocument::ResourceType type) override;
};

// Closes with Escape.
class HelpWindow : public QWidget {
    Q_OBJECT

public:
    explicit HelpWindow(QWidget* parent);

    void showPage(const QString& file, const QString& anchor);
    const HelpBrowser& browser() const { return *browser_; }

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    HelpBrowser* browser_;
};

} // namespace kesta
