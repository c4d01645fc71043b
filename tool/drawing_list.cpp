#include "tool/drawing_list.h"

#include <ostream>

#include "tool/json_text.h"

namespace varno::tool {

namespace {

// One object of the list, printed when it is complete.
class Entry {
  public:
    Entry(const std::string& surface, const std::string& op) {
        add("surface", surface);
        add("op", op);
    }
    Entry& add(const std::string& key, const auto& value) {
        text_ += (text_.empty() ? "{" : ",") + jsonOf(key) + ":" + jsonOf(value);
        return *this;
    }
    Entry& colour(Colour value) {
        return value.isForeground() ? add("colour", std::string("fg")) : add("colour", value.number());
    }
    Entry& corners(Point one, Point two) {
        return add("x1", one.x).add("y1", one.y).add("x2", two.x).add("y2", two.y);
    }
    void print(std::ostream& out) const { out << text_ << "}\n"; }

  private:
    std::string text_;
};

} // namespace

void ListCanvas::clear() {
    Entry(surface_, "clear").print(out_);
}

void ListCanvas::line(Point from, Point to, Colour colour, int width) {
    Entry(surface_, "line").corners(from, to).colour(colour).add("width", width).print(out_);
}

void ListCanvas::box(Point corner, Point opposite, Colour colour, Fill fill) {
    const bool filled = fill == Fill::solid;
    Entry(surface_, "box").corners(corner, opposite).colour(colour).add("filled", filled).print(out_);
}

void ListCanvas::disc(Point centre, double radius, Colour rim, Colour) {
    Entry circle(surface_, "circle");
    circle.add("x", centre.x).add("y", centre.y).add("r", radius).colour(rim).print(out_);
}

void ListButtons::setButton(int index, bool visible, double left, double top) {
    Entry entry("strip", "button");
    entry.add("index", index).add("visible", visible);
    if (visible) entry.add("left", left).add("top", top);
    entry.print(out_);
}

} // namespace varno::tool
