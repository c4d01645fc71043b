#include "engine/case_reader.h"

#include "engine/numbers.h"

#include <utility>

namespace varnowb {
namespace {

constexpr int kLines = 37;

// Foreign bytes stay out of the message: they would upset the repair of its letters.
std::string quoted(std::string_view text) {
    constexpr std::size_t longest = 20;
    std::string shown = "\"";
    for (const char c : text.substr(0, longest))
        shown += c >= ' ' && c < 0x7F && c != '^' ? c : '?';
    return shown + (text.size() > longest ? "...\"" : "\"");
}

class Columns {
  public:
    explicit Columns(std::vector<std::string_view> lines) : lines_(std::move(lines)) {
        if (lines_.size() < kLines)
            throw CaseError("Indatafilen är avkortad: rad " + std::to_string(lines_.size() + 1) +
                            " av 37 saknas.");
    }

    std::string_view line(int number) const { return lines_[static_cast<std::size_t>(number - 1)]; }

    // `first` counts from 1, as the file's description does.
    std::string_view cellText(int number, int first, int width) const {
        const auto text = line(number);
        const auto start = static_cast<std::size_t>(first - 1);
        return start < text.size() ? text.substr(start, static_cast<std::size_t>(width)) : std::string_view{};
    }

    int whole(int number, const char* field) const {
        return required(readWhole(line(number)), number, field, line(number), "ett heltal");
    }

    double real(int number, const char* field) const {
        return required(readNumber(line(number)), number, field, line(number), "ett tal");
    }

    double realCell(int number, int first, int width, const std::string& field) const {
        const auto text = cellText(number, first, width);
        return required(readNumber(text), number, field, text, "ett tal");
    }

    int wholeCell(int number, int first, int width, const std::string& field) const {
        const auto text = cellText(number, first, width);
        return required(readWhole(text), number, field, text, "ett heltal");
    }

    // Cells field(from), field(from + 1) ...
    std::vector<double> row(int number, const std::string& field, int from, int count, int width) const {
        std::vector<double> values;
        for (int i = 0; i < count; ++i)
            values.push_back(
                realCell(number, 1 + i * width, width, indexed(field, static_cast<std::size_t>(from + i))));
        return values;
    }

  private:
    template <class T>
    static T required(std::optional<T> value, int number, const std::string& field, std::string_view text,
                      const char* kind) {
        if (value) return *value;
        throw CaseError("Rad " + std::to_string(number) + ": " + field + " = " + quoted(text) + " är inte " +
                        kind + ".");
    }

    std::vector<std::string_view> lines_;
};

void readGeometry(const Columns& file, DesignInput& c) {
    c.loadCode = file.whole(3, "loadCode");
    c.safetyClass = file.whole(4, "safetyClass");
    c.nfack = file.whole(5, "nfack");
    if (c.nfack < 1 || c.nfack > kMaxSpans)
        throw CaseError("Rad 5: antal fack nfack = " + std::to_string(c.nfack) + " ska vara 1 till 10.");
    c.spv = file.row(6, "spv", 1, c.nfack, 7);
    c.ptjl = file.row(7, "ptjl", 1, c.nfack, 7);
    c.upl = file.row(8, "upl", 0, c.nfack + 1, 6);
    // The front-end holds the end supports at 0 whatever the file says, and draws the moment curves
    // accordingly.
    c.upl.front() = 0;
    c.upl.back() = 0;
}

void readLoads(const Columns& file, DesignInput& c) {
    c.lokt = file.whole(9, "lokt");
    c.lambdaG = file.realCell(10, 1, 7, "lambdaG");
    c.ksi = readNumber(file.cellText(10, 8, 7));
    c.lambdaQ = file.realCell(10, 15, 7, "lambdaQ");
    c.psi0 = readNumber(file.cellText(10, 22, 7));
    c.psi1 = readNumber(file.cellText(10, 29, 7));
    c.psi2 = readNumber(file.cellText(10, 36, 7));
    c.lastkomb = file.whole(11, "lastkomb");
    c.plast = file.row(12, "plast", 1, c.nfack, 7);
    c.flast = file.row(13, "flast", 1, c.nfack, 7);
    c.konsv = file.real(14, "konsv");
    c.konsh = file.real(15, "konsh");
}

struct WholeLine {
    int number;
    const char* field;
    int DesignInput::*value;
};
constexpr WholeLine kWholeLines[] = {{16, "btg", &DesignInput::btg},
                                     {17, "aok", &DesignInput::aok},
                                     {18, "dok", &DesignInput::dok},
                                     {19, "kavko", &DesignInput::kavko},
                                     {20, "ktack", &DesignInput::ktack},
                                     {21, "auk", &DesignInput::auk},
                                     {22, "duk", &DesignInput::duk},
                                     {23, "duarm", &DesignInput::duarm},
                                     {24, "brandk", &DesignInput::brandk},
                                     {25, "brandb", &DesignInput::brandb},
                                     {26, "kutak", &DesignInput::kutak},
                                     {27, "reservedValue", &DesignInput::reservedValue},
                                     {28, "overhojning", &DesignInput::overhojning},
                                     {29, "initiell", &DesignInput::initiell},
                                     {30, "tillkommande", &DesignInput::tillkommande},
                                     {31, "brukskomb", &DesignInput::brukskomb},
                                     {32, "nllast", &DesignInput::nllast}};

void readLineLoads(const Columns& file, DesignInput& c) {
    if (c.nllast < 0 || c.nllast > kLineLoads)
        throw CaseError("Rad 32: antal linjelaster nllast = " + std::to_string(c.nllast) +
                        " ska vara 0 till 5.");
    for (int i = 1; i <= kLineLoads; ++i) {
        const int number = 32 + i;
        auto& load = c.lineLoads[static_cast<std::size_t>(i - 1)];
        if (i <= c.nllast) {
            const auto index = static_cast<std::size_t>(i);
            load = LineLoad{file.wholeCell(number, 1, 3, indexed("llfnr", index)),
                            file.realCell(number, 4, 7, indexed("avst", index)),
                            file.realCell(number, 11, 7, indexed("lllast", index))};
        } else {
            const auto span = readWhole(file.cellText(number, 1, 3));
            const auto distance = readNumber(file.cellText(number, 4, 7));
            const auto value = readNumber(file.cellText(number, 11, 7));
            if (span && distance && value) load = LineLoad{*span, *distance, *value};
        }
    }
}

} // namespace

std::vector<std::string_view> splitLines(std::string_view bytes) {
    std::vector<std::string_view> lines;
    while (!bytes.empty()) {
        const auto end = bytes.find_first_of("\r\n");
        lines.push_back(bytes.substr(0, end));
        if (end == std::string_view::npos) break;
        bytes.remove_prefix(end + (bytes.substr(end).starts_with("\r\n") ? 2 : 1));
    }
    return lines;
}

DesignInput readCase(std::string_view bytes) {
    const Columns file{splitLines(bytes)};
    DesignInput c;
    c.name = file.line(1);
    c.title = file.line(2);
    readGeometry(file, c);
    readLoads(file, c);
    for (const auto& line : kWholeLines)
        c.*line.value = file.whole(line.number, line.field);
    readLineLoads(file, c);
    return c;
}

} // namespace varnowb
