#include "toolkit/windows/AlertWindow.h"

#include "platform/system/Notices.h"
#include "toolkit/controls/AccessibleControls.h"
#include "toolkit/controls/Controls.h"
#include "toolkit/controls/TextInput.h"
#include "toolkit/style/KestaColors.h"
#include "toolkit/style/KestaStyleDrawing.h"
#include "toolkit/windows/ModalLoop.h"

#include <QDialogButtonBox>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

namespace kesta {
namespace {

constexpr int kLeastTextWidth = 340; // points, as are all here; makes the window 420 wide
constexpr int kMostTextWidth = 460;
constexpr QSize kMarkSize{32, 32};

class CautionMark : public QWidget {
public:
    CautionMark() { setFixedSize(kMarkSize); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        DrawCautionMark(painter, rect(), CurrentColors().caution);
    }
};

QLabel* MakeText(const QString& text, const char* look)
{
    auto* label = new QLabel(text);
    label->setTextFormat(Qt::PlainText); // texts hold names from printers and files
    label->setWordWrap(true);
    label->setMaximumWidth(kMostTextWidth);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    label->setProperty("look", QString::fromLatin1(look));
    return label;
}

} // namespace

AlertWindow::AlertWindow(const Alert& alert) : pressed_(CancelButtonOf(alert))
{
    InstallAccessibleControls();
    setObjectName(QStringLiteral("Alert"));
    setWindowFlag(Qt::Dialog);
    setProperty(kAlertProperty, true);
    setWindowTitle(alert.title);
    setAccessibleName(alert.title);
    setAccessibleDescription(alert.message);
    auto* layout = new QGridLayout(this);
    layout->setHorizontalSpacing(16);
    layout->setVerticalSpacing(16);
    layout->setColumnStretch(1, 1);
    layout->setColumnMinimumWidth(1, kLeastTextWidth);
    layout->addWidget(new CautionMark, 0, 0, Qt::AlignTop);
    layout->addWidget(makeTexts(alert), 0, 1);
    layout->addWidget(makeButtons(alert), 1, 0, 1, 2);
}

QWidget* AlertWindow::makeTexts(const Alert& alert)
{
    auto* texts = new QWidget;
    auto* layout = new QVBoxLayout(texts);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(MakeText(alert.title, "title"));
    if (!alert.message.isEmpty())
        layout->addWidget(MakeText(alert.message, ""));
    layout->addStretch();
    return texts;
}

QWidget* AlertWindow::makeButtons(const Alert& alert)
{
    auto* box = new QDialogButtonBox;
    for (int position = 0; position < alert.buttons.size(); ++position) {
        const bool cancels = position == pressed_;
        const auto role = position == 0 ? QDialogButtonBox::AcceptRole
                          : cancels     ? QDialogButtonBox::RejectRole
                                        : QDialogButtonBox::DestructiveRole;
        QPushButton* button = box->addButton(alert.buttons[position], role);
        button->setDefault(position == 0);
        if (cancels)
            SetControlCommand(*button, kCommandCancel);
        else if (position == 0)
            SetControlCommand(*button, kCommandOK);
        connect(button, &QPushButton::clicked, this, [this, position] {
            pressed_ = position;
            EndModalLoop(*this, ModalResult::OK);
        });
    }
    return box;
}

int AlertWindow::run()
{
    if (QPushButton* button = GetWindowDefaultButton(*this))
        button->setFocus();
    RunModalLoop(*this);
    RememberProblem(windowTitle());
    return pressed_;
}

} // namespace kesta
