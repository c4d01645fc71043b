#include "results/result_reader.h"

#include "base/text.h"

namespace varno {

namespace {

// As many units as the text itself: none of the letters of a result has a capital of another length.
std::u16string capitals(const std::string& text) {
    return utf16FromUtf8(upperCase(text));
}

constexpr auto nowhere = std::u16string::npos;

} // namespace

void ResultReader::setShown(const ShownResult& shown) {
    shown_ = shown;
    view_.setShown(shown);
}

void ResultReader::setText(const std::string& text) {
    text_ = capitals(text);
    view_.setText(text);
    view_.setFindNote({});
}

void ResultReader::wordChanged() {
    if (view_.word().empty()) return view_.setFindNote({});
    findFrom(view_.selection().first);
}

void ResultReader::findNext() {
    if (view_.word().empty()) return findAsked();
    findFrom(view_.selection().second);
}

void ResultReader::findFrom(std::size_t begin) {
    const std::u16string wanted = capitals(view_.word());
    const std::size_t ahead = text_.find(wanted, begin);
    const bool beganAnew = ahead == nowhere;
    show(beganAnew ? text_.find(wanted) : ahead, wanted.size(), beganAnew ? "Började om uppifrån." : "");
}

void ResultReader::findPrevious() {
    if (view_.word().empty()) return findAsked();
    const std::u16string wanted = capitals(view_.word());
    const std::size_t begin = view_.selection().first;
    const std::size_t behind = begin == 0 ? nowhere : text_.rfind(wanted, begin - 1);
    const bool beganAnew = behind == nowhere;
    show(beganAnew ? text_.rfind(wanted) : behind, wanted.size(), beganAnew ? "Började om nedifrån." : "");
}

void ResultReader::show(std::size_t place, std::size_t length, const char* note) {
    if (place == nowhere) return view_.setFindNote("Texten finns inte.");
    view_.setFindNote(note);
    view_.select(place, place + length);
}

} // namespace varno
