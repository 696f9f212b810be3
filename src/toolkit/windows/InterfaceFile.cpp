#include "toolkit/windows/InterfaceFile.h"

#include "platform/plugins/Bundle.h"
#include "toolkit/controls/ClickableText.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/HistoryComboBox.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/controls/SliderField.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/controls/SummaryTextView.h"
#include "toolkit/controls/TabControl.h"
#include "toolkit/controls/TextArea.h"
#include "toolkit/windows/InterfaceSetUp.h"

#include <QCoreApplication>
#include <QFile>
#include <QUiLoader>

#include <algorithm>
#include <array>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

struct WidgetClass {
    const char* name; // in interface files
    QWidget* (*make)(QWidget* parent);
};

template <class Widget> QWidget* Make(QWidget* parent)
{
    return new Widget(parent);
}

constexpr auto kWidgetClasses = std::to_array<WidgetClass>({
    {"PopupButton", Make<PopupButton>},
    {"MenuButton", Make<MenuButton>},
    {"SpinField", Make<SpinField>},
    {"SliderField", Make<SliderField>},
    {"HistoryComboBox", Make<HistoryComboBox>},
    {"ColorSwatch", Make<ColorSwatch>},
    {"ClickableText", Make<ClickableText>},
    {"PictureView", Make<PictureView>},
    {"ListView", Make<ListView>},
    {"TabControl", Make<TabControl>},
    {"SummaryTextView", Make<SummaryTextView>},
    {"TextArea", Make<TextArea>},
    {"QPlainTextEdit", Make<TextArea>},
});

class Loader : public QUiLoader {
public:
    QString unknownClass;

    QWidget* createWidget(const QString& className, QWidget* parent, const QString& name) override
    {
        const auto ours = std::ranges::find_if(
            kWidgetClasses, [&](const WidgetClass& one) { return className == QLatin1String(one.name); });
        QWidget* widget =
            ours != kWidgetClasses.end() ? ours->make(parent) : QUiLoader::createWidget(className, parent, name);
        if (widget)
            widget->setObjectName(name);
        else
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
        made->setTranslationEnabled(false); // texts are keys of the bundle's tables
        return made;
    }();
    return *loader;
}

FourCharCode SignatureOf(const QWidget& root)
{
    const QByteArray signature = root.property("controlSignature").toString().toLatin1();
    return signature.size() == 4 ? PackCode(signature.constData()) : 0;
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
    SetUpWindow(*root, SignatureOf(*root), bundle);
    return root;
}

} // namespace kesta
