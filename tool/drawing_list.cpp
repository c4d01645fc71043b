#include "tool/drawing_list.h"

#include <ostream>

#include "tool/json_text.h"

namespace varno::tool {

namespace {

// One object of the list, printed when it is complete.
class Entry {
  public:
    Entry(const std::string& surface, const char* op) {
        text("surface", surface);
        text("op", op);
    }
    Entry& text(const char* key, const std::string& value) { return raw(key, jsonText(value)); }
    Entry& number(const char* key, double value) { return raw(key, jsonNumber(value)); }
    Entry& flag(const char* key, bool value) { return raw(key, value ? "true" : "false"); }
    Entry& colour(Colour value) {
        if (value.isForeground()) return text("colour", "fg");
        int number = 0;
        while (value != Colour::numbered(number))
            ++number;
        return raw("colour", std::to_string(number));
    }
    Entry& corners(Point one, Point two) {
        return number("x1", one.x).number("y1", one.y).number("x2", two.x).number("y2", two.y);
    }
    Entry& raw(const char* key, const std::string& value) {
        text_ += (text_.empty() ? "{" : ",") + jsonText(key) + ":" + value;
        return *this;
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
    Entry(surface_, "line").corners(from, to).colour(colour).raw("width", std::to_string(width)).print(out_);
}

void ListCanvas::box(Point corner, Point opposite, Colour colour, Fill fill) {
    Entry(surface_, "box")
        .corners(corner, opposite)
        .colour(colour)
        .flag("filled", fill == Fill::solid)
        .print(out_);
}

void ListCanvas::disc(Point centre, double radius, Colour rim, Colour) {
    Entry(surface_, "circle")
        .number("x", centre.x)
        .number("y", centre.y)
        .number("r", radius)
        .colour(rim)
        .print(out_);
}

void ListButtons::setButton(int index, bool visible, double left, double top) {
    Entry entry("strip", "button");
    entry.raw("index", std::to_string(index)).flag("visible", visible);
    if (visible) entry.number("left", left).number("top", top);
    entry.print(out_);
}

} // namespace varno::tool
