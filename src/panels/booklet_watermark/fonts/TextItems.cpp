#include "panels/booklet_watermark/fonts/TextItems.h"

#include <pango/pangocairo.h>

#include <memory>

namespace kesta::booklet_watermark {
namespace {

struct ItemsDeleter {
    void operator()(GList* items) const
    {
        g_list_free_full(items, [](gpointer item) { pango_item_free(static_cast<PangoItem*>(item)); });
    }
};

// Which font it would take does not matter here: scripts and directions do.
PangoContext* Context()
{
    static PangoContext* context = [] {
        PangoFontMap* map = pango_cairo_font_map_new();
        PangoContext* made = pango_font_map_create_context(map);
        g_object_unref(map);
        return made;
    }();
    return context;
}

PangoAttrList* WithoutFallback()
{
    PangoAttrList* attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes, pango_attr_fallback_new(FALSE)); // it would split the text by font
    return attributes;
}

TextItem Describe(const PangoItem& item, const char* text)
{
    const auto script = static_cast<GUnicodeScript>(item.analysis.script);
    TextItem described;
    described.start = static_cast<unsigned>(g_utf8_pointer_to_offset(text, text + item.offset));
    described.length = static_cast<unsigned>(item.num_chars);
    described.isRightToLeft = item.analysis.level % 2 != 0;
    described.script = g_unicode_script_to_iso15924(script);
    described.language = pango_language_to_string(item.analysis.language);
    return described;
}

} // namespace

std::vector<TextItem> ItemsInVisualOrder(const QString& text)
{
    static PangoAttrList* const attributes = WithoutFallback();
    const QByteArray utf8 = text.toUtf8();
    const auto size = static_cast<int>(utf8.size());
    if (size == 0)
        return {};
    const PangoDirection direction = text.isRightToLeft() ? PANGO_DIRECTION_RTL : PANGO_DIRECTION_LTR;
    const std::unique_ptr<GList, ItemsDeleter> logical(
        pango_itemize_with_base_dir(Context(), direction, utf8.constData(), 0, size, attributes, nullptr));
    GList* const visual = pango_reorder_items(logical.get());
    std::vector<TextItem> items;
    for (const GList* item = visual; item; item = item->next)
        items.push_back(Describe(*static_cast<const PangoItem*>(item->data), utf8.constData()));
    g_list_free(visual);
    return items;
}

} // namespace kesta::booklet_watermark
