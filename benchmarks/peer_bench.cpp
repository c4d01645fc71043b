// The sample engine beside cba, a program for continuous beams, where that is installed: both take the same slab from a file
// to the largest and smallest moments and reactions in files. cba does not try the variable load on every choice of spans, so
// its moments over supports come out smaller; under the load of all spans both must say the same.
#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <fstream>
#include <sstream>

#include "base/file_calls.h"
#include "benchmarks/processes.h"
#include "engine/case_reader.h"
#include "engine/run.h"
#include "model/design_input_file.h"

namespace varno::benchmarks {
namespace {

constexpr const char* peer = "cba";

bool isInstalled() {
    const char* const path = std::getenv("PATH");
    std::istringstream folders(path == nullptr ? "" : path);
    for (std::string folder; std::getline(folders, folder, ':');) {
        if (std::filesystem::exists(std::filesystem::path(folder) / peer)) return true;
    }
    return false;
}

// Without cantilevers: the engine loads them together with the span beside them, the other one by themselves.
CaseFile slab() {
    CaseFile file{engine::readCase(systemFileCalls().readAll(SAMPLES_PATH "/TIOFACK.IND")).values, "TIOFACK",
                  ""};
    file.designCase.konsv = file.designCase.konsh = 0;
    return file;
}

// With a factor for the variable load where it is favourable.
std::string asPeerReadsIt(const DesignCase& c, double favourable) {
    const double permanentFactor = *c.lambdaG(c.loadCode);
    const double variableFactor = *c.lambdaQ(c.loadCode);
    std::ostringstream spans, supports, loads;
    supports << " -1 0";
    for (int i = 1; i <= c.nfack; ++i) {
        spans << ' ' << c.spv(i);
        supports << " -1 0";
        loads << "LOAD " << i << " 1 " << c.plast(i) << ' ' << c.flast(i) << " 0 0\n";
    }
    // Line loads have no factor.
    for (int i = 1; i <= c.nllast; ++i)
        loads << "LOAD " << c.llfnr(i) << " 2 " << c.lllast(i) / permanentFactor << " 0 " << c.avst(i)
              << " 0\n";
    std::ostringstream text;
    text << "SPANS" << spans.str() << "\nCONSTRAINTS" << supports.str() << '\n'
         << loads.str() << "FACTORS " << permanentFactor << ' ' << variableFactor << ' ' << permanentFactor
         << ' ' << favourable << '\n';
    return text.str();
}

// The numbers behind a name among the design results, which come last.
std::vector<double> peersNumbers(const std::string& name) {
    std::ifstream file("peer.txt");
    std::vector<double> numbers;
    for (std::string line; std::getline(file, line);) {
        if (!line.starts_with(name)) continue;
        numbers.clear();
        std::istringstream rest(line.substr(name.size()));
        for (double number = 0; rest >> number;)
            numbers.push_back(number);
    }
    return numbers;
}

// The largest difference between two rows of numbers by the largest number.
double apart(const std::vector<double>& ours, const std::vector<double>& peers) {
    if (ours.size() != peers.size()) return HUGE_VAL;
    double difference = 0;
    double largest = 0;
    for (std::size_t i = 0; i < ours.size(); ++i) {
        difference = std::max(difference, std::abs(ours[i] - peers[i]));
        largest = std::max(largest, std::abs(ours[i]));
    }
    return difference / largest;
}

void writePeersFile(const DesignCase& c, double favourable) {
    std::ofstream("peer.in") << asPeerReadsIt(c, favourable);
}

const std::vector<std::string> peersWords{peer, "-i", "peer.in", "-o", "peer.txt", "-p", "peer.dat"};

// How far the moments over supports and the reactions are apart when all spans bear all their load.
double deviation(DesignCase c) {
    const double variableFactor = *c.lambdaQ(c.loadCode);
    writePeersFile(c, variableFactor);
    if (Program(peersWords).run() != 0) return HUGE_VAL;
    for (int i = 1; i <= c.nfack; ++i) {
        c.plast(i) += static_cast<float>(c.flast(i) * variableFactor / *c.lambdaG(c.loadCode));
        c.flast(i) = 0;
    }
    const engine::Envelope ours = engine::calculate(c);
    std::vector<double> least, reactions;
    for (const engine::FieldMoments& field : ours.field)
        least.push_back(field.min.moment); // over a support
    for (const engine::Range& reaction : ours.reaction)
        reactions.push_back(reaction.max);
    return std::max(apart(least, peersNumbers("Mmin:")), apart(reactions, peersNumbers("Rmax:")));
}

void engineBesidePeer(benchmark::State& state) {
    const WorkFolder folder;
    std::ofstream("~indata~.tmp", std::ios::binary) << VARNO1::writtenDesignCase(slab());
    measure(state, {VARNOWB_PATH});
}

void peerProcess(benchmark::State& state) {
    const WorkFolder folder;
    const DesignCase c = slab().designCase;
    const double apart = deviation(c);
    constexpr double sameSlab = 0.001;
    if (!(apart <= sameSlab)) state.SkipWithError("the moments or reactions are others");
    writePeersFile(c, 0);
    measure(state, peersWords);
    state.counters["deviation"] = apart;
}

[[maybe_unused]] const bool registered = [] {
    if (!isInstalled()) return false;
    benchmark::RegisterBenchmark("engineBesidePeer", engineBesidePeer)
        ->Unit(benchmark::kMicrosecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("peerProcess", peerProcess)->Unit(benchmark::kMicrosecond)->UseRealTime();
    return true;
}();

} // namespace
} // namespace varno::benchmarks
