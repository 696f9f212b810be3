#include "toolkit/style/Pictures.h"

#include "support/TestTexts.h"
#include "toolkit/controls/ControlEvent.h"
#include "toolkit/controls/PictureView.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPainter>
#include <QPalette>
#include <QTemporaryDir>

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

} // namespace
} // namespace kesta
