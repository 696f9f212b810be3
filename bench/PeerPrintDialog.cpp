// Opens Qt's own print dialog on a queue, shows the tab with all the printer's options, and ends once it is painted.
// Usage: peer_print_dialog QUEUE. Exit 0 when the options were shown, with their number on standard output.

#include <QAbstractButton>
#include <QApplication>
#include <QPrintDialog>
#include <QPrinter>
#include <QTabWidget>
#include <QTimer>
#include <QTreeView>

#include <cstdio>
#include <cstdlib>

namespace {

int CountRows(const QAbstractItemModel& model, const QModelIndex& parent = {})
{
    int rows = model.rowCount(parent);
    for (int row = 0; row < model.rowCount(parent); ++row)
        rows += CountRows(model, model.index(row, 0, parent));
    return rows;
}

// The options are shown when the tree that holds them is visible, expanded and painted.
bool ShowOptions()
{
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* tree = window->findChild<QTreeView*>();
        auto* tabs = window->findChild<QTabWidget*>();
        if (!window->isVisible() || !tree || !tabs || !tree->model() || CountRows(*tree->model()) == 0)
            continue;
        for (int i = 0; i < tabs->count(); ++i) {
            if (tabs->widget(i)->isAncestorOf(tree))
                tabs->setCurrentIndex(i);
        }
        tree->expandAll();
        tree->viewport()->repaint();
        std::printf("%d rows\n", CountRows(*tree->model()));
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
    QObject::connect(&poll, &QTimer::timeout, [] {
        if (ShowOptions())
            std::exit(std::fflush(stdout));
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
