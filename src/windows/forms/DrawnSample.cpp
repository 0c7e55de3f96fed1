#include "windows/forms/DrawnSample.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>
#include <vector>

#include "windows/com/Unicode.h"

namespace kestrune::windows {
namespace {

using forms::Dash;
using forms::Edge;
using forms::Looks;

constexpr COLORREF paper = RGB(255, 255, 255);
constexpr COLORREF grid = RGB(212, 212, 212);
constexpr double around = 7.5;  // points of the neighbours that are seen
constexpr double padding = 2;   // points between a cell's edge and its text

// A brush, pen or font that is in use for as long as it lives.
class Tool {
  public:
    Tool(HDC context, HGDIOBJ tool) : context_(context), tool_(tool), before_(SelectObject(context, tool)) {}
    ~Tool() {
        SelectObject(context_, before_);
        DeleteObject(tool_);
    }
    Tool(const Tool&) = delete;
    Tool& operator=(const Tool&) = delete;

  private:
    HDC context_;
    HGDIOBJ tool_;
    HGDIOBJ before_;
};

void fill(HDC context, const RECT& box, COLORREF color) {
    HBRUSH brush = CreateSolidBrush(color);
    FillRect(context, &box, brush);
    DeleteObject(brush);
}

void line(HDC context, POINT from, POINT to) {
    MoveToEx(context, from.x, from.y, nullptr);
    LineTo(context, to.x, to.y);
}

// Lengths of marks and gaps, in widths of the line.
std::vector<DWORD> dash_lengths(Dash dash, DWORD width) {
    std::vector<DWORD> lengths;
    switch (dash) {
        case Dash::Dots:
            lengths = {1, 2};
            break;
        case Dash::Dashes:
            lengths = {4, 2};
            break;
        case Dash::DashDot:
            lengths = {5, 2, 1, 2};
            break;
        case Dash::DashDotDot:
            lengths = {5, 2, 1, 2, 1, 2};
            break;
        default:
            break;
    }
    for (DWORD& length : lengths) length *= width;
    return lengths;
}

void draw_edge(HDC context, const Edge& edge, const Scale& scale, POINT from, POINT to) {
    if (edge.dash == Dash::None) return;
    const auto width = static_cast<DWORD>(std::max(1, edge.dash == Dash::Double ? 1 : scale.pixels(edge.width)));
    const std::vector<DWORD> lengths = dash_lengths(edge.dash, width);
    const LOGBRUSH brush{BS_SOLID, static_cast<COLORREF>(edge.color), 0};
    const DWORD style = PS_GEOMETRIC | PS_ENDCAP_FLAT | (lengths.empty() ? PS_SOLID : PS_USERSTYLE);
    const Tool pen(context, ExtCreatePen(style, width, &brush, static_cast<DWORD>(lengths.size()),
                                         lengths.empty() ? nullptr : lengths.data()));
    if (edge.dash != Dash::Double) return line(context, from, to);
    const bool upright = from.x == to.x;
    for (const int apart : {-1, 1}) {
        line(context, {from.x + (upright ? apart : 0), from.y + (upright ? 0 : apart)},
             {to.x + (upright ? apart : 0), to.y + (upright ? 0 : apart)});
    }
}

void draw_edges(HDC context, const Looks& looks, const Scale& scale, const RECT& cell) {
    const POINT top_left{cell.left, cell.top};
    const POINT top_right{cell.right, cell.top};
    const POINT bottom_left{cell.left, cell.bottom};
    const POINT bottom_right{cell.right, cell.bottom};
    draw_edge(context, looks.edges[0], scale, top_left, bottom_left);
    draw_edge(context, looks.edges[1], scale, top_left, top_right);
    draw_edge(context, looks.edges[2], scale, top_right, bottom_right);
    draw_edge(context, looks.edges[3], scale, bottom_left, bottom_right);
}

HFONT font_of(const Looks& looks, const Scale& scale, double size) {
    LOGFONTW font{};
    font.lfHeight = -std::max(1, scale.pixels(size));
    font.lfEscapement = font.lfOrientation = looks.turn * 10;  // tenths of degrees
    font.lfWeight = looks.bold ? FW_BOLD : FW_NORMAL;
    font.lfItalic = looks.italic;
    font.lfStrikeOut = looks.struck;
    font.lfUnderline = looks.underlining != forms::Underlining::None && !looks.underlines_box;
    font.lfCharSet = DEFAULT_CHARSET;
    font.lfOutPrecision = OUT_TT_PRECIS;  // others do not turn
    font.lfQuality = CLEARTYPE_QUALITY;
    const std::wstring name = to_utf16(looks.font);
    std::copy_n(name.begin(), std::min<std::size_t>(name.size(), LF_FACESIZE - 1), font.lfFaceName);
    return CreateFontIndirectW(&font);
}

// The text as it is written: broken into letters when it is stacked, repeated when it fills.
std::wstring written(HDC context, const Looks& looks, int room) {
    const std::wstring text = to_utf16(looks.text);
    if (looks.stacked) {
        std::wstring letters;
        for (const wchar_t letter : text) letters += (letters.empty() ? L"" : L"\n") + std::wstring(1, letter);
        return letters;
    }
    SIZE size{};
    GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
    if (!looks.repeats || size.cx <= 0) return text;
    std::wstring all;
    for (int left = room; left >= size.cx && all.size() < 500; left -= static_cast<int>(size.cx)) all += text;
    return all.empty() ? text : all;
}

SIZE size_of(HDC context, const Looks& looks, const std::wstring& text, int room) {
    RECT size{0, 0, room, 0};
    const bool lines = looks.wraps || looks.stacked;
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &size,
              DT_CALCRECT | DT_NOPREFIX | (lines ? DT_WORDBREAK : DT_SINGLELINE));
    return {size.right, size.bottom};
}

int put(forms::Side side, int start, int end, int size) {
    switch (side) {
        case forms::Side::Middle:
        case forms::Side::Spread:
            return start + (end - start - size) / 2;
        case forms::Side::End:
            return end - size;
        default:
            return start;
    }
}

void draw_turned(HDC context, const Looks& looks, const RECT& room, const std::wstring& text) {
    SIZE size{};
    GetTextExtentPoint32W(context, text.c_str(), static_cast<int>(text.size()), &size);
    const double angle = looks.turn * std::numbers::pi / 180;
    const double along_x = size.cx * std::cos(angle);
    const double along_y = -size.cx * std::sin(angle);
    const double below_x = size.cy * std::sin(angle);
    const double below_y = size.cy * std::cos(angle);
    const double left = std::min({0.0, along_x, below_x, along_x + below_x});
    const double top = std::min({0.0, along_y, below_y, along_y + below_y});
    const double right = std::max({0.0, along_x, below_x, along_x + below_x});
    const double bottom = std::max({0.0, along_y, below_y, along_y + below_y});
    const int x = put(looks.across, room.left, room.right, static_cast<int>(std::lround(right - left)));
    const int y = put(looks.down, room.top, room.bottom, static_cast<int>(std::lround(bottom - top)));
    TextOutW(context, x - static_cast<int>(std::lround(left)), y - static_cast<int>(std::lround(top)), text.c_str(),
             static_cast<int>(text.size()));
}

// The lines that no font draws: below the whole box, and the second one.
void draw_underlines(HDC context, const Looks& looks, const Scale& scale, const RECT& room, const RECT& text) {
    const bool twice = looks.underlining == forms::Underlining::Double;
    if (looks.underlining == forms::Underlining::None || (!looks.underlines_box && !twice)) return;
    const Tool pen(context, CreatePen(PS_SOLID, std::max(1, scale.pixels(0.75)), static_cast<COLORREF>(looks.color)));
    const RECT& under = looks.underlines_box ? room : text;
    const LONG y = std::min<LONG>(text.bottom, room.bottom - 1);
    if (looks.underlines_box && twice) line(context, {under.left, y - 2}, {under.right, y - 2});
    line(context, {under.left, y}, {under.right, y});
}

void draw_text(HDC context, const Looks& looks, const Scale& scale, const RECT& cell) {
    const int inset = scale.pixels(looks.inset);
    RECT room{cell.left + scale.pixels(padding), cell.top + scale.pixels(padding / 2),
              cell.right - scale.pixels(padding), cell.bottom - scale.pixels(padding / 2)};
    if (looks.across == forms::Side::Start || looks.across == forms::Side::Spread) room.left += inset;
    if (looks.across == forms::Side::End || looks.across == forms::Side::Spread) room.right -= inset;
    const int width = std::max(1, static_cast<int>(room.right - room.left));
    double size = looks.size;
    const auto fits = [&] {
        const Tool font(context, font_of(looks, scale, size));
        return size_of(context, looks, written(context, looks, width), width).cx <= width;
    };
    constexpr double smallest = 2;
    while (looks.shrinks && !looks.wraps && size > smallest && !fits()) size -= 0.5;

    const Tool font(context, font_of(looks, scale, size));
    SetTextColor(context, static_cast<COLORREF>(looks.color));
    SetBkMode(context, TRANSPARENT);
    const std::wstring text = written(context, looks, width);
    if (looks.turn != 0 && !looks.stacked) return draw_turned(context, looks, room, text);
    const SIZE needs = size_of(context, looks, text, width);
    RECT place{put(looks.across, room.left, room.right, needs.cx), put(looks.down, room.top, room.bottom, needs.cy), 0,
               0};
    place.right = place.left + needs.cx;
    place.bottom = place.top + needs.cy;
    const UINT lines = looks.wraps || looks.stacked ? DT_WORDBREAK : DT_SINGLELINE;
    const UINT side = looks.across == forms::Side::Start ? DT_LEFT
                      : looks.across == forms::Side::End ? DT_RIGHT
                                                         : DT_CENTER;
    DrawTextW(context, text.c_str(), static_cast<int>(text.size()), &place, DT_NOPREFIX | DT_NOCLIP | lines | side);
    draw_underlines(context, looks, scale, room, place);
}

}  // namespace

void draw_sample(const Looks& looks, const Scale& scale, HDC context, const RECT& box) {
    fill(context, box, paper);
    const int margin = scale.pixels(around);
    const RECT cell{box.left + 3 * margin, box.top + margin, box.right - 3 * margin, box.bottom - margin};
    {
        const Tool pen(context, CreatePen(PS_SOLID, 1, grid));
        for (const LONG x : {cell.left, cell.right}) line(context, {x, box.top}, {x, box.bottom});
        for (const LONG y : {cell.top, cell.bottom}) line(context, {box.left, y}, {box.right, y});
    }
    if (looks.fill) fill(context, cell, static_cast<COLORREF>(*looks.fill));
    const int saved = SaveDC(context);
    IntersectClipRect(context, cell.left, cell.top, cell.right, cell.bottom);
    draw_text(context, looks, scale, cell);
    RestoreDC(context, saved);
    draw_edges(context, looks, scale, cell);
    FrameRect(context, &box, GetSysColorBrush(COLOR_3DSHADOW));
}

}  // namespace kestrune::windows
