#include "layout_check.h"

#include <algorithm>

#include "win32/strings.h"
#include "win32/unique.h"

namespace varno::gui {

namespace {

SIZE sizeOf(const RECT& box) {
    return {box.right - box.left, box.bottom - box.top};
}

// Measures texts in a font of the program, made again in this process.
class Measure {
  public:
    explicit Measure(const LOGFONTW& font)
        : font_(CreateFontIndirectW(&font)), selected_(dc_.get(), font_.get()) {}

    LONG width(const std::string& text) const {
        const std::wstring letters = win32::wide(text);
        SIZE size{};
        GetTextExtentPoint32W(dc_.get(), letters.c_str(), static_cast<int>(letters.size()), &size);
        return size.cx;
    }
    // The height of the text broken into lines of this width, and the width that it then takes.
    SIZE broken(const std::string& text, LONG within) const {
        RECT box{0, 0, within, 0};
        DrawTextW(dc_.get(), win32::wide(text).c_str(), -1, &box, DT_WORDBREAK | DT_CALCRECT | DT_NOPREFIX);
        return sizeOf(box);
    }

    LONG height() const {
        TEXTMETRICW metrics{};
        GetTextMetricsW(dc_.get(), &metrics);
        return metrics.tmHeight;
    }

  private:
    win32::WindowDc dc_{nullptr};
    win32::UniqueFont font_;
    win32::Selected selected_;
};

bool isGroup(const Control& control) {
    return control.className() == "Button" && (control.style() & BS_TYPEMASK) == BS_GROUPBOX;
}

bool buttonFits(const Control& control, const Measure& measure, int dpi) {
    const LONG text = measure.width(control.text());
    const LONG width = sizeOf(control.place()).cx;
    switch (control.style() & BS_TYPEMASK) {
    case BS_GROUPBOX:
        return text + MulDiv(16, dpi, 96) <= width;
    case BS_AUTORADIOBUTTON:
    case BS_AUTOCHECKBOX:
        // The circle or box, and the room behind it.
        return text + MulDiv(13 + 5, dpi, 96) <= width;
    default:
        return text + MulDiv(10, dpi, 96) <= width;
    }
}

bool staticFits(const Control& control, const Measure& measure) {
    const SIZE room = sizeOf(control.place());
    const std::string text = control.text();
    const bool drawn = (control.style() & SS_TYPEMASK) == SS_OWNERDRAW;
    if (drawn && text.find(' ') != std::string::npos) {
        // A paragraph, whose lines end before its edge: some letters are drawn wider than they are measured.
        return measure.broken(text, room.cx - room.cx / 40).cy <= room.cy;
    }
    if (drawn) {
        // Letters half as large again, and a smaller subscript behind the "_".
        const auto split = std::min(text.find('_'), text.size());
        const std::string small = split < text.size() ? text.substr(split + 1) : "";
        return measure.width(text.substr(0, split)) * 3 / 2 + measure.width(small) * 5 / 6 <= room.cx;
    }
    // A long path or reason ends in an ellipsis.
    if ((control.style() & SS_ELLIPSISMASK) != 0) return true;
    const SIZE needed = measure.broken(text, room.cx);
    return needed.cx <= room.cx && needed.cy <= room.cy;
}

bool editFits(const Control& control, const Measure& measure) {
    // Only numbers have their place; a title or a path may be longer than its box.
    if ((control.style() & ES_RIGHT) == 0) return true;
    RECT inside{};
    control.send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inside));
    // With the caret behind it, or the box scrolls its first digit away.
    return measure.width(control.text()) + 1 <= sizeOf(inside).cx;
}

bool listFits(const Control& control, const Measure& measure, int dpi) {
    LONG widest = 0;
    for (const std::string& row : control.rows())
        widest = std::max(widest, measure.width(row));
    return widest + MulDiv(17 + 8, dpi, 96) <= sizeOf(control.place()).cx;
}

// The rows of a list are as high as their letters.
bool rowsFit(const Control& control, const Measure& measure) {
    const LRESULT height = control.send(LB_GETITEMHEIGHT);
    return height >= measure.height();
}

bool fits(const Control& control, const LOGFONTW& font, int dpi) {
    const Measure measure(font);
    const std::string kind = control.className();
    if (kind == "Button") return buttonFits(control, measure, dpi);
    if (kind == "Static") return staticFits(control, measure);
    if (kind == "Edit") return editFits(control, measure);
    if (kind == "ComboBox") return listFits(control, measure, dpi);
    if (kind == "ListBox") return rowsFit(control, measure);
    return true;
}

std::string nameOf(const Control& control) {
    return control.className() + " " + std::to_string(control.id()) + " \"" + control.text() + "\"";
}

// A picture or flag draws itself.
bool canBeMeasured(const Control& control) {
    const std::string kind = control.className();
    if (kind == "Button") return (control.style() & BS_TYPEMASK) != BS_OWNERDRAW;
    return kind == "Edit" || kind == "ComboBox" || kind == "ListBox" ||
           (kind == "Static" && !control.text().empty());
}

void findCutCaptions(const Program& program, const std::vector<Control>& controls, int dpi,
                     std::vector<std::string>& faults) {
    std::vector<Control> measured;
    for (const Control& control : controls) {
        if (canBeMeasured(control)) measured.push_back(control);
    }
    const std::vector<LOGFONTW> fonts = program.fontsOf(measured);
    for (std::size_t i = 0; i < measured.size(); ++i) {
        if (!fits(measured[i], fonts[i], dpi)) faults.push_back(nameOf(measured[i]) + " is cut");
    }
}

// Half the height of a line in the middle of which the text of a control stands, from the top of the parent.
LONG middleOfText(const Control& control, const LOGFONTW& font) {
    const RECT box = control.place();
    if (control.className() != "Edit") return (box.top + box.bottom) / 2;
    RECT inside{};
    control.send(EM_GETRECT, 0, reinterpret_cast<LPARAM>(&inside));
    POINT top{0, inside.top};
    MapWindowPoints(control.handle(), GetParent(control.handle()), &top, 1);
    return top.y + Measure(font).height() / 2;
}

// A label beside a box and the number in it stand on one line.
void findUnevenLines(const Program& program, const std::vector<Control>& controls,
                     std::vector<std::string>& faults) {
    std::vector<Control> labels;
    std::vector<Control> boxes;
    for (const Control& control : controls) {
        if (!control.visible()) continue;
        const LONG height = sizeOf(control.place()).cy;
        if (control.className() == "Static" && (control.style() & SS_CENTERIMAGE) != 0 && height > 0)
            labels.push_back(control);
        if (control.className() == "Edit" && (control.style() & ES_RIGHT) != 0) boxes.push_back(control);
    }
    const std::vector<LOGFONTW> fonts = program.fontsOf(boxes);
    for (std::size_t i = 0; i < boxes.size(); ++i) {
        const RECT box = boxes[i].place();
        const Control* nearest = nullptr;
        for (const Control& label : labels) {
            const RECT words = label.place();
            if (words.top < box.top || words.bottom > box.bottom || words.left > box.left) continue;
            if (nearest == nullptr || words.left > nearest->place().left) nearest = &label;
        }
        if (nearest == nullptr) continue;
        const LONG off = middleOfText(boxes[i], fonts[i]) - middleOfText(*nearest, fonts[i]);
        if (off < -1 || off > 1)
            faults.push_back(nameOf(boxes[i]) + " stands " + std::to_string(off) + " lower than " +
                             nameOf(*nearest));
    }
}

// A path without a frame begins where the label above it begins.
void findIndentedPaths(const std::vector<Control>& controls, std::vector<std::string>& faults) {
    for (const Control& control : controls) {
        const bool bare = (GetWindowLongPtrW(control.handle(), GWL_EXSTYLE) & WS_EX_CLIENTEDGE) == 0;
        if (control.className() != "Edit" || !bare || control.text().empty()) continue;
        const int first = static_cast<short>(LOWORD(control.send(EM_POSFROMCHAR, 0)));
        if (first != 0) faults.push_back(nameOf(control) + " is indented by " + std::to_string(first));
    }
}

// What lies in a frame lies in it whole, below its caption.
void findOutOfFrame(const std::vector<Control>& controls, int dpi, std::vector<std::string>& faults) {
    const LONG caption = MulDiv(10, dpi, 96);
    for (const Control& frame : controls) {
        if (!isGroup(frame) || !frame.visible()) continue;
        const RECT outside = frame.place();
        RECT inside = outside;
        inside.top += caption;
        InflateRect(&inside, -1, -1);
        for (const Control& control : controls) {
            RECT box = control.place();
            const POINT middle{(box.left + box.right) / 2, (box.top + box.bottom) / 2};
            RECT common{};
            if (control == frame || !control.visible() || !PtInRect(&outside, middle)) continue;
            // A frame may lie in a frame.
            IntersectRect(&common, &box, &outside);
            if (EqualRect(&common, &outside)) continue;
            IntersectRect(&common, &box, &inside);
            if (!EqualRect(&common, &box))
                faults.push_back(nameOf(control) + " reaches over the frame " + nameOf(frame));
        }
    }
}

// Number boxes that all but touch, as those of the grid do, are of one size, and on one line.
void findUnevenBoxes(const std::vector<Control>& controls, int dpi, std::vector<std::string>& faults) {
    std::vector<Control> boxes;
    for (const Control& control : controls) {
        if (control.visible() && control.className() == "Edit" && (control.style() & ES_RIGHT) != 0)
            boxes.push_back(control);
    }
    for (std::size_t i = 1; i < boxes.size(); ++i) {
        const RECT one = boxes[i - 1].place();
        const RECT next = boxes[i].place();
        const LONG gap = next.left - one.right;
        const bool beside =
            next.top < one.bottom && one.top < next.bottom && gap >= 0 && gap < MulDiv(8, dpi, 96);
        const LONG wider = sizeOf(next).cx - sizeOf(one).cx;
        if (beside && (one.top != next.top || one.bottom != next.bottom || wider < -1 || wider > 1))
            faults.push_back(nameOf(boxes[i]) + " is not in line with " + nameOf(boxes[i - 1]));
    }
}

} // namespace

std::vector<std::string> layoutFaults(const Program& program, const Control& window, int dpi) {
    RECT client{};
    GetClientRect(window.handle(), &client);
    return layoutFaults(program, window, dpi, client);
}

std::vector<std::string> layoutFaults(const Program& program, const Control& window, int dpi,
                                      const RECT& area) {
    std::vector<std::string> faults;
    const auto children = window.children();
    findCutCaptions(program, children, dpi, faults);
    findUnevenLines(program, children, faults);
    findUnevenBoxes(children, dpi, faults);
    findIndentedPaths(children, faults);
    findOutOfFrame(children, dpi, faults);
    std::vector<Control> shown;
    for (const Control& child : children) {
        const RECT box = child.place();
        RECT common{};
        // A label without a text takes no room.
        if (!child.visible() || (child.className() == "Static" && child.text().empty())) continue;
        IntersectRect(&common, &box, &area);
        if (!EqualRect(&common, &box)) faults.push_back(nameOf(child) + " is not inside");
        // A frame's content lies on it.
        if (!isGroup(child)) shown.push_back(child);
    }
    for (std::size_t i = 0; i < shown.size(); ++i) {
        for (std::size_t k = i + 1; k < shown.size(); ++k) {
            const RECT one = shown[i].place();
            const RECT other = shown[k].place();
            RECT common{};
            if (!IntersectRect(&common, &one, &other)) continue;
            faults.push_back(nameOf(shown[i]) + " overlaps " + nameOf(shown[k]));
        }
    }
    return faults;
}

} // namespace varno::gui
