#include "help/placement.h"

#include "help/manual.h"

#include <algorithm>
#include <cmath>

namespace vantorel {

namespace {

// `OK` of the manual, and how the box and button keep to the window's edges.
constexpr int kBoxLeft = 120;
constexpr int kBoxTop = 120;
constexpr int kBoxWidthLess = 390;
constexpr int kBoxHeightLess = 1215;
constexpr int kOkWidth = 1815;
constexpr int kOkHeight = 495;
constexpr int kOkTopLess = 990;

constexpr int kAboutBelowMainTop = 2840;

// The measures of the text in the box, in twips. They are those of the
// widest face that stands in for Times New Roman (a plain serif such as
// DejaVu Serif, wider than Times by a fifth), a little rounded up, so that
// an estimate made with them does not reach beyond the box. The box loses
// its frame, the text's margins and the vertical scroll bar; a bullet item
// its indent; a line some characters to breaking at a word.
constexpr double kCharWidth = 0.52;     // of the font size, the manual's mixed text
constexpr double kBoldCharWidth = 0.57; // bold
constexpr double kLineHeight = 1.18;    // of the font size
constexpr int kBoxMargins = 2 * (15 + 60);
constexpr int kScrollBar = 255;
constexpr int kListIndent = 600;
constexpr int kWrapLoss = 3;

struct LineMeasure {
    int perLine;   // characters on a full line
    double height; // twips a line takes
};

LineMeasure Measure(const ManualParagraph& paragraph, int textWidth) {
    const ManualFormat f = FormatOf(paragraph.style);
    const double twips = f.points * 20.0;
    const double charWidth = twips * (f.bold ? kBoldCharWidth : kCharWidth);
    const int width = textWidth - (paragraph.style == ManualStyle::Bullet ? kListIndent : 0);
    const int perLine = std::max(1, static_cast<int>(width / charWidth) - kWrapLoss);
    return {perLine, twips * kLineHeight};
}

} // namespace

Place PlaceDocumentation(const CallerWindow& caller, int width, const WorkArea& work) {
    const int workRight = work.left + work.width;
    const int callerRight = caller.left + caller.width;
    Place p;
    p.top = caller.top;
    if (callerRight + width <= workRight) {
        p.left = callerRight;
    } else if (caller.left - width >= work.left) {
        p.left = caller.left - width;
    } else {
        const int roomRight = workRight - callerRight;
        const int roomLeft = caller.left - work.left;
        const bool right = roomRight > roomLeft || (roomRight == roomLeft && caller.caller == HelpCaller::MainWindow);
        p.left = right ? workRight - width : work.left;
    }
    return p;
}

DocumentationLayout LayOutDocumentation(int width, int height) {
    DocumentationLayout l;
    l.width = std::max(width, kDocumentationMinWidth);
    l.height = std::max(height, kDocumentationMinHeight);
    l.box = {kBoxLeft, kBoxTop, l.width - kBoxWidthLess, l.height - kBoxHeightLess};
    // Centred across the window; a whole twip, the half dropped.
    l.ok = {(l.width - kOkWidth) / 2, l.height - kOkTopLess, kOkWidth, kOkHeight};
    return l;
}

Place PlaceAbout(const TwipsRect& main, int aboutWidth) {
    return {main.left + (main.width - aboutWidth) / 2, main.top + kAboutBelowMainTop};
}

Place CentreOnScreen(const WorkArea& screen, int width, int height) {
    return {screen.left + (screen.width - width) / 2, screen.top + (screen.height - height) / 2};
}

int ScreenfulBelow(int start, int boxWidth, int boxHeight) {
    const int textWidth = boxWidth - kBoxMargins - kScrollBar;
    const double room = boxHeight - kBoxMargins;
    double used = 0.0;
    int at = 0;
    bool first = true;
    for (const ManualParagraph& paragraph : ManualParagraphs()) {
        const int length = static_cast<int>(paragraph.text.size());
        const int end = at + length;
        if (end < start) {
            at = end + 1;
            continue;
        }
        // The paragraph that holds `start` counts from there.
        const int from = std::max(at, start);
        const ManualFormat f = FormatOf(paragraph.style);
        const LineMeasure m = Measure(paragraph, textWidth);
        const double before = first ? 0.0 : f.spaceBefore;
        const int lines = (end - from + m.perLine - 1) / m.perLine;
        const double height = before + std::max(lines, 1) * m.height;
        if (used + height > room) {
            // Only some lines of this paragraph are in view: the position is
            // at the start of the last of them.
            const int fit = static_cast<int>((room - used - before) / m.height);
            if (fit <= 0) return first ? from : at - 1;
            return from + (fit - 1) * m.perLine;
        }
        used += height + f.spaceAfter;
        first = false;
        at = end + 1;
    }
    return static_cast<int>(ManualText().size());
}

} // namespace vantorel
