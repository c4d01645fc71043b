#include "shell/shell_fixture.h"

#include "model/reference_tables.h"
#include "support/case_files.h"

namespace varno::testing {

ShellFixture::ShellFixture() {
    files.content["C:\\varnow\\run\\varno.def"] = caseFile("namnl\xD6s", "Nytt", 5.5f);
    dialogView.whileShown = [this] {
        dialogs.push_back(dialogView.caption + "|" + dialog.pattern() + "|" + dialogView.text);
        dialogView.text = typed;
        if (typed.empty()) {
            dialog.cancelled();
        } else {
            dialog.accepted();
        }
    };
    // Every change of a text or a row marks the case, as the real form's events do.
    form.onChange = [this](Control) { state.dataChanged = true; };
}

Bytes ShellFixture::caseFile(const std::string& name, const std::string& title, float spanLength) {
    CaseFile written{{}, decodeWindows1252(name), title};
    DesignCase& record = written.designCase;
    presetDesignCase(record);
    record.nfack = 2;
    record.loadCode = 3;
    record.upl(2) = 0;
    record.spv(1) = spanLength;
    return writtenCase(written);
}

} // namespace varno::testing
