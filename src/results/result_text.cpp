#include "results/result_text.h"

#include "base/oem_letters.h"

namespace varno {

void RepairedText::appendLine(std::string_view line) {
    text_ += "\r\n";
    const std::size_t start = text_.size();
    text_ += line;
    for (std::size_t letter = 0; letter < oemLetters.size(); ++letter) {
        Places& places = places_[letter];
        for (auto at = text_.find(oemLetters[letter].dos, start); at != Bytes::npos;
             at = text_.find(oemLetters[letter].dos, at + 1)) {
            places.found.push_back(at);
        }
        if (places.repaired < places.found.size()) {
            text_[places.found[places.repaired++]] = oemLetters[letter].windows;
        }
    }
}

} // namespace varno

namespace VARNO1 {

varno::Bytes readResultText(varno::File& file) {
    varno::RepairedText text;
    while (!file.atEnd())
        text.appendLine(file.readLine());
    return text.bytes();
}

} // namespace VARNO1
