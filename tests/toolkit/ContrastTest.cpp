// Whether everything can be seen on any palette, by the pixels.

#include "gallery/GalleryWindow.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/MenuButton.h"
#include "toolkit/style/KestaStyle.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QTimer>

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

struct Scheme {
    const char* name;
    QRgb window, text, base, baseText, button, buttonText, highlight, highlightedText;
};

// Those of the look, high contrast of both kinds, and one whose fields are light in a dark window.
constexpr auto kSchemes = std::to_array<Scheme>({
    {"light", 0xEFF1F4, 0x1F242B, 0xFFFFFF, 0x1F242B, 0xFFFFFF, 0x1F242B, 0x4A5EE4, 0xFFFFFF},
    {"dark", 0x1F2226, 0xE9EBEE, 0x191C1F, 0xE9EBEE, 0x343840, 0xE9EBEE, 0x5468EC, 0xFFFFFF},
    {"white", 0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0x000080, 0xFFFFFF},
    {"black", 0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0x000000, 0xFFFFFF, 0xFFFF00, 0x000000},
    {"green", 0x000000, 0x00FF00, 0x000000, 0x00FF00, 0x000000, 0x00FF00, 0x00FF00, 0x000000},
    {"mixed", 0x30343A, 0xF0F0F0, 0xFFFFFF, 0x101010, 0x606870, 0xFFFFFF, 0x3060C0, 0xFFFFFF},
    {"pale", 0xF6F6F6, 0x404040, 0xFFFFFF, 0x303030, 0xFAFAFA, 0x404040, 0xA0C8F0, 0xF0F8FF},
});

QPalette PaletteOf(const Scheme& scheme)
{
    QPalette palette; // the disabled group as careless themes have it: as the ground, or grey
    const auto set = [&palette](QPalette::ColorRole role, QRgb color, QRgb disabled) {
        palette.setColor(role, QColor(color));
        palette.setColor(QPalette::Disabled, role, QColor(disabled));
    };
    set(QPalette::Window, scheme.window, scheme.window);
    set(QPalette::WindowText, scheme.text, scheme.window);
    set(QPalette::Base, scheme.base, scheme.base);
    set(QPalette::Text, scheme.baseText, scheme.base);
    set(QPalette::Button, scheme.button, scheme.button);
    set(QPalette::ButtonText, scheme.buttonText, scheme.button);
    set(QPalette::Highlight, scheme.highlight, scheme.highlight);
    set(QPalette::HighlightedText, scheme.highlightedText, scheme.highlightedText);
    set(QPalette::PlaceholderText, scheme.base, scheme.base);
    return palette;
}

QColor Ground(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            ++counts[image.pixel(x, y)];
    }
    return QColor(std::ranges::max_element(counts, {}, [](const auto& one) { return one.second; })->first);
}

// How far the clearest pixel is from the most frequent one.
double Clearest(const QImage& image)
{
    const QColor ground = Ground(image);
    double most = 1;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            most = std::max(most, Contrast(image.pixelColor(x, y), ground));
    }
    return most;
}

double Clearest(QWidget& widget, QRect part)
{
    return Clearest(widget.grab(part).toImage());
}

bool ShowsText(const QWidget& widget)
{
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        return !label->text().isEmpty();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        return !button->text().isEmpty();
    return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QAbstractSpinBox*>(&widget) ||
           qobject_cast<const ListView*>(&widget);
}

class ContrastTest : public testing::TestWithParam<Scheme> {
protected:
    ContrastTest()
    {
        QApplication::setStyle(u"fusion"_s);
        QApplication::setPalette(PaletteOf(GetParam()));
        InstallKestaStyle(*qApp);
    }
    ~ContrastTest() override
    {
        QApplication::setStyle(u"fusion"_s);
        QApplication::setPalette(QPalette());
    }
    static void checkTexts(QWidget& window)
    {
        for (QWidget* widget : window.findChildren<QWidget*>()) {
            if (!widget->isVisible() || !ShowsText(*widget))
                continue;
            const double least = widget->isEnabled() ? 4.5 : 1.9; // thin strokes lose a little of the 2
            EXPECT_GE(Clearest(*widget, widget->rect().adjusted(3, 3, -3, -3)), least)
                << widget->metaObject()->className() << ' ' << ControlName(*widget).toStdString();
        }
    }
};

TEST_P(ContrastTest, TextsCanBeReadAndDisabledOnesSeen)
{
    for (const auto make : {gallery::MakeGalleryWindow, gallery::MakeGalleryControls}) {
        const auto window = make();
        window->resize(700, 650);
        window->show();
        checkTexts(*window);
        for (QWidget* child : window->findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
            child->setEnabled(false);
        checkTexts(*window);
    }
}

TEST_P(ContrastTest, APlaceholderCanBeRead)
{
    QLineEdit field;
    field.setPlaceholderText(u"Mirror MMM"_s);
    field.show();
    EXPECT_GE(Contrast(field.palette().color(QPalette::PlaceholderText), field.palette().color(QPalette::Base)), 4.5);
    EXPECT_GE(Clearest(field, field.rect().adjusted(3, 3, -3, -3)), 3.5) << "strokes of a point lose some";
    ListView list;
    list.setEmptyText(u"MMM"_s);
    list.resize(300, 200);
    list.show();
    EXPECT_GE(Clearest(list, list.rect().adjusted(3, 3, -3, -3)), 4);
}

TEST_P(ContrastTest, TheFocusCanBeSeen)
{
    const KestaColors colors = CurrentColors();
    for (const QColor& ground : {colors.window, colors.pane, colors.base, colors.button}) {
        const bool canBe = std::max(Contrast(Qt::white, ground), Contrast(Qt::black, ground)) >= 3;
        EXPECT_TRUE(Contrast(colors.ring, ground) >= 3 || colors.ring == colors.text || !canBe)
            << ground.name().toStdString();
    }
    EXPECT_GE(Contrast(colors.onAccent, colors.accent), 3);
}

TEST_P(ContrastTest, ItemsOfMenusCanBeReadAlsoUnderTheMouse)
{
    const auto window = gallery::MakeGalleryWindow();
    window->show();
    auto* button = FindControlAs<MenuButton>(window.get(), {gallery::kGallery, 107});
    QTimer::singleShot(0, [] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        ASSERT_TRUE(menu);
        for (QAction* action : menu->actions()) {
            if (action->isSeparator())
                continue;
            const QRect row = menu->actionGeometry(action).adjusted(6, 2, -6, -2);
            EXPECT_GE(Clearest(*menu, row), action->isEnabled() ? 4.5 : 1.9) << action->text().toStdString();
            menu->setActiveAction(action);
            EXPECT_GE(Clearest(*menu, row), action->isEnabled() ? 3 : 1.9) << action->text().toStdString();
        }
        menu->close();
    });
    button->openMenu();
}

INSTANTIATE_TEST_SUITE_P(Palettes, ContrastTest, testing::ValuesIn(kSchemes),
                         [](const auto& scheme) { return std::string(scheme.param.name); });

} // namespace
} // namespace kesta
