#include "panels/booklet_watermark/fonts/GlyphOutline.h"

#include <hb.h>

namespace kesta::booklet_watermark {
namespace {

struct Drawing {
    OutlineSink& sink;
    OutlinePoint origin;

    OutlinePoint at(float x, float y) const { return {origin.x + double{x}, origin.y + double{y}}; }
};

void MoveTo(hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*)
{
    const Drawing& drawing = *static_cast<Drawing*>(data);
    drawing.sink.moveTo(drawing.at(x, y));
}

void LineTo(hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x, float y, void*)
{
    const Drawing& drawing = *static_cast<Drawing*>(data);
    drawing.sink.lineTo(drawing.at(x, y));
}

// A quadratic curve comes as a cubic one.
void CurveTo(hb_draw_funcs_t*, void* data, hb_draw_state_t*, float x1, float y1, float x2, float y2, float x, float y,
             void*)
{
    const Drawing& drawing = *static_cast<Drawing*>(data);
    drawing.sink.curveTo(drawing.at(x1, y1), drawing.at(x2, y2), drawing.at(x, y));
}

void ClosePath(hb_draw_funcs_t*, void* data, hb_draw_state_t*, void*)
{
    static_cast<Drawing*>(data)->sink.close();
}

hb_draw_funcs_t* DrawFunctions()
{
    static hb_draw_funcs_t* const functions = [] {
        hb_draw_funcs_t* made = hb_draw_funcs_create();
        hb_draw_funcs_set_move_to_func(made, MoveTo, nullptr, nullptr);
        hb_draw_funcs_set_line_to_func(made, LineTo, nullptr, nullptr);
        hb_draw_funcs_set_cubic_to_func(made, CurveTo, nullptr, nullptr);
        hb_draw_funcs_set_close_path_func(made, ClosePath, nullptr, nullptr);
        hb_draw_funcs_make_immutable(made);
        return made;
    }();
    return functions;
}

} // namespace

void DrawOutline(const Typeface& typeface, const PlacedGlyph& glyph, OutlineSink& sink)
{
    Drawing drawing{sink, {static_cast<double>(glyph.x), static_cast<double>(glyph.y)}};
    hb_font_get_glyph_shape(typeface.font(), glyph.glyph, DrawFunctions(), &drawing);
}

} // namespace kesta::booklet_watermark
