#include "panels/booklet_watermark/watermark/FontPanel.h"

#include "panels/booklet_watermark/watermark/DrawingLibrary.h"
#include "panels/booklet_watermark/watermark/FontListRules.h"
#include "panels/booklet_watermark/watermark/WatermarkEditorRules.h"
#include "pde/forms/DialogCommands.h"
#include "platform/plugins/Bundle.h"
#include "platform/plugins/Sentence.h"
#include "toolkit/controls/ListView.h"
#include "toolkit/controls/SpinField.h"
#include "toolkit/style/KestaColors.h"
#include "toolkit/windows/InterfaceFile.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyledItemDelegate>

#include <algorithm>
#include <map>

namespace kesta::booklet_watermark::fontpanel {
namespace {

constexpr int kRowHeight = 28;      // points
constexpr double kNameSize = 15;    // of a name in its own font
constexpr double kSampleRoom = 0.8; // of the sample's width and height

struct FontPanel {
    const Bundle& bundle;
    QWidget& window;
    ChosenFont& font;
    std::vector<FontFile> fonts = {};
    std::vector<std::size_t> shown = {}; // of them, those that the list has

    ListView* list() const { return FindControlAs<ListView>(&window, {kSignature, kList}); }
    QWidget* control(Control number) const { return FindControl(&window, {kSignature, number}); }
};

// An outline with its origin on the line's left end, in the middle of the height.
void DrawOutlined(QPainter& painter, const QRectF& room, const QPainterPath& path, double scale, const QColor& color)
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setClipRect(room);
    painter.translate(room.left(), room.center().y());
    painter.scale(scale, scale);
    painter.translate(0, -path.boundingRect().center().y());
    painter.fillPath(path, color);
    painter.restore();
}

// A font's name in the font itself, made when the row is first seen; one that lacks the letters is named in the
// dialog's own.
class FontNames : public QStyledItemDelegate {
public:
    FontNames(const FontPanel& panel, QObject* parent) : QStyledItemDelegate(parent), panel_(panel) {}

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const auto row = static_cast<std::size_t>(index.row());
        if (row >= panel_.shown.size())
            return;
        const FontFile& font = panel_.fonts[panel_.shown[row]];
        const QPainterPath& name = outlineOf(font);
        QStyleOptionViewItem plain = option;
        initStyleOption(&plain, index);
        if (!name.isEmpty())
            plain.text.clear();
        const QWidget* view = option.widget;
        view->style()->drawControl(QStyle::CE_ItemViewItem, &plain, painter, view);
        const bool isSelected = option.state & QStyle::State_Selected;
        const QRectF room = QRectF(option.rect).adjusted(8, 0, -8, 0);
        const bool isMirrored = option.direction == Qt::RightToLeft;
        const double right = std::max(0.0, room.width() - name.boundingRect().right());
        DrawOutlined(*painter, isMirrored ? room.translated(right, 0) : room, name, 1,
                     option.palette.color(isSelected ? QPalette::HighlightedText : QPalette::Text));
    }
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(),
                std::max(kRowHeight, option.fontMetrics.height() + 8)};
    }

private:
    const QPainterPath& outlineOf(const FontFile& font) const
    {
        const auto [known, isNew] = outlines_.try_emplace(font.postScriptName);
        if (isNew)
            known->second =
                GetDrawingLibrary().TextOutline(font.postScriptName, font.displayName, kNameSize, Substitutes::None);
        return known->second;
    }

    const FontPanel& panel_;
    mutable std::map<QString, QPainterPath> outlines_;
};

void ShowChosen(const FontPanel& panel)
{
    if (QPushButton* ok = GetWindowDefaultButton(panel.window))
        ok->setEnabled(!panel.font.postScriptName.isEmpty());
    if (QWidget* sample = panel.control(kSample))
        sample->update();
}

void SelectRow(const FontPanel& panel, int row)
{
    ListView* list = panel.list();
    if (!list || row < 0 || row >= static_cast<int>(panel.shown.size()))
        return;
    list->setSelectedRows({row});
    list->scrollTo(list->model()->index(row, 0));
}

int RowOfChosen(const FontPanel& panel)
{
    for (std::size_t row = 0; row < panel.shown.size(); ++row) {
        if (panel.fonts[panel.shown[row]].postScriptName == panel.font.postScriptName)
            return static_cast<int>(row);
    }
    return -1;
}

void FillList(FontPanel& panel, const QString& typed)
{
    panel.shown = FontsWith(panel.fonts, typed);
    const auto count = static_cast<int>(panel.shown.size());
    if (ListView* list = panel.list())
        list->setRows(count, [&panel](int row) {
            const FontFile& font = panel.fonts[panel.shown[static_cast<std::size_t>(row)]];
            return ListRow{.cells = {font.displayName}, .reference = row};
        });
    SetControlText(panel.control(kCount), LocalizedCount(panel.bundle, "Font Count", count));
    SelectRow(panel, RowOfChosen(panel));
}

void TakeRow(FontPanel& panel)
{
    const ListView* list = panel.list();
    const std::vector<int> rows = list ? list->selectedRows() : std::vector<int>();
    if (!rows.empty())
        panel.font.postScriptName = panel.fonts[panel.shown[static_cast<std::size_t>(rows.front())]].postScriptName;
    ShowChosen(panel);
}

EventResult HandleHit(FontPanel& panel, const HitEvent& hit)
{
    if (hit.control.number == kList)
        TakeRow(panel);
    if (hit.control.number == kSizeField)
        panel.font.size = hit.value;
    return EventResult::NotHandled;
}

EventResult HandleTyping(FontPanel& panel, const TextEditedEvent& edited)
{
    if (edited.control.number != kSearchField)
        return EventResult::NotHandled;
    FillList(panel, edited.text);
    if (RowOfChosen(panel) < 0)
        SelectRow(panel, 0); // what OK takes is always in sight
    TakeRow(panel);
    return EventResult::NotHandled;
}

// Up and Down in the field move in the list.
EventResult HandleKey(FontPanel& panel, const KeyEvent& key)
{
    const bool moves = key.key == Qt::Key_Up || key.key == Qt::Key_Down;
    ListView* list = panel.list();
    if (key.control.number != kSearchField || !moves || !list || panel.shown.empty())
        return EventResult::NotHandled;
    const std::vector<int> rows = list->selectedRows();
    const int last = static_cast<int>(panel.shown.size()) - 1;
    const int step = key.key == Qt::Key_Up ? -1 : 1;
    SelectRow(panel, rows.empty() ? 0 : std::clamp(rows.front() + step, 0, last));
    TakeRow(panel);
    return EventResult::Handled;
}

EventResult DrawSample(const FontPanel& panel, const DrawEvent& draw)
{
    if (draw.control.number != kSample)
        return EventResult::NotHandled;
    const KestaColors colors = CurrentColors();
    QPainter& painter = *draw.painter;
    const QRectF room = QRectF(draw.bounds).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(colors.hairline);
    painter.setBrush(colors.base);
    painter.drawRoundedRect(room, 5, 5);
    const QString text = panel.font.sample.isEmpty() ? QStringLiteral("Aa") : panel.font.sample;
    const QPainterPath path =
        GetDrawingLibrary().TextOutline(panel.font.postScriptName, text, room.height() / 2, Substitutes::Allowed);
    const QRectF ink = path.boundingRect();
    if (ink.isEmpty())
        return EventResult::Handled;
    const double scale =
        std::min({1.0, room.width() * kSampleRoom / ink.width(), room.height() * kSampleRoom / ink.height()});
    DrawOutlined(painter, room.translated((room.width() - ink.width() * scale) / 2 - ink.left() * scale, 0), path,
                 scale, colors.onBase);
    return EventResult::Handled;
}

void Begin(FontPanel& panel)
{
    panel.fonts = GetDrawingLibrary().InstalledFonts();
    SortFonts(panel.fonts);
    if (ListView* list = panel.list()) {
        list->setColumns({{.title = LocalizedString(panel.bundle, "Font:"), .stretches = true}});
        list->setItemDelegate(new FontNames(panel, list));
        list->header()->hide();
        list->setMinimumHeight(7 * kRowHeight);
    }
    if (auto* size = FindControlAs<SpinField>(&panel.window, {kSignature, kSizeField})) {
        size->setLimits(1, kGreatestFontSize);
        size->setNumber(panel.font.size);
    }
    FillList(panel, {});
    ShowChosen(panel);
}

} // namespace
} // namespace kesta::booklet_watermark::fontpanel

namespace kesta::booklet_watermark {

OSStatus RunModalFontPanelDialog(const Bundle& bundle, ChosenFont& font, ModalResult& result)
{
    const std::unique_ptr<QWidget> window = CreateWindowFromNib(bundle, "FontPanel", "FontPanel");
    if (!window)
        return kInterfaceFileUnreadable;
    ChosenFont chosen = font;
    fontpanel::FontPanel panel{bundle, *window, chosen};
    fontpanel::Begin(panel);
    const EventHandler events = InstallEventHandler(
        *window, [&](const HitEvent& hit) { return fontpanel::HandleHit(panel, hit); },
        [&](const TextEditedEvent& edited) { return fontpanel::HandleTyping(panel, edited); },
        [&](const KeyEvent& key) { return fontpanel::HandleKey(panel, key); },
        [&](const ItemChosenEvent&) {
            ClickControl(GetWindowDefaultButton(*window));
            return EventResult::Handled;
        },
        [&](const DrawEvent& draw) { return fontpanel::DrawSample(panel, draw); });
    result = RunModalDialog(bundle, *window, {});
    if (result == ModalResult::OK)
        font = std::move(chosen);
    return noErr;
}

} // namespace kesta::booklet_watermark
