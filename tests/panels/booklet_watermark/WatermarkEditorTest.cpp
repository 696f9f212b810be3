#include "panels/booklet_watermark/watermark/WatermarkEditor.h"

#include "panels/booklet_watermark/OwnStore.h"
#include "panels/booklet_watermark/watermark/FontPanel.h"
#include "panels/booklet_watermark/watermark/WatermarkStore.h"
#include "support/TestTexts.h"
#include "support/User.h"
#include "toolkit/controls/ColorSwatch.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/SpinField.h"

#include <gtest/gtest.h>

#include <QFileInfo>
#include <QImage>
#include <QMouseEvent>
#include <QPushButton>

using namespace Qt::StringLiterals;

namespace kesta::booklet_watermark::editor {
namespace {

using test::ModalUser;
using test::Press;

class WatermarkEditorTest : public testing::Test {
protected:
    WatermarkEditorTest()
    {
        record.pageWidth = 612;
        record.pageHeight = 792;
        record.text.set(u"DRAFT"_s);
        record.isText = 1;
        record.fontName.set(u"DejaVuSans"_s);
        record.fontSize = 100;
        record.density = 50;
        record.scale = 100;
    }

    template <class Widget = QWidget> static Widget& get(QWidget& window, Control number)
    {
        auto* found = FindControlAs<Widget>(&window, {kSignature, number});
        return found ? *found : throw std::out_of_range("no such control");
    }
    static void type(QWidget& window, Control number, SInt32 value)
    {
        auto& field = get<SpinField>(window, number);
        field.selectAll();
        test::TypeInto(field, QString::number(value));
    }
    static void press(QWidget& window, Control number) { ClickControl(&get(window, number)); }
    static QString textOf(QWidget& window, Control number) { return get(window, number).property("text").toString(); }
    // A mouse in the preview, in points of it.
    static void drag(QWidget& window, QPointF from, QPointF to, Qt::KeyboardModifiers modifiers = {})
    {
        QWidget& preview = get(window, kPreview);
        const auto send = [&](QEvent::Type type, QPointF at, Qt::MouseButton button) {
            QMouseEvent event(type, at, preview.mapToGlobal(at), button, Qt::LeftButton, modifiers);
            QCoreApplication::sendEvent(&preview, &event);
        };
        send(QEvent::MouseButtonPress, from, Qt::LeftButton);
        for (int step = 1; step <= 8; ++step)
            send(QEvent::MouseMove, from + (to - from) * step / 8, Qt::NoButton);
        send(QEvent::MouseButtonRelease, to, Qt::LeftButton);
    }
    static QPointF middle(QWidget& window) { return QRectF(get(window, kPreview).rect()).center(); }
    static double scale(QWidget& window) { return get(window, kPreview).width() / 612.0; }

    ModalResult run(const AcceptsWatermark& accepts = {})
    {
        ModalResult result = ModalResult::Cancel;
        EXPECT_EQ(RunModalWatermarkEditorDialog(bundle, record, u"Title"_s, result, accepts), noErr);
        return result;
    }
    static void ok(QWidget& window) { Press(window, kCommandOK); }
    static void cancel(QWidget& window) { Press(window, kCommandCancel); }

    test::OwnStore store;
    Bundle bundle = test::BundleWithAllTexts();
    _WatermarkData record;
    test::AnsweringNotices notices;
    ModalUser user;
};

TEST_F(WatermarkEditorTest, EachFieldReachesTheRecord)
{
    user.then([](QWidget& window) {
        EXPECT_EQ(window.windowTitle(), u"Title"_s);
        EXPECT_EQ(textOf(window, kFontHint), u"Font And Size DejaVu Sans 100"_s);
        EXPECT_EQ(textOf(window, kHorizontalRange), u"Min-Max Inches -4.2 4.2"_s);
        EXPECT_FALSE(get(window, kScaleField).isVisibleTo(&window));
        test::TypeInto(get(window, kTextField), u"S"_s);
        type(window, kAngleField, 30);
        type(window, kDensityField, 70);
        get<ColorSwatch>(window, kSwatch).chooseColor(Qt::red);
        press(window, kMillimetresRadio);
        EXPECT_EQ(textOf(window, kVerticalRange), u"Min-Max Millimeters -139 139"_s);
        type(window, kHorizontalField, 51);
        type(window, kVerticalField, 25);
    });
    user.then(ok);
    EXPECT_EQ(run(), ModalResult::OK);
    EXPECT_EQ(record.text.get(), u"DRAFTS"_s);
    EXPECT_EQ(record.angle, 30);
    EXPECT_EQ(record.density, 70);
    EXPECT_EQ(record.wellColor, (WatermarkColor{1, 0, 0, 1}));
    EXPECT_EQ(record.fontColor, record.wellColor);
    EXPECT_EQ(record.units, 1);
    EXPECT_FLOAT_EQ(record.xOffset, static_cast<Float32>(51 / 25.4));
    EXPECT_FLOAT_EQ(record.yOffset, static_cast<Float32>(25 / 25.4));
    EXPECT_EQ(record.glyphs.size(), 6u) << "of the text as it was drawn last";
    EXPECT_EQ(loadWatermarkList(kWatermarkFile), std::nullopt) << "saving is not the editor's affair";
}

TEST_F(WatermarkEditorTest, CancelLeavesTheRecordAndOKWaitsUntilItIsAccepted)
{
    const _WatermarkData before = record;
    user.then([](QWidget& window) { type(window, kAngleField, 10); }).then(cancel);
    EXPECT_EQ(run(), ModalResult::Cancel);
    EXPECT_EQ(record, before);

    int asked = 0;
    user.then(ok).then(ok);
    EXPECT_EQ(run([&](const _WatermarkData&) { return ++asked == 2; }), ModalResult::OK);
    EXPECT_EQ(asked, 2);
}

TEST_F(WatermarkEditorTest, ATextHasRoomForItsBytesOnly)
{
    record.text.set(QString(509, u'x'));
    user.then([](QWidget& window) {
        QWidget& field = get(window, kTextField);
        test::TypeInto(field, u"ä"_s);
        test::TypeInto(field, u"ä"_s);
        test::TypeInto(field, u"y"_s);
        for (const QString& typed : {u"ä"_s, u"z"_s}) { // in the place of one letter
            static_cast<QLineEdit&>(field).setSelection(0, 1);
            test::TypeInto(field, typed);
        }
    });
    user.then(ok);
    run();
    EXPECT_EQ(record.text.get(), u"z"_s + QString(508, u'x') + u"ä"_s);
}

TEST_F(WatermarkEditorTest, DraggingMovesTheTextAndTheFieldsFollow)
{
    user.then([](QWidget& window) {
        const QPointF inText = middle(window);
        drag(window, inText, inText + QPointF(72, -36) * scale(window));
        EXPECT_EQ(get<SpinField>(window, kHorizontalField).number(), 10);
        EXPECT_EQ(get<SpinField>(window, kVerticalField).number(), 5);
        drag(window, {2, 2}, {100, 100});
        EXPECT_EQ(get<SpinField>(window, kHorizontalField).number(), 10) << "beside the text nothing is dragged";
        QKeyEvent left(QEvent::KeyPress, Qt::Key_Left, {});
        QCoreApplication::sendEvent(&get(window, kPreview), &left);
        EXPECT_EQ(get<SpinField>(window, kHorizontalField).number(), 9);
        press(window, kCenterButton);
        EXPECT_EQ(get<SpinField>(window, kVerticalField).number(), 0);
        drag(window, inText, inText + QPointF(2000, 0));
    });
    user.then(ok);
    run();
    EXPECT_FLOAT_EQ(record.xOffset, 4.2F) << "the page's edge is the limit";
    EXPECT_EQ(record.yOffset, 0);
}

TEST_F(WatermarkEditorTest, TheHandleTurnsTheText)
{
    user.then([](QWidget& window) {
        // The capitals are 73 points high, their frame a little higher.
        const QPointF handle = middle(window) - QPointF(0, 73 / 2.0 * scale(window) + 20);
        const QPointF toTheLeft = middle(window) + QPointF(handle.y() - middle(window).y(), 0);
        drag(window, handle, toTheLeft);
        EXPECT_NEAR(get<SpinField>(window, kAngleField).number(), 90, 3);
        press(window, kCenterButton);
    });
    user.then(ok);
    run();
    EXPECT_NEAR(record.angle, 90, 3) << "counter-clockwise";

    record.angle = 0;
    user.then([](QWidget& window) {
        const QPointF handle = middle(window) - QPointF(0, 73 / 2.0 * scale(window) + 20);
        drag(window, handle, handle + QPointF(25, 5), Qt::ShiftModifier);
    });
    user.then(ok);
    run();
    EXPECT_EQ(record.angle % 15, 0);
    EXPECT_LT(record.angle, 0);
}

TEST_F(WatermarkEditorTest, APictureTakesThePlaceOfTheTextAndABombIsRefusedInWords)
{
    QImage(40, 30, QImage::Format_RGB32).save(store.folder.filePath(u"logo.png"_s));
    QFile bomb(store.folder.filePath(u"bomb.svg"_s));
    ASSERT_TRUE(bomb.open(QIODevice::WriteOnly));
    bomb.write("<svg xmlns=\"http://www.w3.org/2000/svg\" width=\"100000\" height=\"100000\"/>");
    bomb.close();
    test::ChosenFile file;
    user.then([&](QWidget& window) {
        press(window, kPictureRadio);
        EXPECT_FALSE(GetWindowDefaultButton(window)->isEnabled()) << "no picture yet";
        for (const Control number : {kTextField, kFontButton, kSwatch, kFontHint})
            EXPECT_FALSE(get(window, number).isEnabled()) << number;
        EXPECT_TRUE(get(window, kDensityField).isEnabled());
        EXPECT_FALSE(get(window, kAngleField).isVisibleTo(&window));
        file.path = bomb.fileName();
        press(window, kChooseButton);
        EXPECT_EQ(notices.titles, QStringList{u"Picture Refused Header"_s});
        EXPECT_FALSE(GetWindowDefaultButton(window)->isEnabled());
        file.path = store.folder.filePath(u"logo.png"_s);
        press(window, kChooseButton);
        EXPECT_EQ(get<QLineEdit>(window, kFileField).text(), u"logo.png"_s);
        EXPECT_EQ(textOf(window, kNote), u"Picture Watermark Hint"_s);
        type(window, kScaleField, 50);
        press(window, kTextRadio);
        EXPECT_EQ(get<QLineEdit>(window, kTextField).text(), u"DRAFT"_s) << "is still there";
        press(window, kPictureRadio);
    });
    user.then(ok);
    EXPECT_EQ(run(), ModalResult::OK);
    EXPECT_TRUE(record.text.isEmpty());
    EXPECT_EQ(record.fileName.get(), u"logo.png"_s);
    EXPECT_EQ(QFileInfo(record.filePath.get()).size(), QFileInfo(*file.path).size());
    EXPECT_EQ(record.scale, 50);
    EXPECT_EQ(record.isText, 0);
}

TEST_F(WatermarkEditorTest, AFontIsFoundByTypingAndWithTheArrowKeys)
{
    ChosenFont font{u"DejaVuSans"_s, 72, u"DRAFT"_s};
    user.then([](QWidget& window) {
        auto& list = *FindControlAs<ListView>(&window, {fontpanel::kSignature, fontpanel::kList});
        auto& search = *FindTextField(&window, {fontpanel::kSignature, fontpanel::kSearchField});
        ASSERT_EQ(list.selectedRows().size(), 1u);
        const int all = list.rowCount();
        test::TypeInto(search, u"dejavu MONO"_s);
        EXPECT_LT(list.rowCount(), all);
        EXPECT_EQ(list.selectedRows(), std::vector<int>{0}) << "the first of those found";
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, {});
        QCoreApplication::sendEvent(&search, &down);
        EXPECT_EQ(list.selectedRows(), std::vector<int>{1});
        list.grab();
        FindControlAs<SpinField>(&window, {fontpanel::kSignature, fontpanel::kSizeField})->selectAll();
        test::TypeInto(*FindControl(&window, {fontpanel::kSignature, fontpanel::kSizeField}), u"30"_s);
    });
    user.then(ok);
    ModalResult result = ModalResult::Cancel;
    EXPECT_EQ(RunModalFontPanelDialog(bundle, font, result), noErr);
    EXPECT_EQ(result, ModalResult::OK);
    EXPECT_TRUE(font.postScriptName.startsWith(u"DejaVuSansMono-"_s)) << font.postScriptName.toStdString();
    EXPECT_EQ(font.size, 30);

    const QString before = font.postScriptName;
    user.then([](QWidget& window) {
        test::TypeInto(*FindTextField(&window, {fontpanel::kSignature, fontpanel::kSearchField}), u"no such font"_s);
    });
    user.then(cancel);
    RunModalFontPanelDialog(bundle, font, result);
    EXPECT_EQ(font.postScriptName, before);
}

} // namespace
} // namespace kesta::booklet_watermark::editor
