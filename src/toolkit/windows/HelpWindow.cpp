#include "toolkit/windows/HelpWindow.h"

#include "platform/system/URLOpener.h"
#include "toolkit/controls/AccessibleControls.h"
#include "toolkit/windows/FitToScreen.h"
#include "toolkit/windows/WindowPlace.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QPushButton>

namespace kesta {
namespace {

constexpr QSize kWindowSize{620, 520}; // points
constexpr int kMargin = 16;
constexpr int kBandSpacing = 12;
constexpr char kPageStyle[] = "h1 { font-size: x-large; margin-top: 0; } h2 { font-size: large; }"
                              "p, li, td { line-height: 130%; } p, li { margin-top: 4px; margin-bottom: 4px; }";
constexpr int kDeepestFolder = 6; // of a page below the start page

// The start page of the book that the page belongs to; empty without one.
QUrl StartPage(const QUrl& page)
{
    QDir folder = QFileInfo(page.toLocalFile()).dir();
    for (int depth = 0; depth < kDeepestFolder; ++depth) {
        if (folder.exists(QStringLiteral("index.htm")))
            return QUrl::fromLocalFile(folder.filePath(QStringLiteral("index.htm")));
        folder.setPath(QDir::cleanPath(folder.filePath(QStringLiteral(".."))));
    }
    return {};
}

QPushButton* MakeButton(const char* context, const char* text)
{
    return new QPushButton(QCoreApplication::translate(context, text));
}

} // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent)
{
    setOpenLinks(true);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(kMargin);
    document()->setDefaultStyleSheet(QLatin1StringView(kPageStyle));
    setAccessibleName(QCoreApplication::translate("QShortcut", "Help"));
}

void HelpBrowser::doSetSource(const QUrl& name, QTextDocument::ResourceType type)
{
    if (name.scheme().startsWith(QLatin1String("http"))) {
        GetURLOpener().open(name.toString());
        return;
    }
    QUrl page = source().isEmpty() ? name : source().resolved(name);
    if (!page.isLocalFile())
        return;
    if (!QFileInfo(page.toLocalFile()).isFile())
        page = StartPage(page);
    if (!page.isEmpty())
        QTextBrowser::doSetSource(page, type);
}

HelpWindow::HelpWindow(QWidget* parent)
    : QWidget(parent, parent ? Qt::Dialog : Qt::Window), browser_(new HelpBrowser(this))
{
    InstallAccessibleControls();
    setProperty(kAlertProperty, false);
    setObjectName(QStringLiteral("Help"));
    setAttribute(Qt::WA_DeleteOnClose);
    resize(kWindowSize.boundedTo(RoomOnScreen(*this)));
    RememberSize(*this);
    PlaceBefore(*this, parent);
    QPushButton* back = MakeButton("QFileDialog", "Back");
    QPushButton* close = MakeButton("QPlatformTheme", "Close");
    back->setEnabled(false);
    connect(back, &QPushButton::clicked, browser_, &QTextBrowser::backward);
    connect(close, &QPushButton::clicked, this, &QWidget::close);
    connect(browser_, &QTextBrowser::backwardAvailable, back, &QWidget::setEnabled);
    connect(browser_, &QTextBrowser::sourceChanged, this, [this] { setWindowTitle(browser_->documentTitle()); });

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    auto* buttons = new QHBoxLayout;
    buttons->setContentsMargins(kMargin, kBandSpacing, kMargin, kMargin);
    auto* hairline = new QFrame;
    hairline->setFrameShape(QFrame::HLine);
    layout->addWidget(browser_);
    layout->addWidget(hairline);
    layout->addLayout(buttons);
    buttons->addWidget(back);
    buttons->addStretch();
    buttons->addWidget(close);
}

void HelpWindow::showPage(const QString& file, const QString& anchor)
{
    QUrl page = QUrl::fromLocalFile(file);
    page.setFragment(anchor);
    browser_->setSource(page);
    show();
    raise();
    activateWindow();
    browser_->setFocus();
}

void HelpWindow::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

} // namespace kesta
