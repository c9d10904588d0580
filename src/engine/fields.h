#pragma once

// Controls as fields. Every control of every window is one of these small
// value objects. Assigning a value runs the control's handler at once, nested,
// to its end; a disabled list does not run its handler (the latch that lets
// code rebuild a list quietly). A bound view, if any, is told of every change.

#include <array>
#include <cstdint>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>
#include <utility>
#include <vector>

namespace vantorel {

using Colour = std::uint32_t; // 0xBBGGRR

inline constexpr Colour White = 0xFFFFFF;
inline constexpr Colour Grey = 0xC0C0C0;
inline constexpr Colour DarkGrey = 0x808080;
inline constexpr Colour Black = 0x000000;

// State that every control has: enabled, visible, colours and a place on its
// window (twips; 0 where the window's layout table decides).
// A rectangle in twips: a control's place on its window, or a window's outer
// measures on the screen.
struct TwipsRect {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
    int right() const { return left + width; }
    int bottom() const { return top + height; }
};

class Control {
  public:
    bool enabled() const { return m_enabled; }
    bool visible() const { return m_visible; }
    Colour back() const { return m_back; }
    Colour fore() const { return m_fore; }
    int left() const { return m_left; }
    int top() const { return m_top; }
    int width() const { return m_width; }
    int height() const { return m_height; }
    TwipsRect rect() const { return {m_left, m_top, m_width, m_height}; }

    void setEnabled(bool on) { update(m_enabled, on); }
    void setVisible(bool on) { update(m_visible, on); }
    void setBack(Colour c) { update(m_back, c); }
    void setFore(Colour c) { update(m_fore, c); }
    void setLeft(int twips) { update(m_left, twips); }
    void setTop(int twips) { update(m_top, twips); }
    void setWidth(int twips) { update(m_width, twips); }
    void setHeight(int twips) { update(m_height, twips); }
    void setRect(const TwipsRect& r) {
        setLeft(r.left);
        setTop(r.top);
        setWidth(r.width);
        setHeight(r.height);
    }

    // The handler runs when the control's value is assigned (see subclasses).
    void setHandler(std::function<void()> handler) { m_handler = std::move(handler); }
    bool hasHandler() const { return static_cast<bool>(m_handler); }
    const std::function<void()>& handler() const { return m_handler; }
    // A bound widget refreshes itself through this hook; one view per field.
    void setView(std::function<void()> view) { m_view = std::move(view); }

  protected:
    void changed() const {
        if (m_view) m_view();
    }
    // Assigns a property and tells the view, if the value is new.
    template <typename T> void update(T& member, T value) {
        if (member == value) return;
        member = std::move(value);
        changed();
    }
    void runHandler() const {
        if (m_handler) m_handler();
    }

  private:
    bool m_enabled = true;
    bool m_visible = true;
    Colour m_back = White;
    Colour m_fore = Black;
    int m_left = 0;
    int m_top = 0;
    int m_width = 0;
    int m_height = 0;
    std::function<void()> m_handler;
    std::function<void()> m_view;
};

// A check box: 0 or 1. Its handler runs on every change of value, whoever
// makes it (the program's code as well as a click).
class Flag : public Control {
  public:
    Flag() = default;
    explicit Flag(int start, std::string caption = {}) : m_value(start), m_caption(std::move(caption)) {}

    int value() const { return m_value; }
    void setValue(int v) {
        if (m_value == v) return;
        m_value = v;
        changed();
        runHandler();
    }
    // What a user's click does: toggle.
    void click() { setValue(m_value ? 0 : 1); }

    const std::string& caption() const { return m_caption; }
    const std::string& tooltip() const { return m_tooltip; }
    void setCaption(std::string s) { update(m_caption, std::move(s)); }
    void setTooltip(std::string s) { update(m_tooltip, std::move(s)); }

  private:
    int m_value = 0;
    std::string m_caption;
    std::string m_tooltip;
};

// A text box. "" and "N/A" are real values.
class Text : public Control {
  public:
    Text() = default;
    explicit Text(std::string start) : m_text(std::move(start)) {}

    const std::string& text() const { return m_text; }
    void setText(std::string s) {
        if (m_text == s) return;
        m_text = std::move(s);
        changed();
        runHandler();
    }
    const std::string& tooltip() const { return m_tooltip; }
    void setTooltip(std::string s) { update(m_tooltip, std::move(s)); }

  private:
    std::string m_text;
    std::string m_tooltip;
};

// A list: rows of text, a selected index (-1 for none) and the text of the
// selection. A list with typing also holds a free text that need not be a row.
// Its handler is the click on a row; it does nothing while the list is
// disabled, unless the list is one whose handler runs whatever its state
// (`setRunsWhenDisabled`): such a list's handler checks the state itself.
class List : public Control {
  public:
    List() = default;
    explicit List(std::vector<std::string> rows, bool typing = false) : m_rows(std::move(rows)), m_typing(typing) {}

    const std::vector<std::string>& rows() const { return m_rows; }
    int count() const { return static_cast<int>(m_rows.size()); }
    int index() const { return m_index; }
    const std::string& text() const { return m_text; }
    bool typing() const { return m_typing; }
    const std::string& row(int i) const { return m_rows[static_cast<std::size_t>(i)]; }

    // Program assignment of the selected index. A new index runs the handler.
    // An index outside -1 .. count-1 is ignored.
    void setIndex(int i) {
        if (i < -1 || i >= count() || i == m_index) return;
        select(i);
    }
    // A user's click on row i: runs the handler even if the row was selected.
    void click(int i) {
        if (i < 0 || i >= count()) return;
        select(i);
    }
    // Text of a list with typing, typed or assigned: no event. The index
    // follows the first row that equals the text, else it is -1.
    void setText(std::string s) {
        int found = -1;
        for (int i = 0; i < count(); ++i) {
            if (m_rows[static_cast<std::size_t>(i)] == s) {
                found = i;
                break;
            }
        }
        if (s == m_text && found == m_index) return;
        m_text = std::move(s);
        m_index = found;
        changed();
    }

    void clear() {
        if (m_rows.empty() && m_index == -1 && m_text.empty()) return;
        m_rows.clear();
        m_index = -1;
        m_text.clear();
        changed();
    }
    void addItem(std::string s) {
        m_rows.push_back(std::move(s));
        changed();
    }
    // Inserts before row `at`; a selection at or after it moves down with it.
    void insertItem(std::string s, int at) {
        if (at < 0 || at > count()) at = count();
        m_rows.insert(m_rows.begin() + at, std::move(s));
        if (m_index >= at) ++m_index;
        changed();
    }
    // Removes row `at`; removing the selected row leaves nothing selected.
    void removeItem(int at) {
        if (at < 0 || at >= count()) return;
        m_rows.erase(m_rows.begin() + at);
        if (m_index == at) {
            m_index = -1;
            if (!m_typing) m_text.clear();
        } else if (m_index > at) {
            --m_index;
        }
        changed();
    }

    const std::string& tooltip() const { return m_tooltip; }
    void setTooltip(std::string s) { update(m_tooltip, std::move(s)); }
    // The prompt a list without typing shows while nothing is selected
    // ("Select Equipment Bonuses"); it is not a row and never selected.
    const std::string& hint() const { return m_hint; }
    void setHint(std::string s) { update(m_hint, std::move(s)); }

    bool runsWhenDisabled() const { return m_runsWhenDisabled; }
    void setRunsWhenDisabled(bool on) { m_runsWhenDisabled = on; }

  private:
    void select(int i) {
        m_index = i;
        m_text = i >= 0 ? m_rows[static_cast<std::size_t>(i)] : std::string();
        changed();
        if (enabled() || m_runsWhenDisabled) runHandler();
    }

    std::vector<std::string> m_rows;
    int m_index = -1;
    std::string m_text;
    bool m_typing = false;
    bool m_runsWhenDisabled = false;
    std::string m_tooltip;
    std::string m_hint;
};

// A label or output box: caption and tooltip, written by the program.
class Label : public Control {
  public:
    Label() = default;
    explicit Label(std::string caption, std::string tooltip = {})
        : m_caption(std::move(caption)), m_tooltip(std::move(tooltip)) {}

    const std::string& caption() const { return m_caption; }
    const std::string& tooltip() const { return m_tooltip; }
    // Results are written to their boxes on every recalculation, mostly the
    // same as before: the new text is compared in place and copied into the
    // label's own buffer only when it differs.
    void setCaption(std::string_view s) { updateText(m_caption, s); }
    void setTooltip(std::string_view s) { updateText(m_tooltip, s); }
    // The size of the caption's font in points; 0 keeps the size the window
    // gave the label. Only captions that the program resizes set it.
    double fontSize() const { return m_fontSize; }
    void setFontSize(double points) { update(m_fontSize, points); }

  private:
    void updateText(std::string& member, std::string_view value) {
        if (member == value) return;
        member.assign(value);
        changed();
    }

    std::string m_caption;
    std::string m_tooltip;
    double m_fontSize = 0.0;
};

// A push button: caption, tooltip, and the handler as its click.
class Button : public Label {
  public:
    using Label::Label;
    void press() const { runHandler(); }
};

// A picture: the name of what it shows ("" for nothing). Overlays only use
// the visible flag.
class Picture : public Control {
  public:
    const std::string& image() const { return m_image; }
    void setImage(std::string s) { update(m_image, std::move(s)); }

  private:
    std::string m_image;
};

enum class LineStyle { Solid, Dotted };

// A straight line from (x1, y1) to (x2, y2), twips, drawn in its fore colour.
class Line : public Control {
  public:
    Line() = default;
    Line(int x1, int y1, int x2, int y2) : m_x1(x1), m_y1(y1), m_x2(x2), m_y2(y2) {}
    int x1() const { return m_x1; }
    int y1() const { return m_y1; }
    int x2() const { return m_x2; }
    int y2() const { return m_y2; }
    LineStyle style() const { return m_style; }
    void setX1(int x) { update(m_x1, x); }
    void setY1(int y) { update(m_y1, y); }
    void setX2(int x) { update(m_x2, x); }
    void setY2(int y) { update(m_y2, y); }
    void setStyle(LineStyle s) { update(m_style, s); }

  private:
    int m_x1 = 0, m_y1 = 0, m_x2 = 0, m_y2 = 0;
    LineStyle m_style = LineStyle::Solid;
};

// A scroll bar: value 0 .. maximum, with small and large steps. Its handler
// runs when the value changes. A value outside the bar's range is brought to
// its nearer end, as a bar's thumb cannot leave its track; a negative maximum
// (a page smaller than its window) leaves only 0.
class ScrollBar : public Control {
  public:
    int value() const { return m_value; }
    int maximum() const { return m_maximum; }
    int smallStep() const { return m_small; }
    int largeStep() const { return m_large; }
    void setValue(int v) {
        v = v < 0 ? 0 : v > m_maximum ? (m_maximum > 0 ? m_maximum : 0) : v;
        if (v == m_value) return;
        m_value = v;
        changed();
        runHandler();
    }
    void setRange(int maximum, int small, int large) {
        if (maximum == m_maximum && small == m_small && large == m_large) return;
        m_maximum = maximum;
        m_small = small;
        m_large = large;
        changed();
    }

  private:
    int m_value = 0;
    int m_maximum = 0;
    int m_small = 1;
    int m_large = 1;
};

enum class WindowState { Normal, Minimised, Maximised };

// A top-level window as the program sees it: shown or hidden, its state, and
// its outer and inner (client) size in twips. Its handler answers a close
// request from the window's frame: a window that is only ever hidden hides,
// one that is really closed resets what closing resets.
class Window : public Control {
  public:
    Window() { setVisible(false); }
    explicit Window(std::string title, bool shown = false) : m_title(std::move(title)) { setVisible(shown); }
    const std::string& title() const { return m_title; }
    void setTitle(std::string title) { update(m_title, std::move(title)); }
    WindowState state() const { return m_state; }
    void setState(WindowState s) { update(m_state, s); }
    // The frame asks to close the window; without a handler it hides.
    void requestClose() {
        if (hasHandler())
            runHandler();
        else
            setVisible(false);
    }
    // Asks for the window to come to the front of the others. Each request
    // counts, so that a view which sees the count grow raises its window.
    int frontRequests() const { return m_frontRequests; }
    void bringToFront() {
        ++m_frontRequests;
        changed();
    }
    int innerWidth() const { return m_innerWidth; }
    int innerHeight() const { return m_innerHeight; }
    void setInnerSize(int w, int h) {
        if (w == m_innerWidth && h == m_innerHeight) return;
        m_innerWidth = w;
        m_innerHeight = h;
        changed();
    }

  private:
    std::string m_title;
    WindowState m_state = WindowState::Normal;
    int m_innerWidth = 0;
    int m_innerHeight = 0;
    int m_frontRequests = 0;
};

// A control array with the index base of the program: Indexed<List, 1, 4> is
// Forward[1..4]. Out-of-range access is a programming error.
template <typename T, int First, int Last> struct Indexed {
    static_assert(Last >= First);
    static constexpr int first = First;
    static constexpr int last = Last;
    std::array<T, static_cast<std::size_t>(Last - First + 1)> items{};

    T& operator[](int i) { return items.at(static_cast<std::size_t>(i - First)); }
    const T& operator[](int i) const { return items.at(static_cast<std::size_t>(i - First)); }
    // An array indexed by a named code, such as WeaponCount by Slot.
    template <typename E>
    requires std::is_enum_v<E> T& operator[](E e) { return (*this)[static_cast<int>(e)]; }
    template <typename E>
    requires std::is_enum_v<E>
    const T& operator[](E e) const { return (*this)[static_cast<int>(e)]; }
};

// Per-vessel arrays of plain values: [1] Alpha, [2] Omega.
template <typename T> using PerVessel = Indexed<T, 1, 2>;

} // namespace vantorel
