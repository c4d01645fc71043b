#include "shell/start_up.h"

#include <bit>
#include <cstring>

#include "base/run_time_error.h"
#include "base/text.h"
#include "results/font_choice.h"

namespace varno {

namespace {

// Its bytes 0 to 3 are a little-endian single: the version whose notice was last dismissed for good.
constexpr const char* noticeFile = "varno.ver";
static_assert(std::endian::native == std::endian::little);

std::string readWorkFolder(FileOpener& files) {
    File file = files.openFile("varno.ini", FileMode::input);
    return decodeWindows1252(VARNO1::fromOemLetters(file.readField()));
}

float readNoticeVersion(FileOpener& files) {
    float version = 0;
    const Bytes bytes = files.openFile(noticeFile, FileMode::binary).get(1, sizeof version);
    std::memcpy(&version, bytes.data(), sizeof version);
    return version;
}

void storeNoticeVersion(FileOpener& files, float version) {
    File file = files.openFile(noticeFile, FileMode::binary);
    file.put(1, {reinterpret_cast<const char*>(&version), sizeof version});
    file.close();
}

std::string resultFont(FileOpener& files, StartUpView& view) {
    try {
        return decodeWindows1252(files.openFile(fontFileName, FileMode::input).readField());
    } catch (const RunTimeError&) {
        // No font was chosen yet.
        return view.printerFontName();
    }
}

} // namespace

void startUp(Settings& settings, Document& document, FileOpener& files, MainView& window, StartUpView& view) {
    // Both sides are singles: a file that holds exactly 7.1 as a single is up to date.
    constexpr auto version = static_cast<float>(programVersion);
    bool upToDate = false;
    view.showMainWindow();
    {
        const BusyPointer busy(window);
        settings.workFolder = readWorkFolder(files);
        upToDate = !(readNoticeVersion(files) < version);
    }
    if (!upToDate && view.showVersionNotice()) {
        // In a folder that cannot be written the notice comes again at the next start; that is no reason not to
        // start.
        try {
            storeNoticeVersion(files, version);
        } catch (const RunTimeError& error) {
            view.report(error);
        }
    }
    view.showDisclaimer();
    {
        const BusyPointer busy(window);
        document.readDefaultCase(settings.workFolder);
        view.showInputForm();
    }
    settings.resultFontName = resultFont(files, view);
    view.setResultFont(settings.resultFontName);
    view.showMainWindow();
}

} // namespace varno
