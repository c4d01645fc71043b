#include "shell/shell_fixture.h"

#include "model/reference_tables.h"

namespace varno::testing {

ShellFixture::ShellFixture() {
    files.content["C:\\varnow\\run\\varno.def"] = caseFile("namnl\xD6s", "Nytt", 5.5f);
    // Every change of a text or a row marks the case, as the real form's events do.
    form.onChange = [this](Control) { state.dataChanged = true; };
}

Bytes ShellFixture::caseFile(const std::string& name, const std::string& title, float spanLength) {
    MemoryFiles disk;
    DesignCase written;
    presetDesignCase(written);
    written.nfack = 2;
    written.loadCode = 3;
    written.upl(2) = 0;
    written.spv(1) = spanLength;
    DocumentState state;
    state.currentFileName = decodeWindows1252(name);
    File file(disk, "x", FileMode::output, 0, 1);
    VARNO1::writeDesignCase(file, written, state, title);
    file.close();
    return disk.content["x"];
}

} // namespace varno::testing
