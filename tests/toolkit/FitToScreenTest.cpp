#include "toolkit/windows/FitToScreen.h"

#include "toolkit/Keys.h"

#include <gtest/gtest.h>

#include <QDialogButtonBox>
#include <QLineEdit>
#include <QVBoxLayout>

namespace kesta {
namespace {

class TallWindow : public QWidget {
public:
    TallWindow()
    {
        auto* layout = new QVBoxLayout(this);
        for (QLineEdit*& field : fields)
            layout->addWidget(field = new QLineEdit);
        fields[1]->hide();
        auto* row = new QHBoxLayout; // as editors have it, with a strut below
        row->addWidget(help = new QDialogButtonBox(QDialogButtonBox::Help));
        row->addWidget(buttons = new QDialogButtonBox(QDialogButtonBox::Ok));
        layout->addLayout(row);
        layout->addItem(new QSpacerItem(300, 0));
    }
    bool shows(const QWidget& control) const
    {
        return rect().contains(QRect(control.mapTo(this, QPoint()), control.size())) &&
               !control.visibleRegion().isEmpty();
    }
    std::array<QLineEdit*, 20> fields{};
    QDialogButtonBox *help = nullptr, *buttons = nullptr;
};

TEST(FitToScreen, EverythingCanBeReachedOnALowScreen)
{
    TallWindow window;
    FitToScreen(window, {800, 400});
    EXPECT_LE(window.height(), 400);
    window.show();
    EXPECT_TRUE(window.shows(*window.help));
    EXPECT_TRUE(window.shows(*window.buttons));
    EXPECT_TRUE(window.shows(*window.fields.front()));
    EXPECT_FALSE(window.fields[1]->isVisible()) << "hidden before";
    EXPECT_FALSE(window.shows(*window.fields.back()));
    window.activateWindow();
    window.fields.front()->setFocus();
    for (int i = 0; i < 18; ++i)
        test::PressKeyInWindow(window, Qt::Key_Tab);
    EXPECT_EQ(window.focusWidget(), window.fields.back()) << "in the order of before";
    EXPECT_TRUE(window.shows(*window.fields.back()));
}

TEST(FitToScreen, AWindowThatFitsHasTheSizeThatItAsksFor)
{
    TallWindow window;
    FitToScreen(window, {800, 1200});
    EXPECT_EQ(window.size(), window.sizeHint()) << "even above two thirds of the screen";
    window.resize(300, 500);
    FitToScreen(window, {800, 400});
    EXPECT_EQ(window.size(), QSize(300, 500)) << "what has a size keeps it";
}

} // namespace
} // namespace kesta
