#include "toolkit/style/KestaStyle.h"

#include "gallery/GalleryWindow.h"
#include "support/TestTexts.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/controls/TextInput.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QKeyEvent>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyle>
#include <QStyleOption>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class StyleTest : public testing::Test {
protected:
    StyleTest() { QApplication::setStyle(u"fusion"_s); }
    ~StyleTest() override
    {
        qunsetenv("KESTA_COLOR_SCHEME");
        QApplication::setStyle(u"fusion"_s);
        QApplication::setPalette(QPalette());
    }
    static void install(const char* scheme)
    {
        qputenv("KESTA_COLOR_SCHEME", scheme);
        InstallKestaStyle(*qApp);
    }
    static QColor pixel(QWidget& widget, QPoint at) { return widget.grab().toImage().pixelColor(at); }
};

TEST_F(StyleTest, AnotherStyleAndADesktopsColoursStayAsTheyAre)
{
    QApplication::setStyle(u"windows"_s);
    install("dark");
    EXPECT_EQ(QApplication::style()->name(), u"windows"_s);
    EXPECT_NE(QApplication::palette().color(QPalette::Window), QColor(0x1F2226));

    QApplication::setStyle(u"fusion"_s);
    QPalette desktops = QApplication::palette();
    desktops.setColor(QPalette::Window, QColor(0xD0E0D0));
    QApplication::setPalette(desktops);
    install("");
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0xD0E0D0));
    EXPECT_NE(QApplication::style()->metaObject()->className(), std::string("QFusionStyle"));
}

TEST_F(StyleTest, WithoutADesktopThePaletteIsOurs)
{
    install("");
    EXPECT_EQ(QApplication::palette().color(QPalette::Highlight), QColor(0x4A5EE4));
    install("dark");
    EXPECT_EQ(QApplication::palette().color(QPalette::Window), QColor(0x1F2226));
}

TEST_F(StyleTest, LooksTakeTheirColoursFromThePalette)
{
    install("light");
    const auto window = gallery::MakeGalleryWindow();
    const QFont plain = window->font();
    window->resize(640, 650);
    window->show();
    QLabel* label = LabelOf(*FindControl(window.get(), {gallery::kGallery, 101}));
    EXPECT_EQ(label->palette().color(QPalette::WindowText), CurrentColors().text2);
    EXPECT_EQ(FindControl(window.get(), {gallery::kGallery, 16})->font().weight(), QFont::DemiBold);
    QWidget* pane = window->findChild<QWidget*>(u"pane"_s);
    EXPECT_EQ(pixel(*pane, {8, 8}), CurrentColors().pane);
    EXPECT_EQ(pixel(*pane, {8, 0}), CurrentColors().hairline);
    EXPECT_EQ(pixel(*pane, {0, 8}), CurrentColors().pane) << "no hairline at the side";
    QPushButton* print = GetWindowDefaultButton(*window);
    EXPECT_EQ(pixel(*print, {10, 10}), CurrentColors().accent);
    print->setEnabled(false);
    EXPECT_NE(pixel(*print, {10, 10}), CurrentColors().accent);

    install("dark");
    QApplication::processEvents(); // windows are told later
    ASSERT_TRUE(CurrentColors().dark);
    EXPECT_EQ(pixel(*pane, {8, 8}), CurrentColors().pane) << "follows the palette";
    EXPECT_EQ(label->palette().color(QPalette::WindowText), CurrentColors().text2);
    SetLook(*label, "title");
    EXPECT_EQ(label->palette().color(QPalette::WindowText), CurrentColors().text);
    EXPECT_EQ(label->font().weight(), QFont::DemiBold);
    SetLook(*label, "");
    EXPECT_EQ(label->font(), plain);
}

TEST_F(StyleTest, AnInvalidFieldHasARingAndAMark)
{
    install("light");
    const auto controls = gallery::MakeGalleryControls();
    controls->show();
    QWidget& field = *FindControl(controls.get(), {gallery::kGallery, 24});
    const QPoint edge(field.width() / 2, 1);
    EXPECT_NE(pixel(field, edge), CurrentColors().error);
    SetInvalid(&field, true);
    EXPECT_EQ(pixel(field, edge), CurrentColors().error);
    const QRect mark(field.width() - 8 - 16, field.height() / 2 - 8, 16, 16);
    const QImage picture = field.grab(mark).toImage();
    int marked = 0;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x)
            marked += picture.pixelColor(x, y) == CurrentColors().error;
    }
    EXPECT_GT(marked, 10);
    SetFieldText(&field, u"5"_s);
    EXPECT_NE(pixel(field, edge), CurrentColors().error);
}

TEST_F(StyleTest, LabelsAndNumbersStayBesideTheirControlsFromRightToLeft)
{
    install("light");
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto* label = new QLabel(u"Latin"_s, &window);
    window.show();
    EXPECT_EQ(label->alignment() & Qt::AlignHorizontal_Mask, Qt::AlignRight | Qt::AlignAbsolute);
    QSpinBox mirrored, plain;
    mirrored.setLayoutDirection(Qt::RightToLeft);
    mirrored.ensurePolished();
    plain.ensurePolished();
    EXPECT_TRUE(mirrored.alignment() & Qt::AlignRight);
    EXPECT_TRUE(plain.alignment() & Qt::AlignLeft);
}

TEST_F(StyleTest, ShortcutsAreUnderlinedAsLongAsAltIsHeld)
{
    install("light");
    QWidget window;
    const auto areUnderlined = [] { return QApplication::style()->styleHint(QStyle::SH_UnderlineShortcut) != 0; };
    const auto send = [&window](QEvent::Type type, int key) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(&window, &event);
    };
    send(QEvent::KeyPress, Qt::Key_Shift);
    EXPECT_FALSE(areUnderlined());
    send(QEvent::KeyPress, Qt::Key_Alt);
    EXPECT_TRUE(areUnderlined());
    send(QEvent::KeyRelease, Qt::Key_Alt);
    EXPECT_FALSE(areUnderlined());
    send(QEvent::KeyPress, Qt::Key_Alt);
    QEvent leaving(QEvent::WindowDeactivate); // to another program, where the release goes
    QApplication::sendEvent(&window, &leaving);
    EXPECT_FALSE(areUnderlined());
}

// Where a part of the bar lies that has the whole range, a page and a position.
QRect ScrollBarRect(QStyle::SubControl part, int position)
{
    QStyleOptionSlider bar;
    bar.rect = QRect(0, 0, 12, 200);
    bar.orientation = Qt::Vertical;
    bar.maximum = 300;
    bar.pageStep = 100;
    bar.sliderPosition = position;
    return QApplication::style()->subControlRect(QStyle::CC_ScrollBar, &bar, part, nullptr);
}

TEST_F(StyleTest, TheHandleOfAScrollBarIsWhatIsSeenOfTheWhole)
{
    install("light");
    EXPECT_EQ(ScrollBarRect(QStyle::SC_ScrollBarSlider, 0), QRect(0, 0, 12, 50));
    EXPECT_EQ(ScrollBarRect(QStyle::SC_ScrollBarSlider, 300), QRect(0, 150, 12, 50));
    EXPECT_EQ(ScrollBarRect(QStyle::SC_ScrollBarAddPage, 0), QRect(0, 50, 12, 150));
    EXPECT_TRUE(ScrollBarRect(QStyle::SC_ScrollBarAddLine, 0).isEmpty());
}

TEST_F(StyleTest, AScrolledPageStaysAsWide)
{
    install("light");
    QScrollArea area;
    area.resize(200, 100);
    auto* page = new QWidget;
    page->setMinimumHeight(400);
    auto* layout = new QVBoxLayout(page);
    area.setWidgetResizable(true);
    area.setFrameShape(QFrame::NoFrame);
    area.setWidget(page);
    area.show();
    QCoreApplication::processEvents();
    EXPECT_TRUE(area.verticalScrollBar()->isVisible());
    EXPECT_EQ(page->width(), 200);
    layout->setContentsMargins(0, 0, 0, 0); // no room for the bar
    area.resize(220, 100);
    QCoreApplication::processEvents();
    EXPECT_EQ(page->width(), 220 - area.verticalScrollBar()->width());
}

} // namespace
} // namespace kesta
