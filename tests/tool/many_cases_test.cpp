#include <algorithm>
#include <sstream>

#include "support/case_files.h"
#include "tool/tool_program.h"

// The sample engine run on many cases, as README shows it.
namespace varno {

namespace {

namespace fs = std::filesystem;

class ManyCases : public testing::ToolProgram {
  protected:
    void makeCases(int count) {
        const Bytes sample = testing::contentOf(fs::path(VARNO_SAMPLES) / "KONTOR.IND");
        for (int i = 1; i <= count; ++i) {
            CaseFile one = testing::readCase(sample);
            one.name = "V" + std::to_string(i);
            one.designCase.spv(1) = 4 + 0.01f * static_cast<float>(i);
            folder.write(one.name + ".IND", testing::writtenCase(one));
        }
    }
    bool has(const std::string& name) const { return fs::exists(folder.file(name)); }
    int numberOfResults() const {
        int count = 0;
        for (const auto& entry : fs::recursive_directory_iterator(folder.file("resultat")))
            count += entry.path().extension() == ".res" ? 1 : 0;
        return count;
    }
};

TEST_F(ManyCases, AreCalculatedByTheSampleEngine) {
    makeCases(12);
    EXPECT_EQ(run("run *.IND --engine \"$VARNOWB\" --jobs 3 --out resultat"), 0) << folder.read("err");
    EXPECT_EQ(folder.read("out"), "12 fall beräknade.\n");
    EXPECT_EQ(folder.read("err"), "") << "no bar where nobody watches";
    EXPECT_EQ(numberOfResults(), 12);
    EXPECT_EQ(run("report resultat/V7/V7.IND --out V7.html"), 0);
    EXPECT_EQ(folder.read("V7.html").find("class=\"note\""), std::string::npos);
    EXPECT_EQ(run("moments resultat/V7/momk.dat --case resultat/V7/V7.IND"), 0) << folder.read("err");
}

TEST_F(ManyCases, AnEngineIsFoundFromEveryFolder) {
    makeCases(1);
    folder.write("motor", "#!/bin/sh\nexec \"$VARNOWB\"\n");
    EXPECT_EQ(shell("chmod +x motor; \"$VARNOTOOL\" run V1.IND --engine ./motor --out resultat >out"), 0);
    EXPECT_TRUE(has("resultat/V1/V1.res"));
}

TEST_F(ManyCases, AnEngineThatHangsIsEndedWithAllItStarted) {
    makeCases(1);
    folder.write("motor", "#!/bin/sh\necho $$ > ../pids\nsleep 60 &\necho $! >> ../pids\nwait\n");
    EXPECT_EQ(
        shell("chmod +x motor; \"$VARNOTOOL\" run V1.IND --engine ./motor --out resultat --timeout 0.5 >out\n"
              "code=$?; for p in $(cat resultat/pids); do\n"
              "for i in $(seq 50); do kill -0 $p 2>/dev/null && grep -qv ' Z ' /proc/$p/stat || continue 2; "
              "sleep 0.1;\n"
              "done; exit 99; done; exit $code"),
        3);
    EXPECT_TRUE(folder.read("out").starts_with("V1.IND: Motorn var inte klar inom 0,5 s."))
        << folder.read("out");
}

TEST_F(ManyCases, CtrlCEndsTheEnginesAndLeavesNothingHalf) {
    makeCases(3);
    folder.write("motor", "#!/bin/sh\necho halvt > V.res; echo halvt > momk.dat\n"
                          "echo $$ >> ../pids; exec sleep 60\n");
    // A shell without job control lets what it starts in the background ignore Ctrl+C.
    EXPECT_EQ(shell("set -m; chmod +x motor; mkdir resultat\n"
                    "\"$VARNOTOOL\" run *.IND --engine ./motor --jobs 2 --out resultat >out 2>err &\n"
                    "for i in $(seq 100); do [ \"$(wc -l 2>/dev/null <resultat/pids)\" = 2 ] && break; sleep "
                    "0.1; done\n"
                    "kill -INT $!; wait $!; code=$?\n"
                    "for p in $(cat resultat/pids); do kill -0 $p 2>/dev/null && exit 99; done; exit $code"),
              130);
    EXPECT_EQ(folder.read("out"), "0 fall beräknade; körningen avbröts.\n");
    EXPECT_EQ(shell("rm resultat/pids; [ -z \"$(ls -A resultat)\" ]"), 0);
}

TEST_F(ManyCases, AKilledRunIsGoneOnWith) {
    makeCases(2);
    folder.write("motor", "#!/bin/sh\necho $$ >> ../pids; exec sleep 60\n");
    EXPECT_EQ(
        shell("exec 2>log; chmod +x motor; mkdir resultat\n"
              "\"$VARNOTOOL\" run *.IND --engine ./motor --jobs 2 --out resultat >out 2>err &\n"
              "for i in $(seq 100); do [ \"$(wc -l 2>/dev/null <resultat/pids)\" = 2 ] && break; sleep 0.1; "
              "done\n"
              "kill -KILL $!; wait $!\n"
              "for p in $(cat resultat/pids); do\n"
              "for i in $(seq 50); do kill -0 $p 2>/dev/null || continue 2; sleep 0.1; done; exit 99; done"),
        0)
        << "engines do not go on alone";
    EXPECT_TRUE(has("resultat/V1.~tmp"));
    EXPECT_EQ(run("run *.IND --engine \"$VARNOWB\" --out resultat"), 0) << folder.read("out");
    EXPECT_EQ(numberOfResults(), 2);
    EXPECT_FALSE(has("resultat/V1.~tmp"));
}

// What README shows is what is run here, with folders and machines of its own.
class ManyMachines : public ManyCases {
  protected:
    void SetUp() override {
        makeCases(60);
        // An engine that counts its starts, and fails for one case the first time.
        folder.write(
            "varnowb",
            "#!/bin/sh\nname=$(head -n 1 '~indata~.tmp' | tr -d '\\r'); echo \"$name\" >> ../../starts\n"
            "if [ \"$name\" = V31 ] && [ ! -e ../../failed ]; then touch ../../failed; exit 1; fi\n"
            "exec \"$VARNOWB\"\n");
        shell("chmod +x varnowb; mkdir bin cases results; mv *.IND cases; ln -s \"$VARNOTOOL\" "
              "bin/varnotool; ln -s \"$PWD\" ../srv");
    }
    // A folder without a blank in its name leads to this one: the commands are as a shell takes them.
    /// The block of README that begins so.
    std::string shownIn(const std::string& first) const {
        const std::string readme = testing::contentOf(VARNO_README);
        const auto begin = readme.find("\n    " + first);
        EXPECT_NE(begin, std::string::npos) << first;
        std::string block = readme.substr(begin + 1, readme.find("\n\n", begin) - begin - 1);
        for (const auto& [from, to] : std::vector<std::pair<std::string, std::string>>{
                 {"/srv/varno", "$SRV"}, {"--sshloginfile hosts", "--sshlogin 2/: --env VARNOWB"}}) {
            for (auto at = block.find(from); at != std::string::npos; at = block.find(from, at + to.size()))
                block.replace(at, from.size(), to);
        }
        // Its home may hold plain letters only.
        return "above=$(cd -P .. && pwd); export SRV=$above/srv PATH=\"$PWD/bin:$PATH\" "
               "PARALLEL_HOME=$above/home\n"
               "mkdir -p $PARALLEL_HOME; touch $PARALLEL_HOME/will-cite\n" +
               block;
    }
    std::vector<std::string> starts() const {
        std::istringstream in(folder.read("starts"));
        std::vector<std::string> names;
        for (std::string name; std::getline(in, name);)
            names.push_back(name);
        std::ranges::sort(names);
        return names;
    }
    void expectEveryCaseOnce(std::vector<std::string> names) {
        EXPECT_EQ(names.size(), 60U);
        EXPECT_EQ(std::ranges::adjacent_find(names), names.end()) << "calculated twice";
    }
};

TEST_F(ManyMachines, GnuParallelCalculatesEveryCaseOnceAndAFailedOneAgain) {
    ASSERT_EQ(shell("command -v parallel >/dev/null"), 0) << "the package parallel is missing";
    std::string command = shownIn("find ");
    const auto at = command.find("--max-args 200");
    ASSERT_NE(at, std::string::npos);
    command.replace(at, 14, "--max-args 7");
    EXPECT_EQ(shell(command + " >out 2>err"), 1) << "as many starts as failed: " << folder.read("err");
    expectEveryCaseOnce(starts());
    EXPECT_TRUE(has("results/V31.fel"));
    command.replace(command.find("--joblog"), 8, "--resume-failed --joblog");
    EXPECT_EQ(shell(command + " >out 2>err"), 0) << folder.read("out") << folder.read("err");
    auto names = starts();
    ASSERT_EQ(names.size(), 61U) << "the failed one alone";
    names.erase(std::ranges::find(names, "V31"));
    expectEveryCaseOnce(names);
    EXPECT_EQ(shell("[ $(ls results/*/*.res | wc -l) = 60 ] && [ -z \"$(ls -d results/*.* 2>/dev/null)\" ]"),
              0);
}

TEST_F(ManyMachines, AJobArrayCalculatesEveryCaseOnce) {
    folder.write("failed", "");
    const std::string task = shownIn("#!/bin/bash\n    #SBATCH");
    EXPECT_EQ(shell("find \"$(cd -P .. && pwd)/srv/cases\" -name '*.IND' > cases.txt"), 0);
    for (int i = 0; i < 4; ++i) {
        const std::string slurm =
            "export SLURM_ARRAY_TASK_COUNT=4 SLURM_CPUS_PER_TASK=2 SLURM_ARRAY_TASK_ID=" + std::to_string(i) +
            "\n";
        EXPECT_EQ(shell(slurm + task + " >out 2>err"), 0) << folder.read("out") << folder.read("err");
        EXPECT_EQ(folder.read("out"), "15 fall beräknade.\n");
    }
    expectEveryCaseOnce(starts());
}

TEST_F(ManyCases, TwoRunsOfTheSameCasesDoNotCalculateAnyTwice) {
    makeCases(8);
    folder.write("motor", "#!/bin/sh\necho x >> ../started; sleep 0.2; exec \"$VARNOWB\"\n");
    shell("chmod +x motor; for i in 1 2; do \"$VARNOTOOL\" run *.IND --engine ./motor --jobs 4 --out "
          "resultat >/dev/null & "
          "done; wait");
    EXPECT_EQ(shell("\"$VARNOTOOL\" run *.IND --engine ./motor --out resultat >out"), 0);
    EXPECT_EQ(numberOfResults(), 8);
    const Bytes started = folder.read("resultat/started");
    EXPECT_EQ(std::ranges::count(started, 'x'), 8);
}

} // namespace

} // namespace varno
