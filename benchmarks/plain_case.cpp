#include "benchmarks/plain_case.h"

#include <cstdio>
#include <cstring>

#include "base/oem_letters.h"

namespace varno::benchmarks {

namespace {

// The numbers of the lines that hold one each, in the file's order.
constexpr std::array integersBelowCantilevers{
    &DesignCase::btg,         &DesignCase::aok,      &DesignCase::dok,          &DesignCase::kavko,
    &DesignCase::ktack,       &DesignCase::auk,      &DesignCase::duk,          &DesignCase::duarm,
    &DesignCase::brandk,      &DesignCase::brandb,   &DesignCase::kutak,        &DesignCase::reservedValue,
    &DesignCase::overhojning, &DesignCase::initiell, &DesignCase::tillkommande, &DesignCase::brukskomb,
    &DesignCase::nllast,
};

class Reader {
  public:
    explicit Reader(const char* bytes) : next_(bytes) {}

    // sscanf measures the whole text that it is given, so it is given a line.
    void takeLine() {
        const char* const end = std::strchr(next_, '\r');
        const auto length = static_cast<std::size_t>(end - next_);
        std::memcpy(line_.data(), next_, length);
        line_[length] = '\0';
        next_ = end + 2;
    }

    const char* text() const { return line_.data(); }
    std::int16_t integer() {
        short number = 0;
        takeLine();
        std::sscanf(line_.data(), "%hd", &number);
        return number;
    }
    float real() {
        float number = 0;
        takeLine();
        std::sscanf(line_.data(), "%f", &number);
        return number;
    }

  private:
    const char* next_;
    std::array<char, 256> line_{};
};

void swapLetters(char* text, char OemLetter::*from, char OemLetter::*to) {
    for (const OemLetter& letter : oemLetters) {
        if (char* const at = std::strchr(text, letter.*from)) *at = letter.*to;
    }
}

void readText(Reader& reader, std::array<char, 256>& text) {
    reader.takeLine();
    std::strcpy(text.data(), reader.text());
    swapLetters(text.data(), &OemLetter::dos, &OemLetter::windows);
}

void readCells(Reader& reader, SpanArray& field, int first, int last, std::size_t width) {
    reader.takeLine();
    const char* cell = reader.text();
    for (int i = first; i <= last; ++i, cell += width)
        std::sscanf(cell, "%f", &field(i));
}

void readFactors(Reader& reader, DesignCase& c) {
    reader.takeLine();
    std::array<double, 6> factors{};
    for (std::size_t i = 0; i < factors.size(); ++i)
        std::sscanf(reader.text() + 7 * i, "%lf", &factors[i]);
    c.lambdaG(c.loadCode) = factors[0];
    c.ksi(c.loadCode) = factors[1];
    c.lambdaQ(c.loadCode) = factors[2];
    c.psi0(c.loadCode, c.lokt) = factors[3];
    c.psi1(c.loadCode, c.lokt) = factors[4];
    c.psi2(c.loadCode, c.lokt) = factors[5];
}

class Writer {
  public:
    template <typename... Values>
    void print(const char* format, Values... values) {
        const int length = std::snprintf(piece_.data(), piece_.size(), format, values...);
        text_.append(piece_.data(), static_cast<std::size_t>(length));
    }
    void printText(std::array<char, 256> text) {
        swapLetters(text.data(), &OemLetter::windows, &OemLetter::dos);
        print("%s\r\n", text.data());
    }
    void printCells(const SpanArray& field, int first, int last, int width) {
        for (int i = first; i <= last; ++i)
            printCell(field(i), width);
        print("\r\n");
    }
    void printCell(double value, int width) {
        std::array<char, 32> number{};
        std::snprintf(number.data(), number.size(), "%.3f", value);
        print("%-*s", width, number.data());
    }
    std::string text() && { return std::move(text_); }

  private:
    std::string text_;
    std::array<char, 300> piece_{};
};

} // namespace

void readPlainly(const char* bytes, PlainCase& read) {
    Reader reader(bytes);
    DesignCase& c = read.values;
    readText(reader, read.name);
    readText(reader, read.title);
    c.loadCode = reader.integer();
    c.safetyClass(c.loadCode) = reader.integer();
    c.nfack = reader.integer();
    readCells(reader, c.spv, 1, c.nfack, 7);
    readCells(reader, c.ptjl, 1, c.nfack, 7);
    readCells(reader, c.upl, 0, c.nfack, 6);
    c.lokt = reader.integer();
    readFactors(reader, c);
    c.lastkomb = reader.integer();
    readCells(reader, c.plast, 1, c.nfack, 7);
    readCells(reader, c.flast, 1, c.nfack, 7);
    c.konsv = reader.real();
    c.konsh = reader.real();
    for (const auto field : integersBelowCantilevers)
        c.*field = reader.integer();
    for (int i = 1; i <= maxLineLoads; ++i) {
        short span = 0;
        reader.takeLine();
        std::sscanf(reader.text(), "%hd%f%f", &span, &c.avst(i), &c.lllast(i));
        c.llfnr(i) = span;
    }
}

std::string writtenPlainly(const PlainCase& plain) {
    Writer writer;
    const DesignCase& c = plain.values;
    writer.printText(plain.name);
    writer.printText(plain.title);
    for (const int number : {c.loadCode, c.safetyClass(c.loadCode), c.nfack})
        writer.print("%d\r\n", number);
    writer.printCells(c.spv, 1, c.nfack, 7);
    writer.printCells(c.ptjl, 1, c.nfack, 7);
    writer.printCells(c.upl, 0, c.nfack, 6);
    writer.print("%d\r\n", c.lokt);
    for (const FactorPerRuleSet* factor : {&c.lambdaG, &c.ksi, &c.lambdaQ})
        writer.printCell((*factor)(c.loadCode).value_or(0), 7);
    for (const FactorPerCategory* factor : {&c.psi0, &c.psi1, &c.psi2})
        writer.printCell((*factor)(c.loadCode, c.lokt).value_or(0), 7);
    writer.print("\r\n%d\r\n", c.lastkomb);
    writer.printCells(c.plast, 1, c.nfack, 7);
    writer.printCells(c.flast, 1, c.nfack, 7);
    writer.print("%.7g\r\n%.7g\r\n", static_cast<double>(c.konsv), static_cast<double>(c.konsh));
    for (const auto field : integersBelowCantilevers)
        writer.print("%d\r\n", c.*field);
    for (int i = 1; i <= maxLineLoads; ++i) {
        writer.print("%-3d", c.llfnr(i));
        writer.printCell(c.avst(i), 7);
        writer.printCell(c.lllast(i), 7);
        writer.print("\r\n");
    }
    return std::move(writer).text();
}

} // namespace varno::benchmarks
