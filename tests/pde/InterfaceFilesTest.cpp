#include "pde/WindowContracts.h"
#include "platform/plugins/Bundle.h"
#include "support/TestTexts.h"
#include "toolkit/controls/PopupButton.h"
#include "toolkit/windows/InterfaceFile.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QDirIterator>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTabBar>
#include <QXmlStreamReader>

#include <map>
#include <memory>
#include <set>

using namespace Qt::StringLiterals;

// What holds for every interface file below resources/, and what the code asks of each.
namespace kesta {
namespace {

QByteArray ContentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// The English texts of a catalogue's source, by table.
Dictionary TextsOf(const QString& catalogue)
{
    Dictionary tables;
    QXmlStreamReader xml(ContentOf(catalogue));
    QString table, key;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (xml.name() == u"name") {
            table = xml.readElementText();
            tables.set(table, Dictionary());
        } else if (xml.name() == u"source") {
            key = xml.readElementText();
        } else if (xml.name() == u"translation") {
            tables.dictionary(table)->set(key, xml.readElementText(QXmlStreamReader::IncludeChildElements));
        }
    }
    EXPECT_FALSE(xml.hasError()) << catalogue.toStdString() << ": " << xml.errorString().toStdString();
    return tables;
}

// A bundle of the resources with its English texts.
Bundle BundleOf(const QString& folder)
{
    const QString name = QFileInfo(folder).fileName();
    return {.resourcesPath = folder, .strings = TextsOf(u"%1/translations/%2_en.ts"_s.arg(folder, name))};
}

QStringList InterfaceFiles()
{
    QStringList files;
    for (QDirIterator all(QStringLiteral(TEST_RESOURCES "/.."), {u"*.ui"_s}, QDir::Files, QDirIterator::Subdirectories);
         all.hasNext();)
        files << QFileInfo(all.next()).canonicalFilePath();
    return files;
}

bool IsInput(const QWidget& widget)
{
    const bool isPartOfAnother = qobject_cast<const QDialogButtonBox*>(widget.parentWidget()) ||
                                 qobject_cast<const QComboBox*>(widget.parentWidget()) ||
                                 qobject_cast<const QAbstractSpinBox*>(widget.parentWidget()) ||
                                 qobject_cast<const QAbstractItemView*>(widget.parentWidget()) ||
                                 qobject_cast<const QTabBar*>(widget.parentWidget());
    return !isPartOfAnother &&
           (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QLineEdit*>(&widget) ||
            qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
            qobject_cast<const QAbstractItemView*>(&widget) || qobject_cast<const QPlainTextEdit*>(&widget));
}

class InterfaceFileTest : public testing::TestWithParam<QString> {
protected:
    // .../<bundle>/<interface file>/<window>.ui
    QFileInfo window{GetParam()};
    QFileInfo interfaceFile{window.path()};
    const Bundle bundle = BundleOf(interfaceFile.path());
    const std::unique_ptr<QWidget> root =
        CreateWindowFromNib(bundle, interfaceFile.fileName(), window.completeBaseName());

    // As it opens.
    void show()
    {
        EqualizeTrailingWidths(*root);
        root->show();
        QCoreApplication::sendPostedEvents();
    }
};

TEST_P(InterfaceFileTest, KeepsToTheSpacings)
{
    const std::set<int> scale{0, 4, 8, 12, 16, 24};
    const std::set<QString> spacings{u"spacing"_s, u"horizontalSpacing"_s, u"verticalSpacing"_s};
    QXmlStreamReader xml(ContentOf(GetParam()));
    int looked = 0;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement || xml.name() != u"property")
            continue;
        const QString name = xml.attributes().value(u"name"_s).toString();
        if (!name.endsWith(u"Margin") && !spacings.contains(name))
            continue;
        xml.readNextStartElement();
        const int value = xml.readElementText().toInt();
        EXPECT_TRUE(scale.contains(value)) << name.toStdString() << ' ' << value << " in line " << xml.lineNumber();
        ++looked;
    }
    EXPECT_FALSE(xml.hasError());
    EXPECT_GT(looked, 0) << "spacings are said, not left to the style";
}

TEST_P(InterfaceFileTest, HasAllItsTexts)
{
    ASSERT_TRUE(root);
    QList<QWidget*> widgets = root->findChildren<QWidget*>();
    widgets.push_front(root.get());
    const QString missing = QString::fromLatin1(kStringNotFound);
    for (const QWidget* widget : widgets) {
        const auto* label = qobject_cast<const QLabel*>(widget);
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        for (const QString& shown : {text, widget->toolTip(), widget->accessibleName(), widget->windowTitle()})
            EXPECT_NE(shown, missing) << widget->objectName().toStdString() << " ("
                                      << widget->property("localizableKey").toString().toStdString() << ')';
    }
}

TEST_P(InterfaceFileTest, NamesEveryInputAndLetsTheKeyboardReachIt)
{
    ASSERT_TRUE(root);
    std::set<const QWidget*> reached;
    for (const QWidget* widget = root->nextInFocusChain(); widget != root.get(); widget = widget->nextInFocusChain())
        reached.insert(widget);
    for (const QWidget* widget : root->findChildren<QWidget*>()) {
        if (!IsInput(*widget) || widget->window() != root.get()) // lists of combo boxes are windows of their own
            continue;
        const std::string name = widget->objectName().toStdString() + ' ' + widget->metaObject()->className();
        EXPECT_FALSE(ControlName(*widget).isEmpty()) << name;
        EXPECT_TRUE(widget->focusPolicy() & Qt::TabFocus) << name;
        EXPECT_TRUE(reached.contains(widget)) << name;
    }
}

QRect PlaceOf(const QWidget& widget)
{
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

TEST_P(InterfaceFileTest, FocusGoesInReadingOrder)
{
    ASSERT_TRUE(root);
    show();
    const QWidget* previous = nullptr;
    for (const QWidget* widget = root->nextInFocusChain(); widget != root.get(); widget = widget->nextInFocusChain()) {
        if (!IsInput(*widget) || widget->window() != root.get() || !widget->isVisible()) // a pane behind another
            continue;
        if (previous) {
            const QRect before = PlaceOf(*previous), here = PlaceOf(*widget);
            EXPECT_TRUE(here.top() > before.bottom() || here.left() > before.right())
                << widget->objectName().toStdString() << " after " << previous->objectName().toStdString();
        }
        previous = widget;
    }
}

// Every text half as long again, in a large font: what a label or button asks for, it gets.
TEST_P(InterfaceFileTest, LongTextsAreNotCutOff)
{
    ASSERT_TRUE(root);
    QFont large = root->font();
    large.setPointSize(15);
    root->setFont(large);
    std::vector<QWidget*> texts;
    for (QWidget* widget : root->findChildren<QWidget*>()) {
        const auto* label = qobject_cast<QLabel*>(widget);
        const auto* button = qobject_cast<QAbstractButton*>(widget);
        const QString text = label ? label->text() : button ? button->text() : QString();
        if (text.isEmpty() || qobject_cast<PopupButton*>(widget) || !widget->isVisibleTo(root.get()))
            continue; // pop-ups elide; a pane behind another has no place yet
        SetControlText(widget, text + text.left(text.size() / 2 + 1));
        texts.push_back(widget);
    }
    show();
    for (const QWidget* widget : texts) {
        const QSize least = widget->minimumSizeHint();
        const int height = widget->hasHeightForWidth() ? widget->heightForWidth(widget->width()) : least.height();
        EXPECT_GE(widget->height(), height) << widget->objectName().toStdString();
        EXPECT_GE(widget->width(), least.width()) << widget->objectName().toStdString();
    }
}

std::string NameOfFile(const testing::TestParamInfo<QString>& info)
{
    const QFileInfo window(info.param);
    const QFileInfo interfaceFile(window.path());
    std::string name =
        (QFileInfo(interfaceFile.path()).fileName() + interfaceFile.fileName() + u'_' + window.completeBaseName())
            .toStdString();
    std::erase_if(name, [](unsigned char c) { return !std::isalnum(c) && c != '_'; });
    return name;
}

INSTANTIATE_TEST_SUITE_P(All, InterfaceFileTest, testing::ValuesIn(InterfaceFiles()), NameOfFile);

// By its number under its window's signature.
std::map<SInt32, FourCharCode> ControlsIn(const QWidget& root)
{
    std::map<SInt32, FourCharCode> controls;
    for (const QWidget* widget : root.findChildren<QWidget*>()) {
        if (IsControl(*widget))
            controls.emplace(GetControlID(*widget).number, GetControlID(*widget).signature);
    }
    return controls;
}

// What headers say and what windows hold is the same, so neither has to be listed a second time.
TEST(InterfaceFiles, HoldTheControlsThatTheCodeAsksForAndNoOthers)
{
    std::map<QString, std::map<SInt32, FourCharCode>> windows;
    for (const QString& file : InterfaceFiles()) {
        const QFileInfo window(file), interfaceFile(window.path());
        const QString name = interfaceFile.fileName() + u'/' + window.completeBaseName();
        const auto root =
            CreateWindowFromNib(BundleOf(interfaceFile.path()), interfaceFile.fileName(), window.completeBaseName());
        ASSERT_TRUE(root) << file.toStdString();
        EXPECT_TRUE(windows.emplace(name, ControlsIn(*root)).second) << file.toStdString();
    }
    std::map<QString, std::set<SInt32>> asked;
    for (const test::WindowContract& contract : test::WindowContracts(QStringLiteral(SOURCE_ROOT))) {
        ASSERT_TRUE(windows.contains(contract.window)) << contract.header.toStdString();
        const std::map<SInt32, FourCharCode>& controls = windows[contract.window];
        EXPECT_FALSE(contract.numbers.empty()) << contract.header.toStdString();
        for (const SInt32 number : contract.numbers) {
            const auto control = controls.find(number);
            ASSERT_TRUE(control != controls.end()) << contract.window.toStdString() << ' ' << number;
            EXPECT_TRUE(contract.signature == 0 || control->second == contract.signature) << number;
        }
        asked[contract.window].insert(contract.numbers.begin(), contract.numbers.end());
        asked[contract.window].insert(contract.optional.begin(), contract.optional.end());
    }
    for (const auto& [window, controls] : windows) {
        for (const auto& [number, signature] : controls)
            EXPECT_TRUE(asked[window].contains(number)) << window.toStdString() << ' ' << number << ": nobody asks";
    }
}

} // namespace
} // namespace kesta
