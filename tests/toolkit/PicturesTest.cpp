#include "toolkit/style/Pictures.h"

#include "support/TestTexts.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/PictureView.h"
#include "toolkit/style/KestaColors.h"
#include "toolkit/style/KestaStyle.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QStyle>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace kesta {
namespace {

class PicturesTest : public testing::Test {
protected:
    QTemporaryDir folder;
    PicturesTest() { ForgetPictures(); }

    QString save(const QString& name, const QColor& color, int side)
    {
        QImage image(side, side, QImage::Format_ARGB32);
        image.fill(color);
        EXPECT_TRUE(image.save(folder.filePath(name)));
        return folder.filePath(name);
    }
    void saveSvg(const QString& name)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(R"(<svg xmlns="http://www.w3.org/2000/svg" width="16" height="16"><rect width="16" height="16" )"
                   R"(fill="#010203"/></svg>)");
    }
    static QColor middle(const QPixmap& picture)
    {
        return picture.toImage().pixelColor(picture.width() / 2, picture.height() / 2);
    }
};

TEST_F(PicturesTest, AreTakenFromTheBestFileForTheScreen)
{
    const QString file = save(u"a.png"_s, Qt::red, 16);
    EXPECT_EQ(middle(PictureNamed(file, 2)), QColor(Qt::red));
    EXPECT_EQ(PictureNamed(file, 2).deviceIndependentSize(), QSizeF(16, 16));
    save(u"a@2x.png"_s, Qt::green, 32);
    EXPECT_EQ(middle(PictureNamed(file, 2)), QColor(Qt::red)) << "kept until pictures are forgotten";
    ForgetPictures();
    EXPECT_EQ(middle(PictureNamed(file, 2)), QColor(Qt::green));
    EXPECT_EQ(middle(PictureNamed(file, 1)), QColor(Qt::red));
    EXPECT_EQ(PictureNamed(file, 2).deviceIndependentSize(), QSizeF(16, 16));

    saveSvg(u"a.svg"_s);
    ForgetPictures();
    EXPECT_EQ(middle(PictureNamed(file, 1)), QColor(1, 2, 3));
    EXPECT_EQ(PictureNamed(file, 2).width(), 32);
    EXPECT_TRUE(PictureNamed(folder.filePath(u"missing.gif"_s), 1).isNull());
    EXPECT_TRUE(PictureNamed(QString(), 1).isNull());
}

TEST_F(PicturesTest, TheInkOfButtonIconsIsThePalettesTextColour)
{
    saveSvg(u"icon.svg"_s);
    save(u"flat.png"_s, QColor(1, 2, 3), 16);
    save(u"colored.png"_s, Qt::red, 16);
    EXPECT_EQ(middle(PictureNamed(folder.filePath(u"icon.png"_s), 1, Qt::blue)), QColor(Qt::blue));
    EXPECT_EQ(middle(PictureNamed(folder.filePath(u"flat.png"_s), 1, Qt::blue)), QColor(Qt::blue));
    EXPECT_EQ(middle(PictureNamed(folder.filePath(u"colored.png"_s), 1, Qt::blue)), QColor(Qt::red));

    const QIcon icon = ButtonIcon(folder.filePath(u"icon.png"_s));
    const QColor ink = QApplication::palette().color(QPalette::ButtonText);
    EXPECT_EQ(middle(icon.pixmap({16, 16}, 1.0)), ink);
    EXPECT_EQ(icon.pixmap({16, 16}, 2.0).size(), QSize(32, 32));
    EXPECT_NEAR(middle(icon.pixmap({16, 16}, 1.0, QIcon::Disabled)).alpha(), 102, 1) << "40 %";
}

TEST_F(PicturesTest, ViewsDrawPicturesOverEachOtherOrLeaveItToAHandler)
{
    save(u"base.png"_s, Qt::red, 48);
    save(u"mark.png"_s, Qt::blue, 16);
    PictureView view;
    view.setFolder(folder.path());
    const auto color = [&view] {
        QImage image(view.size(), QImage::Format_ARGB32);
        image.fill(Qt::white);
        view.render(&image, {}, {}, {});
        return image.pixelColor(24, 24);
    };
    view.resize(view.sizeHint());
    EXPECT_EQ(color(), QColor(Qt::white)) << "no picture draws nothing";
    view.setPicture(u"nothing.png"_s);
    EXPECT_EQ(color(), QColor(Qt::white));
    view.setPictures({u"base.png"_s, QString(), u"mark.png"_s});
    EXPECT_EQ(view.picture(), u"base.png"_s);
    EXPECT_EQ(color(), QColor(Qt::blue));
    view.setEnabled(false);
    EXPECT_NEAR(color().red(), 153, 1) << "40 % of red, then of blue, over white";
    view.setEnabled(true);
    const EventHandler handler = InstallEventHandler(view, [](const DrawEvent& draw) {
        draw.painter->fillRect(draw.bounds, Qt::green);
        return EventResult::Handled;
    });
    EXPECT_EQ(color(), QColor(Qt::green));
}

// Of the two colours' relative luminances; readable text needs 4.5.
double Contrast(const QColor& a, const QColor& b)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double c) { return c <= 0.03928 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4); };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
    };
    const auto [dark, light] = std::minmax({luminance(a), luminance(b)});
    return (light + 0.05) / (dark + 0.05);
}

bool IsNearly(const QColor& color, QRgb drawn) // a mix may round the other way
{
    return std::abs(color.red() - qRed(drawn)) <= 1 && std::abs(color.green() - qGreen(drawn)) <= 1 &&
           std::abs(color.blue() - qBlue(drawn)) <= 1;
}

TEST(KestaColors, MixesAreReadableOnBothOfOurPalettes)
{
    for (const bool dark : {false, true}) {
        QPalette palette;
        palette.setColor(QPalette::Window, dark ? 0x1F2226 : 0xEFF1F4);
        palette.setColor(QPalette::WindowText, dark ? 0xE9EBEE : 0x1F242B);
        palette.setColor(QPalette::Base, dark ? 0x191C1F : 0xFFFFFF);
        const KestaColors colors = ColorsOf(palette);
        EXPECT_EQ(colors.dark, dark);
        EXPECT_TRUE(IsNearly(colors.pane, dark ? 0x272A2E : 0xFCFCFD));
        EXPECT_TRUE(IsNearly(colors.text2, dark ? 0xACAFB2 : 0x5D6267));
        EXPECT_TRUE(IsNearly(colors.field, dark ? 0x84868A : 0x878A90));
        EXPECT_TRUE(IsNearly(colors.hairline, dark ? 0x35383C : 0xD8DADE));
        EXPECT_GE(Contrast(colors.text2, colors.pane), 5.4);
        EXPECT_GE(Contrast(colors.text2, colors.window), 5.4);
        EXPECT_GE(Contrast(colors.field, colors.base), 3);
        EXPECT_GE(Contrast(colors.error, colors.window), 4.5);
    }
}

} // namespace
} // namespace kesta
