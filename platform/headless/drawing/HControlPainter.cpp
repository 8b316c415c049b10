#include "platform/headless/drawing/HControlPainter.h"

#include <algorithm>
#include <iterator>
#include <unordered_map>

#include "platform/headless/drawing/HFramePainter.h"
#include "platform/headless/toolkit/HToolkit.h"

namespace rux {

namespace {

using TPainterMap = std::unordered_map<std::string_view, HPaintProc>;

const TPainterMap& Painters() {
    static const TPainterMap map = [] {
        TPainterMap made;
        for (const auto& rows : {ButtonPainters(), TextPainters(), ListPainters(), TreePainters(),
                                 ViewPainters(), PanelPainters()})
            for (const HPainter& row : rows) made.emplace(row.ClassName, row.Paint);
        return made;
    }();
    return map;
}

/// The painter of the nearest ancestor that has one.
void PaintByClass(HControl& control, HCanvas& canvas, const TRect& room) {
    for (const TClass* step = &control.ClassType(); step; step = step->Parent()) {
        const auto found = Painters().find(step->Name());
        if (found == Painters().end()) continue;
        found->second(control, canvas, room);
        return;
    }
}

/// The system's colours by their index, as the toolkit numbers them.
TColor SystemColor(std::size_t index) {
    static constexpr TColor colors[] = {
        clBtnFace,      clBackground, clActiveCaption, clInactiveCaption, clBtnFace,
        clWindow,       clWindowText, clWindowText,    clWindowText,      clHighlightText,
        clBtnFace,      clBtnFace,    clBtnShadow,     clHighlight,       clHighlightText,
        clBtnFace,      clBtnShadow,  clGrayText,      clWindowText,      clBtnFace,
        clBtnHighlight, clDarkEdge,   clLightEdge,     clWindowText,      {255, 255, 225},
    };
    return index < std::size(colors) ? colors[index] : clBtnFace;
}

/// A colour as the toolkit keeps it: blue above green above red, or the index of a system's colour.
bool ReadColor(const HObject& object, TColor& color) {
    static const TName name = InternName("Color");
    const TPropValue* value = object.Stored(name);
    if (!value || value->Kind != TTypeKind::Integer) return false;
    const auto bits = static_cast<std::uint32_t>(value->Ordinal);
    const std::uint32_t kind = bits >> 24;
    if (kind == 0xFF || kind == 0x80) {
        color = SystemColor(bits & 0xFF);
        return true;
    }
    // clNone and clDefault are no colours.
    if (kind != 0 && kind != 2) return false;
    const auto part = [&](unsigned shift) { return static_cast<std::uint8_t>(bits >> shift); };
    color = {part(0), part(8), part(16)};
    return true;
}

}  // namespace

void PaintControl(HWinControl& control, HCanvas& canvas, const HWindow& window) {
    PaintByClass(control, canvas, window.ClientRect());
    for (HControl* graphic : control.GraphicControls()) {
        const TRect place = graphic->BoundsRect();
        if (!graphic->IsVisible() || !canvas.Shows(place)) continue;
        HCanvas part = canvas.Part(place);
        PaintByClass(*graphic, part, {0, 0, place.Width(), place.Height()});
    }
}

int LookInt(const HObject& object, std::string_view property, int fallback) {
    constexpr std::int64_t limit = 1 << 20;
    return static_cast<int>(std::clamp(object.KeptOrdinal(InternName(property), fallback), -limit, limit));
}

std::string LookName(const HObject& object, std::string_view property) {
    const TPropValue* value = object.Kept(InternName(property));
    return value ? value->Text : std::string();
}

HObject* LookPart(const HObject& object, std::string_view property) {
    const TPropValue* value = object.Stored(InternName(property));
    if (!value || value->Kind != TTypeKind::Class) return nullptr;
    return object.Kit().Find(static_cast<std::uint64_t>(value->Ordinal));
}

HTextAlign LookAlignment(const HObject& object, std::string_view property, HTextAlign fallback) {
    const std::string name = LookName(object, property);
    if (name == "taLeftJustify") return HTextAlign::Left;
    if (name == "taRightJustify") return HTextAlign::Right;
    return name == "taCenter" ? HTextAlign::Center : fallback;
}

TColor LookColor(const HObject& object, TColor fallback) {
    TColor color = fallback;
    ReadColor(object, color);
    return color;
}

TColor LookGround(const HControl& control) {
    // Deeper than controls are nested on purpose.
    constexpr int limit = 16;
    const HControl* step = &control;
    TColor color = clBtnFace;
    for (int i = 0; i < limit && step && !ReadColor(*step, color); ++i) step = step->ParentControl();
    return color;
}

TColor LookInk(const HControl& control) {
    if (!control.IsEnabled()) return clGrayText;
    TColor color = clWindowText;
    if (const HObject* font = LookPart(control, "Font")) ReadColor(*font, color);
    return color;
}

std::string LookCaption(const HControl& control) {
    return WithoutAccelerator(control.TextRef());
}

void PaintImage(HCanvas& canvas, const TRect& place) {
    // A hill below a sky: the picture itself is not kept.
    canvas.Fill(place, {200, 220, 240});
    const int width = place.Width(), height = place.Height();
    for (int y = height / 2; y < height; ++y)
        canvas.Fill({place.Left + std::max(0, width / 2 - (y - height / 2) * width / std::max(height, 1)),
                     place.Top + y,
                     place.Left + std::min(width, width / 2 + (y - height / 2) * width / std::max(height, 1)),
                     place.Top + y + 1},
                    {96, 144, 96});
    canvas.Frame(place, clBtnShadow);
}

}  // namespace rux
