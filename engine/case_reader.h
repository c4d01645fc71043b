// The design input file, read by its columns.
//
// 37 lines, ended by CR LF, LF or CR; what follows them is ignored. Lines 1 and 2 are texts; lines 6, 7, 8,
// 10, 12, 13 and 33 to 37 are cells of fixed width one after the other; every other line holds one number. A
// cell is what stands at its character positions, wherever in it the number stands; a line may end early, as
// when an editor has cut its trailing blanks.
//
// Unlike the front-end this reader takes nothing for a zero: a number that the calculation needs or that the
// file always has must be there and be a number and nothing else. Only what may rightly be empty or left over
// is read with tolerance: ksi and psi (a rule set may have none), and the line-load rows beyond `nllast`.
#pragma once

#include <array>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace varnowb {

constexpr int kMaxSpans = 10;
constexpr int kLineLoads = 5;

// The case makes no sense. The text is one Swedish line in UTF-8 that names the field and its value.
class CaseError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

struct LineLoad {
    int llfnr = 0;     // span, 1 to nfack
    double avst = 0;   // m from that span's left support
    double lllast = 0; // kN/m, positive downwards
};

// One case, in the file's order. Lengths in m, loads in kN/m2 unless noted.
struct DesignInput {
    std::string name;  // bytes of line 1
    std::string title; // bytes of line 2
    int loadCode = 0;
    int safetyClass = 0;
    int nfack = 0;                 // 1 to 10
    std::vector<double> spv, ptjl; // spans 1 to nfack at [0] on
    std::vector<double> upl;       // supports 0 to nfack; the two end supports always 0
    int lokt = 0;
    double lambdaG = 0, lambdaQ = 0;
    std::optional<double> ksi, psi0, psi1, psi2;
    int lastkomb = 0;
    std::vector<double> plast, flast; // spans 1 to nfack at [0] on
    double konsv = 0, konsh = 0;
    int btg = 0, aok = 0, dok = 0, kavko = 0, ktack = 0, auk = 0, duk = 0, duarm = 0;
    int brandk = 0, brandb = 0, kutak = 0, reservedValue = 0, overhojning = 0, initiell = 0, tillkommande = 0;
    int brukskomb = 0;
    int nllast = 0;                                            // 0 to 5
    std::array<std::optional<LineLoad>, kLineLoads> lineLoads; // those up to nllast are always there
};

// Lines without their ends. A line end at the end of the file starts no further line.
std::vector<std::string_view> splitLines(std::string_view bytes);

// Throws CaseError for a file that is too short, a number that cannot be read, and a count (`nfack`,
// `nllast`) outside its range. Whether the values make sense is for checkCase.
DesignInput readCase(std::string_view bytes);

} // namespace varnowb
