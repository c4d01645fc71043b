#include "fuzz/readers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include "base/file.h"
#include "base/numbers.h"
#include "base/run_time_error.h"
#include "diagram/moment_file.h"
#include "engine/case_reader.h"
#include "model/design_input_file.h"
#include "model/reference_tables.h"
#include "results/result_text.h"
#include "support/byte_files.h"

namespace varno::fuzz {

namespace {

void promise(bool kept, const std::string& what) {
    if (!kept) throw BrokenPromise(what);
}

File fileOf(ByteFiles& files, std::string_view bytes) {
    files.content["FALL"] = bytes;
    return {files, "FALL", FileMode::input, 0, 1};
}

// Runs a reader; false when it refused the file with one of the errors that it may raise.
template <typename Action>
bool readOrRefused(std::initializer_list<int> known, Action&& action) {
    try {
        action();
        return true;
    } catch (const RunTimeError& error) {
        promise(std::find(known.begin(), known.end(), error.number()) != known.end(), error.message());
        return false;
    }
}

// Design input file

Bytes written(const CaseFile& caseFile) {
    ByteFiles files;
    File file(files, "FALL", FileMode::output, 0, 1);
    VARNO1::writeDesignCase(file, caseFile);
    file.close();
    return files.content["FALL"];
}

bool readCase(std::string_view bytes, CaseFile& caseFile) {
    return readOrRefused({errOverflow, errSubscriptOutOfRange, errInputPastEnd}, [&] {
        ByteFiles files;
        File file = fileOf(files, bytes);
        DesignCase presets;
        presetDesignCase(presets);
        caseFile = VARNO1::readDesignCase(file, presets);
    });
}

// Whether the format can carry a text: it is written without quotes, and a byte that is a DOS code is taken for its
// letter when it is read again.
bool carried(const std::string& utf8) {
    const Bytes bytes = encodeWindows1252(utf8);
    return bytes.find_first_of(",\r\n\x84\x86\x8E\x8F\x94\x99") == Bytes::npos && !bytes.starts_with(' ') &&
           !bytes.starts_with('"');
}

void designInputFile(std::string_view bytes) {
    CaseFile first;
    if (!readCase(bytes, first) || !carried(first.name) || !carried(first.title)) return;
    // Numbers wider than their cells are cut once; from then on nothing changes any more.
    const Bytes once = written(first);
    CaseFile second;
    promise(readCase(once, second), "the program cannot read what it wrote");
    promise(second.name == first.name && second.title == first.title,
            "a text that the format carries changed");
    promise(written(second) == once, "a case changed when it was saved again");
}

// The other files that the program reads

void momentFile(std::string_view bytes) {
    readOrRefused({errOverflow, errSubscriptOutOfRange, errInputPastEnd}, [&] {
        ByteFiles files;
        File file = fileOf(files, bytes);
        MomentFile moments(file);
        promise(moments.spans() <= SpanArray::last, "more spans than there is room for");
        for (int item = 0; item < moments.spans() * 2 * (1 + lastMoment + 1); ++item)
            promise(std::isfinite(moments.number()), "a moment that is not finite");
    });
}

// varno.ini and Varnfnt.ini: one item, its letters converted, as text for the screen.
void settingsItem(std::string_view bytes) {
    ByteFiles files;
    File file = fileOf(files, bytes);
    while (!file.atEnd()) {
        const Bytes item = VARNO1::fromOemLetters(file.readField());
        promise(encodeWindows1252(decodeWindows1252(item)) == item, "a byte did not survive the screen");
    }
    promise(!readOrRefused({errInputPastEnd}, [&] { file.readField(); }), "an item behind the end");
}

void resultText(std::string_view bytes) {
    ByteFiles files;
    std::size_t size = 0;
    for (File file = fileOf(files, bytes); !file.atEnd();)
        size += file.readLine().size() + 2;
    File whole = fileOf(files, bytes);
    promise(VARNO1::readResultText(whole).size() == size, "a line of the result was lost");
    readOrRefused({errSubscriptOutOfRange}, [&] {
        File file = fileOf(files, bytes);
        std::size_t paged = 0;
        for (const Bytes& page : VARNO1::readResultPages(file))
            paged += page.size();
        promise(paged == size, "a line of the result is on no page");
    });
}

void engineInput(std::string_view bytes) {
    try {
        const engine::CaseOnFile input = engine::readCase(Bytes(bytes));
        promise(input.values.nfack >= 1 && input.values.nfack <= SpanArray::last,
                "a number of spans out of range");
    } catch (const engine::CaseError& error) {
        promise(*error.what() != '\0', "refused without a reason");
    }
}

// Numbers

constexpr std::array patterns{"##0.000", "#0.000", "##0",  "#0",       "##0.00",
                              "#0.00",   "0.000",  "####", "##,##0.00"};

bool same(double a, double b) {
    return a == b || (std::isnan(a) && std::isnan(b));
}

void roundTrip(double value) {
    promise(same(VARNO1::parseNumber(generalForm(value)), value), "a double changed as text");
    const auto single = static_cast<float>(std::fabs(value) > 3e38 ? 1 : value);
    promise(same(toSingle(VARNO1::parseNumber(generalForm(single))), single), "a single changed as text");
    const NumberLocale swedish{",", "\u00A0"};
    for (const std::string_view pattern : patterns) {
        const std::string text = formatNumber(value, pattern);
        if (pattern.find(',') == std::string_view::npos) {
            promise(formatNumber(VARNO1::parseNumber(text), pattern) == text,
                    "a shown number changed: " + text);
        }
        const std::string shown = formatNumber(value, pattern, swedish);
        promise(formatNumber(VARNO1::parseNumber(shown), pattern, swedish) == shown,
                "a number shown in Swedish changed: " + shown);
    }
}

void numbers(std::string_view bytes) {
    const double value = VARNO1::parseNumber(bytes);
    promise(!std::isnan(value), "a text that is not a number must read as 0");
    if (std::isfinite(value)) roundTrip(value);
    promise(!std::isnan(VARNO1::plainNumber(bytes)), "a text that is not a number must read as 0");
    double raw = 0;
    if (bytes.size() >= sizeof raw) {
        std::copy_n(bytes.data(), sizeof raw, reinterpret_cast<char*>(&raw));
        if (std::isfinite(raw)) roundTrip(raw);
    }
    readOrRefused({errOverflow}, [&] {
        const double whole = toInteger(value);
        promise(std::fabs(whole - value) <= 0.5, "rounded to another whole number");
    });
}

constexpr std::array all{
    Reader{"design_input_file", designInputFile}, Reader{"moment_file", momentFile},
    Reader{"settings_item", settingsItem},        Reader{"result_text", resultText},
    Reader{"engine_input", engineInput},          Reader{"numbers", numbers},
};

} // namespace

std::span<const Reader> readers() {
    return all;
}

} // namespace varno::fuzz
