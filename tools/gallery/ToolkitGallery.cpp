// Saves pictures of all controls, to be laid beside the drafts of the look:
//     toolkit_gallery OUT_DIR
// QT_SCALE_FACTOR=2 gives 2x.

#include "gallery/GalleryWindow.h"
#include "platform/system/Notices.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/Mnemonics.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/style/KestaStyle.h"
#include "toolkit/windows/AlertWindow.h"

#include <QApplication>
#include <QDir>
#include <QMenu>
#include <QTimer>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace {

using kesta::gallery::kGallery;

bool Save(QWidget& window, const QString& file)
{
    QApplication::processEvents();
    const bool saved = window.grab().save(file);
    std::printf("%s %s\n", saved ? "saved" : "could not save", qUtf8Printable(file));
    return saved;
}

bool SaveOpenMenu(QWidget& window, const QString& file)
{
    bool saved = false;
    QTimer::singleShot(50, [&] {
        if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
            menu->setActiveAction(menu->actions().at(3));
            saved = Save(*menu, file);
            menu->close();
        }
    });
    kesta::FindControlAs<kesta::MenuButton>(&window, {kGallery, 107})->openMenu();
    return saved;
}

bool SaveAll(const QDir& folder, const QString& scheme)
{
    const auto file = [&](const char* name) {
        return folder.filePath(u"%1-%2.png"_s.arg(QLatin1String(name), scheme));
    };
    const auto window = kesta::gallery::MakeGalleryWindow();
    kesta::AssignMnemonics(*window);
    window->resize(640, 650);
    window->show();
    window->activateWindow();
    const bool menuSaved = SaveOpenMenu(*window, file("menu"));
    const bool windowSaved = Save(*window, file("window"));

    const auto controls = kesta::gallery::MakeGalleryControls();
    controls->resize(640, 620);
    controls->show();
    controls->activateWindow();
    kesta::FindControl(controls.get(), {kGallery, 25})->setFocus();
    const bool focusSaved = Save(*controls, file("controls-focus"));
    kesta::SetInvalid(kesta::FindControl(controls.get(), {kGallery, 24}), true);
    kesta::AlertWindow alert({.title = u"Secure Print needs a valid passcode"_s,
                              .message = u"Enter the same passcode of 4 to 10 digits in both fields of the Secure "
                                         "Print setup."_s,
                              .buttons = {u"Yes"_s, u"No"_s}});
    alert.show();
    return menuSaved && windowSaved && focusSaved && Save(*controls, file("controls-invalid")) &&
           Save(alert, file("alert"));
}

} // namespace

int main(int argc, char** argv)
{
    const QApplication application(argc, argv);
    if (argc != 2 || !QDir().mkpath(QString::fromLocal8Bit(argv[1]))) {
        std::fprintf(stderr, "usage: toolkit_gallery OUT_DIR\n");
        return 1;
    }
    const QByteArray scheme = qgetenv("KESTA_COLOR_SCHEME");
    kesta::InstallKestaStyle(*qApp);
    return SaveAll(QDir(QString::fromLocal8Bit(argv[1])), scheme.isEmpty() ? u"desktop"_s : QString::fromLatin1(scheme))
               ? 0
               : 1;
}
