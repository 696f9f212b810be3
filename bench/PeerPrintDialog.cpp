// Opens Qt's own print dialog on a queue, shows the tab with all the printer's options, and ends once it is painted.
// Usage: peer_print_dialog QUEUE. Exit 0 when the options were shown, with their number on standard output.

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>
#include <QTimer>

#include <cstdio>
#include <cstdlib>

namespace {

// Ends the program with their number once all options have been painted.
class EndWhenPainted : public QObject {
public:
    EndWhenPainted(QWidget& page, int options) : QObject(&page), _options(options) { page.installEventFilter(this); }
    bool eventFilter(QObject*, QEvent* event) override
    {
        if (event->type() == QEvent::Paint)
            QTimer::singleShot(0, this, [this] { // after the windows have been flushed
                std::printf("%d options\n", _options);
                std::exit(std::fflush(stdout));
            });
        return false;
    }

private:
    const int _options;
};

// Brings the tab that holds the options' pop-ups to the front; false while there is no such window yet.
bool ShowOptions()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* tabs = window->findChild<QTabWidget*>();
        auto* page = window->findChild<QWidget*>(QStringLiteral("cupsPropertiesPage"));
        if (!window->isVisible() || !tabs || !page || page->window() != window)
            continue;
        const auto options = page->findChildren<QComboBox*>().size();
        if (tabs->indexOf(page) < 0 || options == 0)
            continue;
        new EndWhenPainted(*page, static_cast<int>(options));
        tabs->setCurrentWidget(page);
        return true;
    }
    return false;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fputs("usage: peer_print_dialog QUEUE\n", stderr);
        return 1;
    }
    QPrinter printer;
    printer.setPrinterName(QString::fromLocal8Bit(argv[1]));
    QPrintDialog dialog(&printer);

    QTimer poll;
    QObject::connect(&poll, &QTimer::timeout, [&poll] {
        if (ShowOptions())
            poll.stop();
    });
    QTimer::singleShot(0, &dialog, [&] {
        auto* properties = dialog.findChild<QAbstractButton*>(QStringLiteral("properties"));
        if (!properties || !properties->isEnabled()) {
            std::fputs("peer_print_dialog: no properties for this queue\n", stderr);
            std::_Exit(1);
        }
        poll.start(0);
        properties->click();
    });
    dialog.exec();
    return 1;
}
