#include "toolkit/InterfaceFile.h"

#include "platform/Bundle.h"

#include <QAbstractButton>
#include <QCoreApplication>
#include <QFile>
#include <QLabel>
#include <QUiLoader>
#include <QVBoxLayout>

#include <cstdio>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class Loader : public QUiLoader {
public:
    QString unknownClass;

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override
    {
        if (className == u"PopupButton") {
            auto* popup = new PopupButton(parent);
            popup->setObjectName(name);
            return popup;
        }
        QWidget* widget = QUiLoader::createWidget(className, parent, name);
        if (!widget)
            unknownClass = className;
        return widget;
    }
};

// Constructing a loader loads every designer plug-in that it finds, so there is one, and it finds none.
Loader& SharedLoader()
{
    static const auto loader = [] {
        const QStringList paths = QCoreApplication::libraryPaths();
        QCoreApplication::setLibraryPaths({});
        auto made = std::make_unique<Loader>();
        QCoreApplication::setLibraryPaths(paths);
        return made;
    }();
    return *loader;
}

void SendButtonEvents(QAbstractButton& button)
{
    const QPointer<QAbstractButton> alive = &button;
    SendControlEvent(button, {.kind = EventKind::Hit, .value = button.isChecked()});
    if (!alive)
        return;
    const QByteArray command = button.property("menuCommand").toString().toLatin1();
    if (command.size() == 4)
        SendControlEvent(button, {.kind = EventKind::Command, .command = PackCode(command.constData())});
}

void SetUpWidget(QWidget& widget, FourCharCode signature, const Bundle& bundle)
{
    if (const SInt32 number = GetControlID(widget).number)
        SetControlID(widget, {signature, number});
    if (auto* label = qobject_cast<QLabel*>(&widget); label && !label->text().isEmpty())
        label->setText(LocalizedString(bundle, label->text()));
    auto* button = qobject_cast<QAbstractButton*>(&widget);
    if (!button || dynamic_cast<PopupButton*>(button))
        return;
    if (!button->text().isEmpty())
        button->setText(LocalizedString(bundle, button->text()));
    QObject::connect(button, &QAbstractButton::clicked, button, [button] { SendButtonEvents(*button); });
}

} // namespace

std::unique_ptr<QWidget> CreateWindowFromNib(const Bundle& bundle, QAnyStringView interfaceFile, QAnyStringView window)
{
    QFile file(u"%1/%2/%3.ui"_s.arg(bundle.resourcesPath, interfaceFile.toString(), window.toString()));
    Loader& loader = SharedLoader();
    loader.unknownClass.clear();
    std::unique_ptr<QWidget> root;
    if (file.open(QIODevice::ReadOnly))
        root.reset(loader.load(&file));
    if (!root || !loader.unknownClass.isEmpty()) {
        const QString reason = !file.isOpen()                  ? file.errorString()
                               : loader.unknownClass.isEmpty() ? loader.errorString()
                                                               : u"unknown class "_s + loader.unknownClass;
        std::fprintf(stderr, "%s: %s\n", qUtf8Printable(file.fileName()), qUtf8Printable(reason));
        return nullptr;
    }
    const QByteArray signature = root->property("controlSignature").toString().toLatin1();
    const FourCharCode code = signature.size() == 4 ? PackCode(signature.constData()) : 0;
    SetUpWidget(*root, code, bundle);
    for (QWidget* widget : root->findChildren<QWidget*>())
        SetUpWidget(*widget, code, bundle);
    return root;
}

QWidget* FindControl(const QWidget* root, ControlID id)
{
    if (!root)
        return nullptr;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        if (GetControlID(*widget) == id)
            return widget;
    }
    return nullptr;
}

PopupButton* FindPopupButton(const QWidget* root, ControlID id)
{
    return dynamic_cast<PopupButton*>(FindControl(root, id));
}

QLineEdit* FindTextField(const QWidget* root, ControlID id)
{
    return qobject_cast<QLineEdit*>(FindControl(root, id));
}

QWidget* EmbedAndShowControl(std::unique_ptr<QWidget> control, QWidget& parent)
{
    QWidget* embedded = control.release();
    EmbedControl(*embedded, &parent);
    embedded->show();
    return embedded;
}

void EmbedControl(QWidget& control, QWidget* parent)
{
    if (!parent)
        return;
    control.setParent(parent);
    if (!parent->layout())
        (new QVBoxLayout(parent))->setContentsMargins(0, 0, 0, 0);
    parent->layout()->addWidget(&control);
}

void SetControlVisible(QWidget* control, bool visible)
{
    if (control)
        control->setVisible(visible);
}

void SetControlEnabled(QWidget* control, bool enabled)
{
    if (control)
        control->setEnabled(enabled);
}

void ClickControl(QWidget* control)
{
    if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->click();
}

} // namespace kesta
